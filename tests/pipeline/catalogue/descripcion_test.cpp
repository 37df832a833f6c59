#include "pipeline/catalogue/descripcion.h"

#include "pipeline/catalogue/catalogo.h"

#include <gtest/gtest.h>

#include <QSet>

namespace kestrane::catalogue {
namespace {

std::string descripcionDe(QStringView control)
{
    return descripcion(*busca(control)).toStdString();
}

TEST(Descripcion, TheGroupStandsInFrontOfTheCaption)
{
    EXPECT_EQ(descripcionDe(u"cmd_Caja3"), "Caja: Caja General por Empleados");
    EXPECT_EQ(descripcionDe(u"cmd_Ventas2"), "Listados de Ventas: Formas de Pago");
    EXPECT_EQ(descripcionDe(u"cmd_Generales9"), "Listados Generales: Formas de Pago");
    EXPECT_EQ(descripcionDe(u"Command9"), "Graficos de venta: Formas de Pago");
    EXPECT_EQ(descripcionDe(u"Command17"), "Movimientos de Stock: Ventas");
}

TEST(Descripcion, WhereTheGroupHasNoTitleTheCaptionStandsAlone)
{
    EXPECT_EQ(descripcionDe(u"cmd_Marcas"), "Marcas");
    EXPECT_EQ(descripcionDe(u"cmd_Salir"), "Salir");
}

TEST(Descripcion, APanelsButtonIsCalledAfterTheOneThatOpensThePanel)
{
    EXPECT_EQ(descripcionDe(u"Command10"), "Listados Generales: Etiquetas de Clientes");
    EXPECT_EQ(busca(u"Command10")->leyenda.toString().toStdString(), "Continuar") << "on the form it is as it was";
}

TEST(Descripcion, NoTwoReportsOrChartsAreCalledTheSame)
{
    QSet<QString> vistas;
    for (const FilaCatalogo& fila : catalogo()) {
        if (fila.clase != Clase::Informe && fila.clase != Clase::Grafico)
            continue;
        const QString suya = descripcion(fila);
        EXPECT_FALSE(vistas.contains(suya)) << suya.toStdString();
        vistas.insert(suya);
    }
    EXPECT_EQ(vistas.size(), 59 + 7); // reports and charts
}

} // namespace
} // namespace kestrane::catalogue
