#include "platform/report/export/xlsx.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeDePrueba;

class Xlsx : public testing::Test
{
protected:
    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(u"año.xlsx"_s); }

    /// What another program reads.
    [[nodiscard]] std::vector<std::string> leido() const
    {
        QProcess lector;
        lector.start(u"/usr/bin/python3"_s, {QStringLiteral(KESTRANE_LEE_XLSX), fichero()});
        EXPECT_TRUE(lector.waitForFinished());
        EXPECT_EQ(lector.exitCode(), 0) << lector.readAllStandardError().toStdString();
        std::vector<std::string> lineas;
        for (const QByteArray& linea : lector.readAllStandardOutput().split('\n'))
            lineas.push_back(linea.toStdString());
        lineas.pop_back(); // behind the last line's end
        return lineas;
    }
    std::vector<std::string> escribeYLee(const InformeDePrueba& informe, std::span<const TablaInforme> subinformes = {})
    {
        EXPECT_TRUE(escribeXlsx(informe.tabla(), fichero(), {}, subinformes));
        return leido();
    }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_carpeta;
};

TEST_F(Xlsx, AFolderThatIsNotThereIsAnError)
{
    const InformeDePrueba informe{{u"a"_s}};
    EXPECT_THROW(escribeXlsx(informe.tabla(), m_carpeta.filePath(u"nada/a.xlsx"_s), {}), ErrorDeSalida);
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Xlsx, MoreRowsThanASheetHasAreRefusedBeforeOneIsWritten)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.filas.valores.resize(1048576, {Valor{}});
    int avisos = 0;
    EXPECT_THROW(escribeXlsx(informe.tabla(), fichero(),
                             [&avisos](double) {
                                 ++avisos;
                                 return false;
                             }),
                 ErrorDeSalida);
    EXPECT_EQ(avisos, 0);
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Xlsx, WhatIsBrokenOffLeavesNothing)
{
    InformeDePrueba informe{{u"a"_s}};
    for (int fila = 0; fila < 1000; ++fila)
        informe.fila({u"x"_s});
    EXPECT_FALSE(escribeXlsx(informe.tabla(), fichero(), [](double hecho) { return hecho < 0.5; }));
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Xlsx, AnErrorInTheMidstLeavesNothing)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.columna(u"Mitad"_s, u"1 / a"_s);
    informe.fila({qint32{1}});
    informe.fila({qint32{0}});
    EXPECT_ANY_THROW(escribeXlsx(informe.tabla(), fichero(), {}));
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Xlsx, CellsAreTyped)
{
    InformeDePrueba informe{{u"t"_s, u"n"_s, u"f"_s}};
    informe.layout.titulo = u"Ventas del año: 2024"_s;
    informe.layout.pagina.tamano = {297, 210};
    informe.columna(u"Texto"_s, u"t"_s);
    informe.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda});
    informe.columna(u"Día"_s, u"f"_s, {.formato = Formato::Fecha});
    informe.fila({u"=1+2 <Ñ> & 😀"_s, 1234.5, *Fecha::deCalendario(2024, 3, 5)});
    informe.fila({Valor{}, u"sin precio"_s, *Fecha::deCalendario(1850, 1, 2)});
    informe.fila({u"0012"_s, qint32{-7}, Valor{}});
    EXPECT_THAT(escribeYLee(informe),
                testing::ElementsAre("sheet\t['Ventas del año- 2024']\tA2\t$1:$1\tlandscape\t9", "title\tVentas del año: 2024",
                                     "levels\t0\t0\t0\t0", "A1\tstr\tTexto\tGeneral\tbold", "B1\tstr\tImporte\tGeneral\tbold",
                                     "C1\tstr\tDía\tGeneral\tbold", "A2\tstr\t=1+2 <Ñ> & 😀\tGeneral\t",
                                     "B2\tfloat\t1234.5\t#,##0.00\t", "C2\tdatetime\t2024-03-05T00:00:00\tdd/mm/yyyy\t",
                                     "B3\tstr\tsin precio\tGeneral\t", "C3\tstr\t02/01/1850\tdd/mm/yyyy\t",
                                     "A4\tstr\t0012\tGeneral\t", "B4\tint\t-7\t#,##0.00\t"));
    EXPECT_EQ(nombres(), QStringList{u"año.xlsx"_s});
}

TEST_F(Xlsx, GroupsAreLevelsWithTitlesAndTotalsAreFigures)
{
    InformeDePrueba informe{{u"a"_s, u"b"_s, u"n"_s}};
    informe.columna(u"Nombre"_s, u"b"_s);
    informe.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    informe.columna(u"Cuántos"_s, u"n"_s, {.formato = Formato::Moneda}, FuncionAgregado::Cuenta);
    informe.grupo(u"a"_s, u"'Sección ' & a"_s);
    informe.grupo(u"b"_s);
    informe.fila({u"x"_s, u"Uno"_s, 0.1});
    informe.fila({u"x"_s, u"Uno"_s, 0.25});
    informe.fila({u"y"_s, u"Dos"_s, 2.0});
    const auto todo = escribeYLee(informe);
    EXPECT_EQ(todo[2], "levels\t0\t0\t1\t2\t2\t1\t0\t0\t1\t2\t1\t0\t0");
    EXPECT_THAT(todo, testing::IsSupersetOf<std::string>(
                          {"A2\tstr\tSección x\tGeneral\tbold", "A3\tstr\tUno\tGeneral\tbold", "A4\tstr\tUno\tGeneral\t",
                           "B4\tfloat\t0.1\t#,##0.00\t", "A6\tstr\tTotal Uno\tGeneral\tbold", "B6\tfloat\t0.35\t#,##0.00\tbold",
                           "C6\tint\t2\t#,##0\tbold", "B7\tfloat\t0.35\t#,##0.00\tbold", "A12\tstr\tTotal Sección y\tGeneral\tbold",
                           "A13\tstr\tTotal\tGeneral\tbold", "B13\tfloat\t2.35\t#,##0.00\tbold"}));
}

TEST_F(Xlsx, WithoutRowsThereIsTheHeading)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.columna(u"Nombre"_s, u"a"_s);
    EXPECT_THAT(escribeYLee(informe), testing::Contains("A1\tstr\tNombre\tGeneral\tbold"));
}

TEST_F(Xlsx, ALayoutWithoutColumnsGivesThoseOfItsStatement)
{
    InformeDePrueba informe{{u"texto1"_s, u"numerico1"_s}};
    informe.fila({u"a"_s, 2.5});
    EXPECT_THAT(escribeYLee(informe),
                testing::IsSupersetOf<std::string>({"A1\tstr\ttexto1\tGeneral\tbold", "B2\tfloat\t2.5\tGeneral\t"}));
}

TEST_F(Xlsx, SubreportsHaveSheetsOfTheirOwn)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.columna(u"Nombre"_s, u"a"_s);
    informe.fila({u"Ana"_s});
    InformeDePrueba resumen{{u"t"_s, u"n"_s}};
    resumen.layout.titulo = u"Resumen"_s;
    resumen.columna(u"Concepto"_s, u"t"_s);
    resumen.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    resumen.fila({u"Caja"_s, 100.5});
    resumen.fila({u"Gastos"_s, -20.0});
    const TablaInforme tablas[] = {resumen.tabla(), resumen.tabla()};
    const auto todo = escribeYLee(informe, tablas);
    EXPECT_TRUE(todo[0].starts_with("sheet\t['Prueba', 'Resumen', 'Resumen 2']\tA2")) << todo[0];
    const std::vector<std::string> resto{todo.begin() + 3, todo.end()};
    const std::vector<std::string> celdas{"A1\tstr\tConcepto\tGeneral\tbold", "B1\tstr\tImporte\tGeneral\tbold",
                                          "A2\tstr\tCaja\tGeneral\t",         "B2\tfloat\t100.5\t#,##0.00\t",
                                          "A3\tstr\tGastos\tGeneral\t",       "B3\tint\t-20\t#,##0.00\t",
                                          "A4\tstr\tTotal\tGeneral\tbold",    "B4\tfloat\t80.5\t#,##0.00\tbold"};
    std::vector<std::string> esperado{"A1\tstr\tNombre\tGeneral\tbold", "A2\tstr\tAna\tGeneral\t", "other\tResumen\tA2"};
    esperado.insert(esperado.end(), celdas.begin(), celdas.end());
    esperado.emplace_back("other\tResumen 2\tA2");
    esperado.insert(esperado.end(), celdas.begin(), celdas.end());
    EXPECT_EQ(resto, esperado);
}

TEST_F(Xlsx, WhatItsColumnDoesNotShowIsBlankAndCounts)
{
    InformeDePrueba informe{{u"a"_s, u"n"_s}};
    informe.columna(u"Nombre"_s, u"a"_s);
    informe.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    informe.mostrar(u"n > 1"_s);
    informe.fila({u"Ana"_s, 1.0});
    informe.fila({u"Eva"_s, 2.0});
    const auto todo = escribeYLee(informe);
    EXPECT_EQ((std::vector<std::string>{todo.begin() + 5, todo.end()}),
              (std::vector<std::string>{"A2\tstr\tAna\tGeneral\t", "A3\tstr\tEva\tGeneral\t", "B3\tint\t2\t#,##0.00\t",
                                        "A4\tstr\tTotal\tGeneral\tbold", "B4\tint\t3\t#,##0.00\tbold"}));
}

TEST_F(Xlsx, LongAndStrangeTextsAreRead)
{
    InformeDePrueba informe{{u"a"_s}};
    informe.fila({QString(10000, u'x')});
    informe.fila({u"a\u0001b\tc\nd"_s});
    informe.fila({u"\u0639\u0631\u0628\u064a"_s});
    const auto todo = escribeYLee(informe);
    EXPECT_THAT(todo, testing::Contains("A2\tstr\t" + std::string(10000, 'x') + "\tGeneral\t"));
    EXPECT_THAT(todo, testing::Contains("A4\tstr\t\u0639\u0631\u0628\u064a\tGeneral\t"));
}

} // namespace
} // namespace kestrane::report
