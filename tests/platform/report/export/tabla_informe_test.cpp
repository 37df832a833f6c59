#include "platform/report/export/tabla_informe.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeDePrueba;
using testing::ElementsAre;

TEST(TablaInforme, AColumnThatTheStatementDoesNotGiveIsTheLayoutsError)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.columna(u"Nada"_s, u"nada"_s);
    try {
        static_cast<void>(informe.tabla());
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::LayoutIncorrecto);
        EXPECT_TRUE(error.descripcion().contains(u"prueba.rpt"_s)) << error.what();
    }
}

TEST(TablaInforme, ValuesAreThoseOfTheExpressions)
{
    InformeDePrueba informe{{u"a"_s, u"n"_s}};
    informe.columna(u"Doble"_s, u"n * 2"_s, {.formato = Formato::Moneda});
    informe.columna(u"Fila"_s, u"fila"_s);
    informe.fila({u"x"_s, 1.5});
    informe.fila({u"y"_s, Valor{}});
    const TablaInforme tabla = informe.tabla();
    EXPECT_EQ(tabla.filas(), 2);
    EXPECT_EQ(tabla.valores(0).at(0), Valor{3.0});
    EXPECT_EQ(tabla.valores(1).at(0), Valor{});
    EXPECT_EQ(tabla.escrito(tabla.valores(0)[0], 0), u"3,00"_s);
    EXPECT_EQ(tabla.escrito(tabla.valores(1)[1], 1), u"2"_s);
}

TEST(TablaInforme, WithoutColumnsInTheLayoutThoseOfTheStatementStandInTheirOrder)
{
    InformeDePrueba informe{{u"texto1"_s, u"fecha1"_s}};
    informe.fila({u"x"_s, *Fecha::deCalendario(2024, 3, 5)});
    const TablaInforme tabla = informe.tabla();
    ASSERT_EQ(tabla.columnas().size(), 2U);
    EXPECT_EQ(tabla.columnas()[0].titulo, u"texto1"_s);
    EXPECT_EQ(tabla.columnas()[1].titulo, u"fecha1"_s);
    EXPECT_FALSE(tabla.conTotales());
    EXPECT_THAT(tabla.valores(0), ElementsAre(Valor{u"x"_s}, Valor{*Fecha::deCalendario(2024, 3, 5)}));
}

TEST(TablaInforme, AGroupWithoutATitleIsNamedByItsKey)
{
    InformeDePrueba informe{{u"a"_s, u"dia"_s}};
    informe.grupo(u"dia"_s);
    informe.grupo(u"a"_s, u"'Empleado ' & a"_s);
    informe.fila({u"Ana"_s, *Fecha::deCalendario(2024, 3, 5)});
    const TablaInforme tabla = informe.tabla();
    EXPECT_EQ(tabla.grupos(), 2);
    EXPECT_EQ(tabla.tituloDeGrupo(0, 0), u"05/03/2024"_s);
    EXPECT_EQ(tabla.tituloDeGrupo(1, 0), u"Empleado Ana"_s);
}

TEST(TablaInforme, ACountIsAWholeNumberWhateverItCounts)
{
    const ColumnaTabla suma{.titulo = {}, .formato = {.formato = Formato::Moneda, .decimales = 3}, .total = FuncionAgregado::Suma};
    const ColumnaTabla cuenta{.titulo = {}, .formato = {.formato = Formato::Moneda}, .total = FuncionAgregado::Cuenta};
    EXPECT_EQ(suma.formatoTotal(), suma.formato);
    EXPECT_EQ(cuenta.formatoTotal().formato, Formato::Entero);
}

} // namespace
} // namespace kestrane::report
