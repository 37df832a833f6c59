#include "platform/report/preview/miniaturas.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace kestrane::report {
namespace {

class MiniaturasTest : public testing::Test
{
protected:
    MiniaturasTest()
    {
        miniaturas.ponPaginas(16000);
        miniaturas.resize(180, 600);
        miniaturas.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&miniaturas));
    }
    [[nodiscard]] QRect lugar(int pagina) { return miniaturas.visualRect(miniaturas.model()->index(pagina, 0)); }

    prueba::FuenteDePrueba fuente{16000, 16000};
    PaginasVista paginas{fuente, [](const QString&) {}};
    Miniaturas miniaturas{paginas};
};

TEST_F(MiniaturasTest, OnlyPagesInSightAreComposed)
{
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente.pintadas >= 3; }));
    static_cast<void>(miniaturas.grab());
    QCoreApplication::processEvents();
    EXPECT_LE(fuente.pedidas.size(), 5U);
    EXPECT_LT(*fuente.pedidas.rbegin(), 5);
}

TEST_F(MiniaturasTest, ALeapComposesWhatIsInSightThere)
{
    miniaturas.scrollTo(miniaturas.model()->index(12000, 0), QAbstractItemView::PositionAtTop);
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente.pedidas.contains(12000); }));
    EXPECT_LE(fuente.pedidas.size(), 12U);
}

TEST_F(MiniaturasTest, APictureIsMadeOnce)
{
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente.pintadas >= 3; }));
    const int antes = fuente.pintadas;
    static_cast<void>(miniaturas.grab());
    static_cast<void>(miniaturas.grab());
    EXPECT_LE(fuente.pintadas, antes + 1);
}

TEST_F(MiniaturasTest, ForgottenPicturesAreMadeAnew)
{
    ASSERT_TRUE(QTest::qWaitFor([this] { return fuente.pintadas >= 3; }));
    fuente.pedidas.clear();
    miniaturas.olvida();
    EXPECT_TRUE(QTest::qWaitFor([this] { return fuente.pedidas.contains(0); }));
}

TEST_F(MiniaturasTest, PicturesTakeNoMoreThanTheirRoom)
{
    auto* pintor = miniaturas.findChild<PintorMiniaturas*>();
    ASSERT_NE(pintor, nullptr);
    int mayor = 0;
    for (int pagina = 0; pagina < 300; pagina += 2) {
        miniaturas.scrollTo(miniaturas.model()->index(pagina, 0), QAbstractItemView::PositionAtTop);
        ASSERT_TRUE(QTest::qWaitFor([&] { return fuente.pedidas.contains(pagina); }));
        mayor = std::max(mayor, pintor->guardado());
    }
    EXPECT_GT(mayor, 12 * 1024 * 1024) << "pictures are weighed";
    EXPECT_LE(mayor, 16 * 1024 * 1024);
}

TEST_F(MiniaturasTest, APressGoesToThePage)
{
    const QSignalSpy elegidas{&miniaturas, &Miniaturas::elegida};
    QTest::mouseClick(miniaturas.viewport(), Qt::LeftButton, {}, lugar(1).center());
    ASSERT_GE(elegidas.size(), 1);
    EXPECT_EQ(elegidas[0][0].toInt(), 1);
}

TEST_F(MiniaturasTest, ThePageThatIsLookedAtIsMarkedAndInSight)
{
    miniaturas.senala(9000);
    EXPECT_EQ(miniaturas.currentIndex().row(), 9000);
    EXPECT_TRUE(miniaturas.viewport()->rect().intersects(lugar(9000)));
}

TEST_F(MiniaturasTest, APageThatIsNotThereIsNotMarked)
{
    miniaturas.senala(3);
    miniaturas.senala(-1);
    EXPECT_EQ(miniaturas.currentIndex().row(), 3);
}

TEST_F(MiniaturasTest, EntriesAreLargeEnoughForAFinger)
{
    EXPECT_GE(lugar(0).width(), 44);
    EXPECT_GE(lugar(0).height(), 44);
}

TEST(ModeloMiniaturas, GrowsAndShrinksWithTheReport)
{
    ModeloMiniaturas modelo;
    const QSignalSpy altas{&modelo, &QAbstractItemModel::rowsInserted};
    const QSignalSpy bajas{&modelo, &QAbstractItemModel::rowsRemoved};
    modelo.ponPaginas(3);
    modelo.ponPaginas(5);
    modelo.ponPaginas(5);
    modelo.ponPaginas(1);
    EXPECT_EQ(modelo.rowCount(), 1);
    EXPECT_EQ(altas.size(), 2);
    EXPECT_EQ(bajas.size(), 1);
    EXPECT_EQ(modelo.data(modelo.index(0), Qt::AccessibleTextRole).toString(), QStringLiteral("Página 1"));
}

} // namespace
} // namespace kestrane::report
