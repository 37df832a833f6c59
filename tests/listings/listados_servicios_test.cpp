#include "listings/listados_servicios.h"

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

class ListadosServiciosTest : public testing::Test
{
protected:
    ListadosServiciosTest()
    {
        m_puesto.tienda.ejecuta({u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s,
                                 u"insert into seccion (codigo, nombre, borrar) values (2, 'Color', -1)"_s});
    }

    void servicio(int codigo, const QString& nombre, int seccion)
    {
        m_puesto.tienda.ejecuta(
            u"insert into servicios (codigo, nombre, seccion, mostrarencaja) values (%1, '%2', %3, 0)"_s.arg(codigo)
                .arg(nombre)
                .arg(seccion));
    }

    QStringList serviciosPor(const QString& columna)
    {
        m_puesto.contexto.filtros.columnaOrden = columna;
        ListadoServicios(m_puesto.listados);
        return m_puesto.filas(u"texto2,texto21"_s);
    }

    PuestoDePrueba m_puesto;
};

TEST_F(ListadosServiciosTest, WithoutAnOrderColumnTheStatementIsRefused)
{
    EXPECT_THROW(serviciosPor({}), ErrorEjecucion);
}

TEST_F(ListadosServiciosTest, ServicesComeInTheOrderThatTheOperatorChose)
{
    servicio(1, u"mechas"_s, 2);
    servicio(3, u"Ángulo"_s, 1);
    servicio(2, u"Zeta"_s, 1);
    EXPECT_EQ(serviciosPor(u"Nombre"_s), (QStringList{u"Ángulo|Corte"_s, u"mechas|Color"_s, u"Zeta|Corte"_s}));
    EXPECT_EQ(serviciosPor(u"Seccion"_s), (QStringList{u"Ángulo|Corte"_s, u"Zeta|Corte"_s, u"mechas|Color"_s}));
    EXPECT_EQ(serviciosPor(u"Codigo"_s), (QStringList{u"mechas|Color"_s, u"Zeta|Corte"_s, u"Ángulo|Corte"_s}));
}

TEST_F(ListadosServiciosTest, AServiceWhoseSectionHasNoRowDoesNotAppear)
{
    servicio(1, u"Lavar"_s, 9);
    EXPECT_EQ(serviciosPor(u"Codigo"_s), QStringList{});
}

TEST_F(ListadosServiciosTest, EveryColumnOfAServiceHasItsField)
{
    m_puesto.tienda.ejecuta({u"insert into servicios (codigo, codigocliente, nombre, seccion, posicion, mostrarencaja, duracion,"
                             " precio, iva) values (1, 'S1', 'Lavar', 1, 4, 1, 30, 12.5, 21)"_s,
                             u"insert into servicios (codigo, nombre, seccion, borrar) values (2, 'Viejo', 1, -1)"_s});
    serviciosPor(u"Codigo"_s);
    EXPECT_EQ(m_puesto.filas(u"texto1,texto2,texto21,texto4,texto5,numerico6,numerico2,numerico3"_s),
              QStringList{u"S1|Lavar|Corte|4|Si|30|12,5|21"_s});
    EXPECT_EQ(m_puesto.progreso.pasos, 1);
}

TEST_F(ListadosServiciosTest, RepairsComeByName)
{
    m_puesto.tienda.ejecuta({u"insert into arreglos (codigo, codigocliente, nombre, mostrarencaja, duracion, precio, preciopago,"
                             " impuesto) values (1, 'A1', 'Zurcir', -1, 15, 6, 4.25, 21)"_s,
                             u"insert into arreglos (codigo, nombre, mostrarencaja) values (2, 'bajo', 0)"_s,
                             u"insert into arreglos (codigo, nombre, borrar) values (3, 'Viejo', -1)"_s});
    ListadoArreglos(m_puesto.listados);
    EXPECT_EQ(m_puesto.filas(u"texto1,texto2,texto5,numerico6,numerico2,numerico7,numerico3"_s),
              (QStringList{u"nulo|bajo|No|nulo|nulo|nulo|nulo"_s, u"A1|Zurcir|Si|15|6|4,25|21"_s}));
}

TEST_F(ListadosServiciosTest, APackHasOneRowForEachOfItsServicesAndNoneWithoutThem)
{
    servicio(7, u"Lavar"_s, 1);
    servicio(8, u"Peinar"_s, 9);
    m_puesto.tienda.ejecuta({u"insert into familias (codigo, codigocliente, nombre, seccion, posicion, mostrarencaja, precio, iva)"
                             " values (5, 'F5', 'Novia', 2, 3, 0, 90, 10)"_s,
                             u"insert into familias (codigo, nombre, seccion) values (6, 'Vacía', 1)"_s,
                             u"insert into familias (codigo, nombre, seccion, borrar) values (4, 'Vieja', 1, -1)"_s,
                             u"insert into familias (codigo, nombre, seccion) values (3, 'Sin sección', 9)"_s,
                             u"insert into detalle_familia (familia, servicio) values (3, 7)"_s,
                             u"insert into detalle_familia (familia, servicio) values (5, 8)"_s,
                             u"insert into detalle_familia (familia, servicio) values (5, 7)"_s,
                             u"insert into detalle_familia (familia, servicio) values (5, 99)"_s,
                             u"insert into detalle_familia (familia, servicio) values (4, 7)"_s});
    ListadoPackServicios(m_puesto.listados);
    EXPECT_EQ(m_puesto.filas(u"texto1,texto2,texto21,texto22,texto4,texto5,numerico2,numerico3,texto7,texto8"_s),
              (QStringList{u"F5|Novia|Color|5|3|No|90|10|Peinar|nulo"_s, u"F5|Novia|Color|5|3|No|90|10|Lavar|nulo"_s}));
    EXPECT_EQ(m_puesto.progreso.pasos, 2);
}

TEST_F(ListadosServiciosTest, ASpaPackShowsTheDayOfEachService)
{
    servicio(7, u"Sauna"_s, 1);
    m_puesto.tienda.ejecuta(
        {u"insert into cabecera_pack_spa (codigo, codigocliente, nombre, seccion, posicion, mostrarencaja, precio, iva)"
         " values (5, 'K5', 'Relax', 1, 3, 1, 150.5, 21)"_s,
         u"insert into cabecera_pack_spa (codigo, nombre, seccion) values (6, 'Vacío', 1)"_s,
         u"insert into detalle_pack_spa (codigo, codservicio, dia) values (5, 7, 2)"_s,
         u"insert into detalle_pack_spa (codigo, codservicio) values (5, 7)"_s});
    ListadoPackSpa(m_puesto.listados);
    EXPECT_EQ(m_puesto.filas(u"texto1,texto2,texto21,texto22,texto4,texto5,numerico2,numerico3,texto7,texto8"_s),
              (QStringList{u"K5|Relax|Corte|5|3|Si|150,5|21|Sauna|Dia 2"_s, u"K5|Relax|Corte|5|3|Si|150,5|21|Sauna|Dia "_s}));
}

TEST_F(ListadosServiciosTest, ASpaPackThatIsDeletedOrLacksItsSectionOrItsServiceDoesNotAppear)
{
    servicio(7, u"Sauna"_s, 1);
    m_puesto.tienda.ejecuta({u"insert into cabecera_pack_spa (codigo, nombre, seccion, borrar) values (4, 'Viejo', 1, -1)"_s,
                             u"insert into cabecera_pack_spa (codigo, nombre, seccion) values (5, 'Sin sección', 9)"_s,
                             u"insert into cabecera_pack_spa (codigo, nombre, seccion) values (6, 'Entero', 2)"_s,
                             u"insert into detalle_pack_spa (codigo, codservicio, dia) values (4, 7, 1)"_s,
                             u"insert into detalle_pack_spa (codigo, codservicio, dia) values (5, 7, 1)"_s,
                             u"insert into detalle_pack_spa (codigo, codservicio, dia) values (6, 99, 1)"_s,
                             u"insert into detalle_pack_spa (codigo, codservicio, dia) values (6, 7, 2)"_s});
    ListadoPackSpa(m_puesto.listados);
    EXPECT_EQ(m_puesto.filas(u"texto2,texto21,texto22,texto7,texto8"_s), QStringList{u"Entero|Color|6|Sauna|Dia 2"_s});
    EXPECT_EQ(m_puesto.progreso.pasos, 1);
}

} // namespace
} // namespace kestrane
