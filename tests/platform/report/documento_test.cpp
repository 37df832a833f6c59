#include "platform/report/documento.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gmock/gmock.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::LayoutDePrueba;
using prueba::textosDe;
using testing::ElementsAre;

LayoutDePrueba lista()
{
    LayoutDePrueba prueba;
    prueba.layout.sentencia = u"select texto1, numerico1 from informes"_s;
    prueba.layout.detalle.push_back(prueba.banda(10, u"texto1"_s));
    prueba.layout.piePagina.push_back(prueba.banda(10, u"'Página ' & pagina"_s));
    return prueba;
}

void llena(prueba::TiendaDePrueba& tienda, int filas)
{
    for (int i = 1; i <= filas; ++i)
        tienda.ejecutaListados(u"insert into informes (texto1, numerico1) values ('fila %1', %1)"_s.arg(i));
}

TEST(Documento, RowsComeFromTheDatabaseAndPagesFollow)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 5);
    LayoutDePrueba prueba = lista();
    prueba.altoUtil(40); // three rows and the footer
    Documento documento{prueba.layout, tienda.entorno()};
    EXPECT_EQ(documento.filas().filas(), 5);
    EXPECT_EQ(documento.filas().columnas(), (QStringList{u"texto1"_s, u"numerico1"_s}));
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"fila 1"_s, u"fila 2"_s, u"fila 3"_s, u"Página 1"_s));
    EXPECT_THAT(textosDe(documento.pagina(1)), ElementsAre(u"fila 4"_s, u"fila 5"_s, u"Página 2"_s));
    EXPECT_TRUE(documento.pagina(2).primitivas.empty());
    EXPECT_EQ(documento.paginas(), 2);
}

TEST(Documento, OutlivesTheRowsOfItsTables)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 2);
    Documento documento{lista().layout, tienda.entorno()};
    tienda.ejecutaListados(u"delete * from informes"_s);
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"fila 1"_s, u"fila 2"_s, u"Página 1"_s));
}

TEST(Documento, AmountsHaveTheShopsDecimals)
{
    prueba::TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into informes (numerico1) values (1234.5678)"_s);
    LayoutDePrueba prueba;
    prueba.layout.sentencia = u"select numerico1 from informes"_s;
    Banda banda = prueba.banda(10, u"numerico1"_s);
    std::get<Texto>(banda.elementos.front()).formato.formato = Formato::Moneda;
    prueba.layout.detalle = {banda, prueba.banda(10, u"'Total ' & formato(suma(numerico1); 'moneda')"_s)};
    const auto enPapel = [&](int decimales) {
        tienda.entorno().ponDecimales(decimales);
        return textosDe(Documento{prueba.layout, tienda.entorno()}.pagina(0));
    };
    EXPECT_THAT(enPapel(0), ElementsAre(u"1.235"_s, u"Total 1.235"_s));
    EXPECT_THAT(enPapel(2), ElementsAre(u"1.234,57"_s, u"Total 1.234,57"_s));
    EXPECT_THAT(enPapel(3), ElementsAre(u"1.234,568"_s, u"Total 1.234,568"_s));
}

TEST(Documento, PagesAreLaidOutAsFarAsTheyAreAskedFor)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 30);
    LayoutDePrueba prueba = lista();
    prueba.altoUtil(110); // ten rows a page
    Documento documento{prueba.layout, tienda.entorno()};
    EXPECT_EQ(documento.paginas(), 0);
    EXPECT_FALSE(documento.avanza(QDeadlineTimer{0}));
    EXPECT_EQ(documento.paginas(), 1);
    EXPECT_NEAR(documento.avance(), 1.0 / 3, 0.001);
    documento.completa();
    EXPECT_TRUE(documento.completo());
    EXPECT_EQ(documento.paginas(), 3);
    EXPECT_EQ(documento.avance(), 1);
    EXPECT_TRUE(documento.avanza(QDeadlineTimer{0}));
}

TEST(Documento, ARefusedStatementNamesTheLayout)
{
    prueba::TiendaDePrueba tienda;
    LayoutDePrueba prueba = lista();
    prueba.layout.sentencia = u"select texto99 from informes"_s;
    prueba.layout.lineaSentencia = 7;
    try {
        const Documento documento{prueba.layout, tienda.entorno()};
        FAIL() << "refused";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::SentenciaRechazada);
        EXPECT_TRUE(error.descripcion().endsWith(u"prueba.rpt, línea 7"_s)) << error.what();
    }
}

TEST(Documento, LaidOutAnewItKeepsItsRows)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 2);
    LayoutDePrueba prueba = lista();
    Documento documento{prueba.layout, tienda.entorno()};
    tienda.ejecutaListados(u"delete * from informes"_s);
    prueba.layout.orden.push_back({prueba.expresion(u"numerico1"_s), true});
    documento.actualiza(prueba.layout);
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"fila 2"_s, u"fila 1"_s, u"Página 1"_s));
}

TEST(Documento, ALayoutThatDoesNotFitLeavesItAsItWas)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 1);
    LayoutDePrueba prueba = lista();
    Documento documento{prueba.layout, tienda.entorno()};
    prueba.layout.detalle.push_back(prueba.banda(10, u"texto2"_s)); // which the statement did not ask for
    EXPECT_THROW(documento.actualiza(prueba.layout), ErrorEjecucion);
    EXPECT_THAT(textosDe(documento.pagina(0)), ElementsAre(u"fila 1"_s, u"Página 1"_s));
}

TEST(Documento, AColumnOfANewStatementNeedsTheReportAnew)
{
    prueba::TiendaDePrueba tienda;
    llena(tienda, 1);
    LayoutDePrueba prueba = lista();
    Documento documento{prueba.layout, tienda.entorno()};
    const auto motivo = [&] {
        try {
            documento.actualiza(prueba.layout);
        } catch (const ErrorEjecucion& error) {
            return error.descripcion();
        }
        return QString{};
    };
    prueba.layout.detalle.push_back(prueba.banda(10, u"texto2"_s));
    EXPECT_FALSE(motivo().isEmpty());
    EXPECT_FALSE(motivo().contains(u"Vuelva a sacar el informe."_s)) << "the statement is the same";
    prueba.layout.sentencia = u"select texto1, texto2, numerico1 from informes"_s;
    EXPECT_TRUE(motivo().endsWith(u"Vuelva a sacar el informe."_s)) << motivo().toStdString();
}

} // namespace
} // namespace kestrane::report
