#include "platform/report/pasada_agregados.h"

#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(PasadaAgregados, ValuesLieByLevelAndRunningOnesByRow)
{
    prueba::LayoutDePrueba prueba;
    prueba.grupo(u"a"_s);
    const Expresion b = prueba.expresion(u"b"_s);
    prueba.layout.agregados = {{FuncionAgregado::Suma, b, 1},
                               {FuncionAgregado::Acumulado, b, 1},
                               {FuncionAgregado::Suma, b, 0},
                               {FuncionAgregado::Minimo, b, 1}};
    const CopiaFilas copia = prueba::copiaDe({u"a"_s, u"b"_s}, {{1, 1.0}, {1, 2.0}, {2, 4.0}});
    const auto regional = ConfiguracionRegional::espania();
    PasadaAgregados pasada{prueba.layout, copia.columnas, regional};
    pasada.recorre(*copia.filas);

    EXPECT_EQ(pasada.lugares()[1].nivel, LugarAgregado::PorFila);
    EXPECT_EQ(pasada.lugares()[3].nivel, 1);
    EXPECT_EQ(pasada.lugares()[3].columna, 1);
    const auto sumas = pasada.tomaSumas();
    EXPECT_EQ(sumas[0]->valor(0, 0), Valor{7.0});
    EXPECT_EQ(sumas[1]->filas(), 2);
    EXPECT_EQ(sumas[1]->valor(0, 0), Valor{3.0});
    EXPECT_EQ(sumas[1]->valor(1, 1), Valor{4.0});
    const auto corrientes = pasada.tomaCorrientes();
    EXPECT_EQ(corrientes->filas(), 3);
    EXPECT_EQ(corrientes->valor(1, 0), Valor{3.0});
    EXPECT_EQ(corrientes->valor(2, 0), Valor{4.0});
    EXPECT_EQ(pasada.tomaCortes().grupoDe(2, 1), 1);
}

TEST(PasadaAgregados, ATextThatIsNoNumberIsToldWithItsPlace)
{
    prueba::LayoutDePrueba prueba;
    prueba.layout.agregados = {{FuncionAgregado::Suma, prueba.expresion(u"a"_s), 0}};
    const CopiaFilas copia = prueba::copiaDe({u"a"_s}, {{u"doce"_s}});
    const auto regional = ConfiguracionRegional::espania();
    PasadaAgregados pasada{prueba.layout, copia.columnas, regional};
    try {
        pasada.recorre(*copia.filas);
        FAIL() << "added";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::TiposNoCoinciden);
        EXPECT_TRUE(error.descripcion().endsWith(u"prueba.rpt, línea 1"_s)) << error.what();
    }
}

} // namespace
} // namespace kestrane::report
