#include "pipeline/filtros/ordenes.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QStringList columnas(std::span<const Orden> ordenes)
{
    QStringList lista;
    for (const Orden& orden : ordenes)
        lista += orden.leyenda.toString() + u"="_s + orden.columna.toString();
    return lista;
}

TEST(OrdenesTest, EachButtonStandsForAColumn)
{
    EXPECT_EQ(columnas(ordenesDeClientes()),
              (QStringList{u"Nombre=Nombre"_s, u"Fecha de Alta=Ingreso"_s, u"Cumpleaños=nacimiento"_s,
                           u"Ultima Visita=UltimaVisita"_s, u"Apellidos=Apellidos"_s, u"Solo Clientes con E-Mail=Nombre"_s}));
    EXPECT_EQ(columnas(ordenesDeServicios()), (QStringList{u"Nombre=Nombre"_s, u"Seccion=Seccion"_s, u"Codigo=Codigo"_s}));
    EXPECT_EQ(columnas(ordenesDeProductos()), (QStringList{u"Nombre=Nombre"_s, u"Secciones=Seccion"_s, u"Proveedores=Proveedor"_s,
                                                           u"Codigo=Codigo"_s, u"Stock=Stock"_s}));
}

TEST(OrdenesTest, APressSetsTheColumnAndAcceptsAndOneOfThemAsksForEmailToo)
{
    EntornoDatos entorno{{}};
    ContextoEjecucion contexto{entorno};
    eligeOrden(contexto, ordenesDeClientes()[1]);
    EXPECT_EQ(contexto.filtros.columnaOrden, u"Ingreso"_s);
    EXPECT_TRUE(contexto.FiltroAceptado);
    EXPECT_FALSE(contexto.filtros.soloConEmail);
    eligeOrden(contexto, ordenesDeClientes()[5]);
    EXPECT_EQ(contexto.filtros.columnaOrden, u"Nombre"_s);
    EXPECT_TRUE(contexto.filtros.soloConEmail);
}

} // namespace
} // namespace kestrane
