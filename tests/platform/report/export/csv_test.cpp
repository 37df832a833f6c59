#include "platform/report/export/csv.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeDePrueba;

std::string csv(const InformeDePrueba& informe)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    EXPECT_TRUE(escribeCsv(informe.tabla(), destino, {}));
    return destino.data().toStdString();
}

/// What a text becomes in a field.
std::string campo(const QString& texto)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.columna(u"T"_s, u"t"_s);
    informe.fila({texto});
    const std::string todo = csv(informe);
    const std::string cabeza = "\xEF\xBB\xBFT\r\n";
    EXPECT_EQ(todo.substr(0, cabeza.size()), cabeza);
    return todo.substr(cabeza.size(), todo.size() - cabeza.size() - 2);
}

TEST(Csv, AnOutputThatIsFullIsAnError)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.fila({u"a"_s});
    prueba::DiscoLleno destino;
    EXPECT_THROW(escribeCsv(informe.tabla(), destino, {}), ErrorDeSalida);
}

TEST(Csv, ItCanBeBrokenOff)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.fila({u"a"_s});
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    EXPECT_FALSE(escribeCsv(informe.tabla(), destino, [](double) { return false; }));
}

/// Texts and the fields that they become.
using Campos = std::vector<std::pair<QString, std::string>>;

void comparaCampos(const Campos& campos)
{
    for (const auto& [texto, esperado] : campos)
        EXPECT_EQ(campo(texto), esperado);
}

TEST(Csv, WhatASpreadsheetWouldReckonStaysText)
{
    comparaCampos({{u"=1+2"_s, "'=1+2"},
                   {u"@SUM(A1)"_s, "'@SUM(A1)"},
                   {u"-2+cmd|' /C calc'!A0"_s, "'-2+cmd|' /C calc'!A0"},
                   {u"+A1"_s, "'+A1"},
                   {u"=HYPERLINK(\"x\";\"y\")"_s, "\"'=HYPERLINK(\"\"x\"\";\"\"y\"\")\""},
                   {u"\t=1"_s, "'\t=1"},
                   {u"+34 600 111 222"_s, "+34 600 111 222"},
                   {u"-12,50"_s, "-12,50"},
                   {u"a=1"_s, "a=1"}});
}

TEST(Csv, WhatWouldEndAFieldIsQuoted)
{
    comparaCampos({{u"a;b"_s, "\"a;b\""},
                   {u"di \"ya\""_s, "\"di \"\"ya\"\"\""},
                   {u"dos\nlíneas"_s, "\"dos\nlíneas\""},
                   {u"Ñandú, S.L."_s, "Ñandú, S.L."},
                   {u""_s, ""}});
}

TEST(Csv, RowsStandUnderTheLayoutsHeadingsWithBareNumbers)
{
    InformeDePrueba informe{{u"nombre"_s, u"precio"_s, u"dia"_s}};
    informe.columna(u"Artículo; nombre"_s, u"nombre"_s);
    informe.columna(u"Doble"_s, u"precio * 2"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    informe.columna(u"Día"_s, u"dia"_s, {.formato = Formato::Fecha});
    informe.fila({u"Champú"_s, 1234.25, *Fecha::deCalendario(2024, 3, 5, 9, 5)});
    informe.fila({Valor{}, Valor{}, Valor{}});
    EXPECT_EQ(csv(informe), "\xEF\xBB\xBF\"Artículo; nombre\";Doble;Día\r\nChampú;2468,5;05/03/2024\r\n;;\r\n");
}

TEST(Csv, WhatItsColumnDoesNotShowIsBlank)
{
    InformeDePrueba informe{{u"nombre"_s, u"precio"_s}};
    informe.columna(u"Nombre"_s, u"nombre"_s);
    informe.columna(u"Precio"_s, u"precio"_s, {.formato = Formato::Moneda});
    informe.mostrar(u"precio <> 0"_s);
    informe.fila({u"A"_s, 0.0});
    informe.fila({u"B"_s, 1.5});
    informe.fila({u"C"_s, Valor{}});
    EXPECT_EQ(csv(informe), "\xEF\xBB\xBFNombre;Precio\r\nA;\r\nB;1,5\r\nC;\r\n");
}

TEST(Csv, WithoutRowsThereAreTheHeadings)
{
    InformeDePrueba informe{{u"nombre"_s}};
    informe.columna(u"Nombre"_s, u"nombre"_s);
    EXPECT_EQ(csv(informe), "\xEF\xBB\xBFNombre\r\n");
}

TEST(Csv, ALayoutWithoutColumnsGivesThoseOfItsStatement)
{
    InformeDePrueba informe{{u"texto1"_s, u"numerico1"_s}};
    informe.fila({u"a"_s, qint32{7}});
    EXPECT_EQ(csv(informe), "\xEF\xBB\xBFtexto1;numerico1\r\na;7\r\n");
}

} // namespace
} // namespace kestrane::report
