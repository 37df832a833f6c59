#include "platform/report/preview/buscador.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class BuscadorTest : public testing::Test
{
protected:
    void busca(const QString& texto, int desde = 0)
    {
        buscador.busca(texto, desde);
        ASSERT_TRUE(QTest::qWaitFor([this] { return buscador.terminado(); }));
    }

    prueba::FuenteDePrueba fuente{{{u"Peluquería|peluca"_s}, {u"Corte"_s}, {u"PELUQUERIA"_s}}};
    PaginasVista paginas{fuente, [](const QString&) {}};
    Buscador buscador{paginas};
};

TEST_F(BuscadorTest, FindsAllHitsWithoutMindingCaseAndAccents)
{
    busca(u"pelu"_s);
    ASSERT_EQ(buscador.cuenta(), 3);
    EXPECT_EQ(buscador.acierto(0), (Acierto{0, 0, {0, 4}}));
    EXPECT_EQ(buscador.acierto(1), (Acierto{0, 1, {0, 4}}));
    EXPECT_EQ(buscador.acierto(2), (Acierto{2, 0, {0, 4}}));
}

TEST_F(BuscadorTest, TellsTheHitsOfAPage)
{
    busca(u"pelu"_s);
    EXPECT_EQ(buscador.enPagina(0).size(), 2U);
    EXPECT_EQ(buscador.enPagina(1).size(), 0U);
    EXPECT_EQ(buscador.enPagina(2).size(), 1U);
}

TEST_F(BuscadorTest, BeginsAtThePageThatIsLookedAt)
{
    busca(u"pelu"_s, 1);
    EXPECT_EQ(buscador.actual(), 2);
}

TEST_F(BuscadorTest, BeginsAtTheFirstWhenNoneFollows)
{
    busca(u"corte"_s, 2);
    EXPECT_EQ(buscador.actual(), 0);
}

TEST_F(BuscadorTest, GoesRoundTheEndsBothWays)
{
    busca(u"pelu"_s);
    buscador.anterior();
    EXPECT_EQ(buscador.actual(), 2);
    buscador.siguiente();
    EXPECT_EQ(buscador.actual(), 0);
    buscador.siguiente();
    EXPECT_EQ(buscador.actual(), 1);
}

TEST_F(BuscadorTest, WithoutHitsThereIsNoCurrentOne)
{
    busca(u"zapato"_s);
    buscador.siguiente();
    EXPECT_EQ(buscador.cuenta(), 0);
    EXPECT_EQ(buscador.actual(), -1);
}

TEST_F(BuscadorTest, BlankTextFindsNothingAndAsksForNoPage)
{
    buscador.busca(u"   "_s, 0);
    EXPECT_FALSE(buscador.activo());
    EXPECT_TRUE(fuente.pedidas.empty());
}

TEST_F(BuscadorTest, TenThousandCharactersAreLookedForLikeAnyText)
{
    fuente.hojas[1] += u"ñ"_s.repeated(10000);
    busca(u"Ñ"_s.repeated(10000));
    EXPECT_EQ(buscador.cuenta(), 1);
}

TEST_F(BuscadorTest, PagesThatComeLaterAreSearchedToo)
{
    prueba::FuenteDePrueba lenta{4, 1};
    PaginasVista suyas{lenta, [](const QString&) {}};
    Buscador otro{suyas};
    otro.busca(u"hoja"_s, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.cuenta() == 1; }));
    lenta.hechas = 4;
    otro.sigue();
    EXPECT_TRUE(QTest::qWaitFor([&] { return otro.cuenta() == 4; }));
}

TEST_F(BuscadorTest, EmptiedItAsksForNoMorePages)
{
    prueba::FuenteDePrueba larga{16000, 16000};
    PaginasVista suyas{larga, [](const QString&) {}};
    Buscador otro{suyas};
    otro.busca(u"zapato"_s, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !larga.pedidas.empty(); }));
    otro.busca({}, 0);
    const auto antes = larga.pedidas.size();
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(larga.pedidas.size(), antes);
}

TEST_F(BuscadorTest, PagesSearchedBeforeTheirTotalWasKnownAreSearchedOnceMore)
{
    prueba::FuenteDePrueba lenta{3, 2};
    PaginasVista suyas{lenta, [](const QString&) {}};
    Buscador otro{suyas};
    otro.busca(u"de 3"_s, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.terminado(); }));
    EXPECT_EQ(otro.cuenta(), 0);
    EXPECT_FALSE(otro.definitivo());
    lenta.hechas = 3;
    otro.sigue();
    EXPECT_TRUE(QTest::qWaitFor([&] { return otro.cuenta() == 3; }));
    EXPECT_TRUE(otro.definitivo());
}

TEST_F(BuscadorTest, HitsThatTheTotalTookAwayGoAndTheCurrentOneStays)
{
    prueba::FuenteDePrueba lenta{{{u"Corte..."_s}, {u"Tinte..."_s}, {u"Peine"_s}}};
    lenta.hechas = 2;
    PaginasVista suyas{lenta, [](const QString&) {}};
    Buscador otro{suyas};
    otro.busca(u"..."_s, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.terminado(); }));
    ASSERT_EQ(otro.cuenta(), 4) << "the two totals among them";
    ASSERT_EQ(otro.actual(), 2);
    const QSignalSpy actuales{&otro, &Buscador::actualCambiado};
    lenta.hechas = 3;
    otro.sigue();
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.definitivo(); }));
    EXPECT_EQ(otro.cuenta(), 2);
    ASSERT_EQ(otro.actual(), 1);
    EXPECT_EQ(otro.acierto(1).pagina, 1);
    EXPECT_EQ(actuales.size(), 0) << "the pages do not move under the operator";
}

TEST_F(BuscadorTest, WhatCannotBeLaidOutIsNotWaitedFor)
{
    prueba::FuenteDePrueba rota{3, 2};
    PaginasVista suyas{rota, [](const QString&) {}};
    Buscador otro{suyas};
    otro.busca(u"zapato"_s, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.terminado(); }));
    EXPECT_FALSE(otro.definitivo());
    otro.ponIncompleto(true);
    EXPECT_TRUE(otro.definitivo());
}

TEST_F(BuscadorTest, WorksInSlicesBetweenTheEvents)
{
    prueba::FuenteDePrueba larga{16000, 16000};
    PaginasVista suyas{larga, [](const QString&) {}};
    Buscador otro{suyas};
    int turnosAjenos = 0;
    QTimer ajeno;
    QObject::connect(&ajeno, &QTimer::timeout, &ajeno, [&turnosAjenos] { ++turnosAjenos; });
    ajeno.start(0);
    otro.busca(u"hoja 7"_s, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return otro.terminado(); }, 60000));
    EXPECT_GT(turnosAjenos, 5);
    EXPECT_EQ(otro.cuenta(), 1 + 10 + 100 + 1000);
}

TEST_F(BuscadorTest, StopsWhereMoreHitsHelpNobody)
{
    fuente.hojas[0] = QStringList(120, u"a"_s.repeated(1000));
    busca(u"a"_s);
    EXPECT_EQ(buscador.cuenta(), Buscador::MaximoAciertos);
}

TEST_F(BuscadorTest, TellsOfChanges)
{
    const QSignalSpy cambios{&buscador, &Buscador::haCambiado};
    const QSignalSpy actuales{&buscador, &Buscador::actualCambiado};
    busca(u"corte"_s);
    EXPECT_GE(cambios.size(), 2);
    ASSERT_EQ(actuales.size(), 1);
    EXPECT_EQ(actuales[0][0].toInt(), 0);
}

TEST_F(BuscadorTest, StopsWhenItIsToldTo)
{
    buscador.busca(u"corte"_s, 0);
    buscador.detiene();
    QCoreApplication::processEvents();
    EXPECT_EQ(buscador.cuenta(), 0);
    buscador.sigue();
    EXPECT_TRUE(QTest::qWaitFor([this] { return buscador.cuenta() == 1; }));
}

} // namespace
} // namespace kestrane::report
