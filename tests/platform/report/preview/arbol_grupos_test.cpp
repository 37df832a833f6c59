#include "platform/report/preview/arbol_grupos.h"

#include "platform/report/preview/indice_de_prueba.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class ArbolGruposTest : public testing::Test
{
protected:
    std::vector<EntradaIndice> indice = prueba::seccionesConFamilias();
    ArbolGrupos arbol;

    [[nodiscard]] QModelIndex entrada(int fila, const QModelIndex& padre = {}) const
    {
        return arbol.model()->index(fila, 0, padre);
    }
};

TEST_F(ArbolGruposTest, GrowsWithoutLosingWhatIsOpen)
{
    const std::vector<EntradaIndice> principio{indice.begin(), indice.begin() + 2};
    arbol.crece(principio, false);
    arbol.expand(entrada(0));
    arbol.crece(indice, true);
    EXPECT_TRUE(arbol.isExpanded(entrada(0)));
    EXPECT_EQ(arbol.model()->rowCount(entrada(0)), 2);
}

TEST_F(ArbolGruposTest, APressGoesToWhereTheGroupBegins)
{
    arbol.crece(indice, true);
    arbol.resize(300, 300);
    arbol.show();
    const QSignalSpy elegidas{&arbol, &ArbolGrupos::elegida};
    QTest::mouseClick(arbol.viewport(), Qt::LeftButton, {}, arbol.visualRect(entrada(1)).center());
    ASSERT_GE(elegidas.size(), 1);
    EXPECT_EQ(elegidas[0][0].toInt(), 3);
    EXPECT_EQ(elegidas[0][1].toDouble(), 30);
}

TEST_F(ArbolGruposTest, EnterGoesThereToo)
{
    arbol.crece(indice, true);
    arbol.show();
    arbol.setCurrentIndex(entrada(1));
    const QSignalSpy elegidas{&arbol, &ArbolGrupos::elegida};
    QTest::keyClick(&arbol, Qt::Key_Return);
    ASSERT_EQ(elegidas.size(), 1);
    EXPECT_EQ(elegidas[0][0].toInt(), 3);
}

TEST_F(ArbolGruposTest, ALongIndexComesInPortionsAndWholeInTheEnd)
{
    const QSignalSpy altas{arbol.model(), &QAbstractItemModel::rowsInserted};
    indice.clear();
    indice.reserve(100000);
    while (indice.size() < 100000) {
        indice.push_back({u"Cliente"_s, 0, int(indice.size()), 0});
        if (indice.size() % 50 == 0)
            arbol.crece(indice, false);
    }
    EXPECT_LT(altas.size(), 100);
    EXPECT_GT(arbol.model()->rowCount(), 90000);
    arbol.crece(indice, true);
    EXPECT_EQ(arbol.model()->rowCount(), 100000);
}

TEST_F(ArbolGruposTest, EmptiedItBeginsAnew)
{
    arbol.crece(indice, true);
    arbol.vacia();
    EXPECT_EQ(arbol.model()->rowCount(), 0);
    arbol.crece(indice, true);
    EXPECT_EQ(arbol.model()->rowCount(), 2);
}

} // namespace
} // namespace kestrane::report
