#include "platform/report/export/html.h"

#include "platform/report/export/informe_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gmock/gmock.h>

#include <QBuffer>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeDePrueba;
using testing::HasSubstr;

std::string html(const InformeDePrueba& informe)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    EXPECT_TRUE(escribeHtml(informe.tabla(), destino, {}));
    return destino.data().toStdString();
}

/// From the table's head on.
std::string tabla(const InformeDePrueba& informe)
{
    const std::string todo = html(informe);
    return todo.substr(todo.find("<thead>"));
}

TEST(Html, AnOutputThatIsFullIsAnError)
{
    const InformeDePrueba informe{{u"t"_s}};
    prueba::DiscoLleno destino;
    EXPECT_THROW(escribeHtml(informe.tabla(), destino, {}), ErrorDeSalida);
}

TEST(Html, ItCanBeBrokenOff)
{
    const InformeDePrueba informe{{u"t"_s}};
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    EXPECT_FALSE(escribeHtml(informe.tabla(), destino, [](double) { return false; }));
}

TEST(Html, WhatIsWrittenFromTheRightReadsFromTheRight)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.columna(u"Nombre"_s, u"t"_s);
    informe.fila({u"שלום (1)"_s});
    informe.fila({u"Ana"_s});
    EXPECT_THAT(html(informe), HasSubstr("<tr><td dir=\"rtl\">שלום (1)</td></tr>\n<tr><td>Ana</td></tr>"));
}

TEST(Html, NothingInTheDataIsTakenForMarkup)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.layout.titulo = u"<b>Uno & \"dos\"</b>"_s;
    informe.columna(u"<i>"_s, u"t"_s);
    informe.fila({u"<script>alert('%2')</script>"_s});
    EXPECT_THAT(html(informe), HasSubstr("<title>&lt;b&gt;Uno &amp; &quot;dos&quot;&lt;/b&gt;</title>"));
    EXPECT_EQ(tabla(informe), "<thead><tr><th scope=\"col\">&lt;i&gt;</th></tr></thead>\n<tbody>\n"
                              "<tr><td>&lt;script&gt;alert('%2')&lt;/script&gt;</td></tr>\n"
                              "</tbody>\n</table>\n</body>\n</html>\n");
}

TEST(Html, ItNeedsNothingBesideItAndSaysItsLanguageAndPaper)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.layout.pagina.tamano = {297, 210};
    const std::string todo = html(informe);
    EXPECT_THAT(todo, HasSubstr("<html lang=\"es\">"));
    EXPECT_THAT(todo, HasSubstr("<meta charset=\"utf-8\">"));
    EXPECT_THAT(todo, HasSubstr("@page { size: 297mm 210mm;"));
    EXPECT_THAT(todo, HasSubstr("thead { display: table-header-group; }"));
    EXPECT_EQ(todo.find("http"), std::string::npos);
}

TEST(Html, GroupsHaveHeadingsAndTotals)
{
    InformeDePrueba informe{{u"seccion"_s, u"nombre"_s, u"precio"_s}};
    informe.columna(u"Nombre"_s, u"nombre"_s);
    informe.columna(u"Precio"_s, u"precio"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    informe.grupo(u"seccion"_s, u"'Sección ' & seccion"_s);
    informe.fila({u"A"_s, u"Uno"_s, 1000.5});
    informe.fila({u"A"_s, u"Dos"_s, 2.25});
    informe.fila({u"B"_s, u"Tres"_s, -1.0});
    EXPECT_EQ(tabla(informe),
              "<thead><tr><th scope=\"col\">Nombre</th><th scope=\"col\" class=\"d\">Precio</th></tr></thead>\n<tbody>\n"
              "<tr class=\"grupo n0\"><th scope=\"rowgroup\" colspan=\"2\">Sección A</th></tr>\n"
              "<tr><td>Uno</td><td class=\"d\">1.000,50</td></tr>\n"
              "<tr><td>Dos</td><td class=\"d\">2,25</td></tr>\n"
              "<tr class=\"total\"><th scope=\"row\">Total Sección A</th><td class=\"d\">1.002,75</td></tr>\n"
              "<tr class=\"grupo n0\"><th scope=\"rowgroup\" colspan=\"2\">Sección B</th></tr>\n"
              "<tr><td>Tres</td><td class=\"d\">-1,00</td></tr>\n"
              "<tr class=\"total\"><th scope=\"row\">Total Sección B</th><td class=\"d\">-1,00</td></tr>\n"
              "<tr class=\"total\"><th scope=\"row\">Total</th><td class=\"d\">1.001,75</td></tr>\n"
              "</tbody>\n</table>\n</body>\n</html>\n");
}

TEST(Html, SubreportsStandBelowTheRows)
{
    InformeDePrueba informe{{u"t"_s}};
    informe.columna(u"Nombre"_s, u"t"_s);
    informe.fila({u"Ana"_s});
    InformeDePrueba resumen{{u"n"_s}};
    resumen.layout.titulo = u"Resumen & más"_s;
    resumen.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda});
    resumen.fila({-20.0});
    const TablaInforme tablas[] = {resumen.tabla()};
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    ASSERT_TRUE(escribeHtml(informe.tabla(), destino, {}, tablas));
    EXPECT_TRUE(destino.data().endsWith("<tr><td>Ana</td></tr>\n</tbody>\n</table>\n"
                                        "<h2>Resumen &amp; más</h2>\n<table aria-label=\"Resumen &amp; más\">\n"
                                        "<thead><tr><th scope=\"col\" class=\"d\">Importe</th></tr></thead>\n<tbody>\n"
                                        "<tr><td class=\"d\">-20,00</td></tr>\n</tbody>\n</table>\n</body>\n</html>\n"))
        << destino.data().toStdString();
}

TEST(Html, WhatItsColumnDoesNotShowIsBlankAndCounts)
{
    InformeDePrueba informe{{u"n"_s}};
    informe.columna(u"Importe"_s, u"n"_s, {.formato = Formato::Moneda}, FuncionAgregado::Suma);
    informe.mostrar(u"n > 1"_s);
    informe.fila({1.0});
    informe.fila({2.0});
    EXPECT_THAT(tabla(informe), HasSubstr("<tbody>\n<tr><td class=\"d\"></td></tr>\n<tr><td class=\"d\">2,00</td></tr>\n"
                                          "<tr class=\"total\"><td class=\"d\">3,00</td></tr>\n"));
}

} // namespace
} // namespace kestrane::report
