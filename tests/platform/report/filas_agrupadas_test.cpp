#include "platform/report/filas_agrupadas.h"

#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::LayoutDePrueba;
using testing::ElementsAre;

const QStringList Columnas{u"tienda"_s, u"seccion"_s, u"importe"_s};

CopiaFilas ventas()
{
    return copiaDe(Columnas, {{u"Sur"_s, u"B"_s, 1.0},
                              {u"Norte"_s, u"A"_s, 2.0},
                              {u"sur"_s, u"A"_s, 4.0},
                              {u"Norte"_s, u"A"_s, Valor{}},
                              {u"Sur"_s, u"B"_s, 16.0},
                              {Valor{}, u"A"_s, 32.0}});
}

std::vector<Valor> columna(const FilasInforme& filas, int cual)
{
    std::vector<Valor> valores;
    for (qsizetype i = 0; i < filas.filas(); ++i)
        valores.push_back(filas.valor(i, cual));
    return valores;
}

std::vector<int> cortes(const FilasInforme& filas)
{
    std::vector<int> empiezan;
    for (qsizetype i = 0; i < filas.filas(); ++i)
        empiezan.push_back(filas.gruposQueEmpiezan(i));
    return empiezan;
}

std::vector<Valor> agregado(const FilasInforme& filas, int indice)
{
    std::vector<Valor> valores;
    for (qsizetype i = 0; i < filas.filas(); ++i)
        valores.push_back(filas.agregado(i, indice));
    return valores;
}

FilasAgrupadas agrupa(const LayoutDePrueba& prueba, const CopiaFilas& copia)
{
    return FilasAgrupadas{prueba.layout, copia, ConfiguracionRegional::espania()};
}

TEST(FilasAgrupadas, WithoutKeysTheOrderIsTheStatements)
{
    const LayoutDePrueba prueba;
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    EXPECT_THAT(columna(filas, 2), ElementsAre(1.0, 2.0, 4.0, Valor{}, 16.0, 32.0));
    EXPECT_THAT(cortes(filas), ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST(FilasAgrupadas, GroupsSortNullFirstCaseIgnoredTiesInStoredOrder)
{
    LayoutDePrueba prueba;
    prueba.grupo(u"tienda"_s);
    prueba.grupo(u"seccion"_s);
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    EXPECT_THAT(columna(filas, 2), ElementsAre(32.0, 2.0, Valor{}, 4.0, 1.0, 16.0));
    EXPECT_THAT(cortes(filas), ElementsAre(2, 2, 0, 2, 1, 0));
}

TEST(FilasAgrupadas, TheLayoutsKeysSortWithinGroups)
{
    LayoutDePrueba prueba;
    prueba.grupo(u"tienda"_s).descendente = true;
    prueba.layout.orden.push_back({prueba.expresion(u"importe"_s), true});
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    EXPECT_THAT(columna(filas, 2), ElementsAre(16.0, 4.0, 1.0, 2.0, Valor{}, 32.0));
    EXPECT_THAT(cortes(filas), ElementsAre(1, 0, 0, 1, 0, 1));
}

TEST(FilasAgrupadas, AGroupThatDoesNotSortCutsWhereItsKeyChanges)
{
    LayoutDePrueba prueba;
    prueba.grupo(u"seccion"_s).ordena = false;
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    EXPECT_THAT(columna(filas, 2), ElementsAre(1.0, 2.0, 4.0, Valor{}, 16.0, 32.0));
    EXPECT_THAT(cortes(filas), ElementsAre(1, 1, 0, 0, 1, 1));
}

TEST(FilasAgrupadas, KeysMayBeReckoned)
{
    LayoutDePrueba prueba;
    prueba.layout.orden.push_back({prueba.expresion(u"0 - importe"_s), false});
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    EXPECT_THAT(columna(filas, 2), ElementsAre(Valor{}, 32.0, 16.0, 4.0, 2.0, 1.0));
}

TEST(FilasAgrupadas, AggregatesBelongToTheReportOrToAGroup)
{
    LayoutDePrueba prueba;
    prueba.grupo(u"tienda"_s);
    prueba.layout.agregados = {{FuncionAgregado::Suma, prueba.expresion(u"importe"_s), 0},
                               {FuncionAgregado::Suma, prueba.expresion(u"importe"_s), 1},
                               {FuncionAgregado::Cuenta, Expresion{}, 1},
                               {FuncionAgregado::Acumulado, prueba.expresion(u"importe"_s), 1},
                               {FuncionAgregado::Acumulado, prueba.expresion(u"importe"_s), 0},
                               {FuncionAgregado::Media, prueba.expresion(u"importe"_s), 0}};
    const FilasAgrupadas filas = agrupa(prueba, ventas());
    // Sorted: Null 32, Norte 2 and Null, Sur 1, 4, 16.
    EXPECT_THAT(agregado(filas, 0), testing::Each(Valor{55.0}));
    EXPECT_THAT(agregado(filas, 1), ElementsAre(32.0, 2.0, 2.0, 21.0, 21.0, 21.0));
    EXPECT_THAT(agregado(filas, 2), ElementsAre(1, 2, 2, 3, 3, 3));
    EXPECT_THAT(agregado(filas, 3), ElementsAre(32.0, 2.0, 2.0, 1.0, 5.0, 21.0));
    EXPECT_THAT(agregado(filas, 4), ElementsAre(32.0, 34.0, 34.0, 35.0, 39.0, 55.0));
    EXPECT_THAT(agregado(filas, 5), testing::Each(Valor{11.0}));
}

TEST(FilasAgrupadas, WithoutRowsSumsAreZero)
{
    LayoutDePrueba prueba;
    prueba.grupo(u"tienda"_s);
    prueba.layout.agregados = {{FuncionAgregado::Suma, prueba.expresion(u"importe"_s), 0},
                               {FuncionAgregado::Maximo, prueba.expresion(u"importe"_s), 0},
                               {FuncionAgregado::Acumulado, prueba.expresion(u"importe"_s), 0}};
    const FilasAgrupadas filas = agrupa(prueba, copiaDe(Columnas, {}));
    EXPECT_EQ(filas.filas(), 0);
    EXPECT_EQ(filas.agregado(0, 0), Valor{0.0});
    EXPECT_EQ(filas.agregado(0, 1), Valor{});
    EXPECT_EQ(filas.agregado(0, 2), Valor{0.0});
}

TEST(FilasAgrupadas, ManyRowsSortInFiles)
{
    std::vector<std::vector<Valor>> muchas;
    for (int i = 0; i < 300'000; ++i)
        muchas.push_back({u"tienda con un nombre largo %1"_s.arg(i % 7), u"A"_s, static_cast<double>(i)});
    LayoutDePrueba prueba;
    prueba.grupo(u"tienda"_s);
    prueba.layout.agregados = {{FuncionAgregado::Cuenta, Expresion{}, 1}};
    const FilasAgrupadas filas = agrupa(prueba, copiaDe(Columnas, muchas));
    // Rows 0, 7, 14 .. 299999 have the first key: 42858 of them.
    EXPECT_EQ(filas.agregado(0, 0), Valor{42858});
    EXPECT_EQ(filas.valor(42857, 2), Valor{299'999.0});
    EXPECT_EQ(filas.gruposQueEmpiezan(42858), 1);
    EXPECT_EQ(filas.valor(42858, 2), Valor{1.0});
}

TEST(FilasAgrupadas, AColumnThatIsNotThereIsRefused)
{
    LayoutDePrueba prueba;
    prueba.layout.orden.push_back({prueba.expresion(u"precio"_s), false});
    try {
        static_cast<void>(agrupa(prueba, ventas()));
        FAIL() << "accepted";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::LayoutIncorrecto);
    }
}

} // namespace
} // namespace kestrane::report
