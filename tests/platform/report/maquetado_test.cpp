#include "platform/report/maquetado.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(CopiasDeInforme, EachStatementRunsOnce)
{
    prueba::TiendaDePrueba tienda;
    tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    Layout layout;
    layout.sentencia = u"select texto1 from informes"_s;
    CopiasDeInforme copias;
    const CopiaFilas primera = copias.de(layout, &tienda.entorno());
    tienda.ejecutaListados(u"delete * from informes"_s);
    EXPECT_EQ(copias.de(layout, &tienda.entorno()).filas, primera.filas);
    EXPECT_EQ(copias.de(layout, nullptr).filas->filas(), 1);
    layout.sentencia = u"select texto2 from informes"_s;
    EXPECT_THROW(static_cast<void>(copias.de(layout, nullptr)), ErrorEjecucion);
    EXPECT_EQ(copias.de(layout, &tienda.entorno()).filas->filas(), 0);
}

TEST(Maquetado, AnyPageIsComposedAnewAsItWasLaidOut)
{
    prueba::LayoutDePrueba prueba;
    prueba.altoUtil(30);
    prueba.layout.detalle.push_back(prueba.banda(10, u"n"_s));
    prueba::PaginasDePrueba paginas{prueba.layout, prueba::copiaNumerada(300)};
    static_cast<void>(paginas.paginas());
    Maquetado& maquetado = paginas.maquetado();
    ASSERT_EQ(maquetado.paginas(), 100);
    for (const int pagina : {99, 0, 50, 49}) {
        const QStringList esperados{QString::number(3 * pagina + 1), QString::number(3 * pagina + 2),
                                    QString::number(3 * pagina + 3)};
        EXPECT_EQ(prueba::textosDe(maquetado.pagina(pagina)), esperados);
    }
}

TEST(Maquetado, AdvanceGoesFromNothingToAll)
{
    prueba::LayoutDePrueba prueba;
    prueba.altoUtil(30);
    prueba.layout.detalle.push_back(prueba.banda(10, u"n"_s));
    prueba::PaginasDePrueba paginas{prueba.layout, prueba::copiaNumerada(12)};
    Maquetado& maquetado = paginas.maquetado();
    EXPECT_EQ(maquetado.avance(), 0);
    EXPECT_FALSE(maquetado.completo());
    maquetado.avanza();
    EXPECT_EQ(maquetado.avance(), 0.25);
    static_cast<void>(paginas.paginas());
    EXPECT_EQ(maquetado.avance(), 1);
    maquetado.avanza();
    EXPECT_EQ(maquetado.paginas(), 4);
}

TEST(Maquetado, APageThatFailsLeavesNothingInTheIndexHoweverOftenItIsTried)
{
    prueba::LayoutDePrueba prueba;
    prueba.altoUtil(45);
    prueba.grupo(u"n"_s).titulo = prueba.expresion(u"1 / (n - 4)"_s);
    prueba.layout.detalle.push_back(prueba.banda(10, u"n"_s));
    prueba::PaginasDePrueba paginas{prueba.layout, prueba::copiaNumerada(6)};
    Maquetado& maquetado = paginas.maquetado();
    maquetado.avanza();
    const size_t entradas = maquetado.indice().size();
    ASSERT_EQ(entradas, 2U);
    for (int vez = 0; vez < 3; ++vez)
        EXPECT_THROW(maquetado.avanza(), ErrorEjecucion);
    EXPECT_EQ(maquetado.indice().size(), entradas);
    EXPECT_EQ(maquetado.paginas(), 1);
}

TEST(Maquetado, AReportWithNothingAtAllHasOneEmptyPage)
{
    prueba::PaginasDePrueba paginas{Layout{}, prueba::copiaNumerada(0)};
    const auto todas = paginas.paginas();
    ASSERT_EQ(todas.size(), 1U);
    EXPECT_TRUE(todas[0].primitivas.empty());
    EXPECT_EQ(todas[0].tamano, QSizeF(210, 297));
}

} // namespace
} // namespace kestrane::report
