#include "pipeline/filtros/paneles.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class PanelesTest : public testing::Test
{
protected:
    PanelesTest() { m_contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s); }

    ArrayPanel carga(PanelDe panel, BotonDeTodos todos = BotonDeTodos::Sin)
    {
        return cargaPanel(m_contexto, panel, todos, {u"101"_s, u"102"_s, u"103"_s, u"104"_s});
    }
    void seccion(int codigo, const QString& valores)
    {
        m_tienda.ejecuta(
            u"insert into seccion (codigo, nombre, posicion, borrar, sec_color, color) values (%1, 'S%1', %1, 0, %2)"_s.arg(codigo)
                .arg(valores));
    }
    void empleado(int codigo, const QString& valores)
    {
        m_tienda.ejecuta(
            u"insert into empleados (codigo, nombre, posicion, baja, mostrar_caja, apellidos, imagen, emp_color, color) "
            u"values (%1, 'E%1', %1, 0, -1, %2)"_s.arg(codigo)
                .arg(valores));
    }
    static QStringList colores(const ArrayPanel& elementos)
    {
        QStringList lista;
        for (int i = 0; i <= elementos.limiteSuperior(); ++i)
            lista += elementos[i].ColorFondo;
        return lista;
    }
    static QStringList textos(const ArrayPanel& elementos)
    {
        QStringList lista;
        for (int i = 0; i <= elementos.limiteSuperior(); ++i)
            lista += elementos[i].Texto;
        return lista;
    }

    prueba::TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
};

TEST_F(PanelesTest, WithoutRecordsAnArrayHoldsTheButtonForAllOrStaysUnallocated)
{
    for (const PanelDe panel : {PanelDe::Secciones, PanelDe::Empleados, PanelDe::Proveedores}) {
        EXPECT_FALSE(carga(panel).reservado());
        const ArrayPanel conTodos = carga(panel, BotonDeTodos::Con);
        ASSERT_TRUE(conTodos.reservado());
        EXPECT_EQ(conTodos.limiteSuperior(), 0);
        EXPECT_EQ(codigoDe(conTodos[0]), -1);
    }
    EXPECT_THROW((void)carga(PanelDe::Secciones).limiteSuperior(), ErrorEjecucion);
}

TEST_F(PanelesTest, TheBoundsAreFromZeroToTheNumberOfRecordsSoThatTheLastElementIsBlank)
{
    seccion(1, u"null, null"_s);
    seccion(2, u"null, null"_s);
    const ArrayPanel elementos = carga(PanelDe::Secciones);
    EXPECT_EQ(elementos.limiteSuperior(), 2);
    EXPECT_EQ(elementos[2], ElementoPanel{});
    EXPECT_EQ(textos(elementos), (QStringList{u"S1"_s, u"S2"_s, QString{}}));
}

TEST_F(PanelesTest, WithTheButtonForAllItStandsFirstWithCodeMinusOne)
{
    seccion(7, u"null, null"_s);
    m_tienda.ejecuta({u"insert into proveedores (codigo, nombre, posicion, borrar) values (9, 'Aqua', 1, 0)"_s,
                      u"insert into empleados (codigo, nombre, posicion, baja, mostrar_caja) values (3, 'Luz', 1, 0, -1)"_s});
    const std::tuple<PanelDe, QString, QString> casos[] = {{PanelDe::Secciones, u"Todas las Secciones"_s, u"7"_s},
                                                           {PanelDe::Empleados, u"Todos los Empleados"_s, u"3"_s},
                                                           {PanelDe::Proveedores, u"Todos los Proveedores"_s, u"9"_s}};
    for (const auto& [panel, todos, codigo] : casos) {
        const ArrayPanel elementos = carga(panel, BotonDeTodos::Con);
        ASSERT_EQ(elementos.limiteSuperior(), 1);
        EXPECT_EQ(elementos[0].Texto, todos);
        EXPECT_EQ(elementos[0].Nombre, todos);
        EXPECT_EQ(elementos[0].Codigo, u"-1"_s);
        EXPECT_EQ(elementos[1].Codigo, codigo);
        EXPECT_EQ(codigoDe(elementos[0]), -1);
    }
}

TEST_F(PanelesTest, RecordsComeByTheirPlacesAndTheDeletedNotAtAll)
{
    m_tienda.ejecuta({u"insert into seccion (codigo, nombre, posicion, borrar) values (1, 'Última', 9, 0)"_s,
                      u"insert into seccion (codigo, nombre, posicion, borrar) values (2, 'Primera', 1, 0)"_s,
                      u"insert into seccion (codigo, nombre, posicion, borrar) values (3, 'Vieja', 2, -1)"_s});
    EXPECT_EQ(textos(carga(PanelDe::Secciones)), (QStringList{u"Primera"_s, u"Última"_s, QString{}}));
}

TEST_F(PanelesTest, EmployeesWhoWorkAndStandAtTheTillAreShownWithBothNames)
{
    empleado(1, u"'Gil & Ruiz', null, null, null"_s);
    empleado(2, u"null, null, null, null"_s);
    m_tienda.ejecuta({u"insert into empleados (codigo, nombre, baja, mostrar_caja) values (3, 'Baja', -1, -1)"_s,
                      u"insert into empleados (codigo, nombre, baja, mostrar_caja) values (4, 'Oculta', 0, 0)"_s});
    const ArrayPanel elementos = carga(PanelDe::Empleados);
    EXPECT_EQ(textos(elementos), (QStringList{u"E1 Gil & Ruiz"_s, u"E2 "_s, QString{}}));
    EXPECT_EQ(elementos[0].Nombre, u"E1 Gil & Ruiz"_s);
}

TEST_F(PanelesTest, WithoutAColourOfTheirOwnElementsTakeTheFourInTurnAndTheFifthTheFirstAgain)
{
    seccion(1, u"null, '255'"_s);
    seccion(2, u"'', '255'"_s);
    seccion(3, u"'0', '255'"_s);
    seccion(4, u"null, null"_s);
    seccion(5, u"null, null"_s);
    EXPECT_EQ(colores(carga(PanelDe::Secciones)), (QStringList{u"101"_s, u"102"_s, u"103"_s, u"104"_s, u"101"_s, QString{}}));
}

TEST_F(PanelesTest, AColourOfTheirOwnCostsNoTurnAndOneThatIsMissingIsWhite)
{
    seccion(1, u"'-1', '16744576'"_s);
    seccion(2, u"null, null"_s);
    seccion(3, u"'-1', null"_s);
    seccion(4, u"'S', 'rojo'"_s);
    seccion(5, u"null, null"_s);
    EXPECT_EQ(colores(carga(PanelDe::Secciones)),
              (QStringList{u"16744576"_s, u"101"_s, u"16777215"_s, u"rojo"_s, u"102"_s, QString{}}));
}

TEST_F(PanelesTest, AnEmptyColourGivesAnEmployeeATurnAndASectionNothing)
{
    empleado(1, u"null, null, '-1', ''"_s);
    empleado(2, u"null, null, '-1', null"_s);
    seccion(1, u"'-1', ''"_s);
    EXPECT_EQ(colores(carga(PanelDe::Empleados)), (QStringList{u"101"_s, u"16777215"_s, QString{}}));
    EXPECT_EQ(colores(carga(PanelDe::Secciones)), (QStringList{u""_s, QString{}}));
}

TEST_F(PanelesTest, TheTurnBeginsAnewWithEachLoad)
{
    seccion(1, u"null, null"_s);
    (void)carga(PanelDe::Secciones);
    EXPECT_EQ(carga(PanelDe::Secciones)[0].ColorFondo, u"101"_s);
}

TEST_F(PanelesTest, PicturesOfEmployeesLieInTheirFolderAndThoseOfSectionsAreAsTheyStand)
{
    m_contexto.RutaFotos = u"C:\\listados\\fotos\\"_s;
    empleado(1, u"null, 'ana.png', null, null"_s);
    empleado(2, u"null, null, null, null"_s);
    m_tienda.ejecuta({u"insert into seccion (codigo, nombre, posicion, borrar, imagen) values (1, 'A', 1, 0, 'secciones\\a.png')"_s,
                      u"insert into seccion (codigo, nombre, posicion, borrar) values (2, 'B', 2, 0)"_s,
                      u"insert into proveedores (codigo, nombre, borrar, imagen) values (1, 'A', 0, 'aqua.png')"_s});
    EXPECT_EQ(carga(PanelDe::Empleados)[0].Imagen, u"C:\\listados\\fotos\\ana.png"_s);
    EXPECT_EQ(carga(PanelDe::Empleados)[1].Imagen, u""_s);
    EXPECT_EQ(carga(PanelDe::Secciones)[0].Imagen, u"secciones\\a.png"_s);
    EXPECT_EQ(carga(PanelDe::Secciones)[1].Imagen, u""_s);
    EXPECT_EQ(carga(PanelDe::Proveedores)[0].Imagen, u"aqua.png"_s);
}

TEST_F(PanelesTest, ARecordWithoutANameHasItsCodeAllTheSame)
{
    m_tienda.ejecuta(u"insert into seccion (codigo, posicion, borrar) values (6, 1, 0)"_s);
    const ArrayPanel elementos = carga(PanelDe::Secciones, BotonDeTodos::Con);
    EXPECT_EQ(elementos[1].Texto, u""_s);
    EXPECT_EQ(codigoDe(elementos[1]), 6);
}

TEST_F(PanelesTest, TwoHundredEmployeesAllCome)
{
    for (int codigo = 1; codigo <= 200; ++codigo)
        empleado(codigo, u"null, null, null, null"_s);
    const ArrayPanel elementos = carga(PanelDe::Empleados, BotonDeTodos::Con);
    ASSERT_EQ(elementos.limiteSuperior(), 200);
    EXPECT_EQ(elementos[200].Codigo, u"200"_s);
    EXPECT_EQ(elementos[200].ColorFondo, u"104"_s);
}

} // namespace
} // namespace kestrane
