#include "platform/report/preview/modelo_grupos.h"

#include "platform/report/preview/indice_de_prueba.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class ModeloGruposTest : public testing::Test
{
protected:
    std::vector<EntradaIndice> indice = prueba::seccionesConFamilias();
    ModeloGrupos modelo;
    QAbstractItemModelTester comprueba{&modelo, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ModeloGruposTest, EachEntryKnowsFromWhichItHangs)
{
    modelo.crece(indice);
    const QModelIndex seccion = modelo.index(0, 0);
    const QModelIndex familia = modelo.index(1, 0, seccion);
    EXPECT_EQ(familia.data().toString(), u"Familia 2"_s);
    EXPECT_EQ(familia.parent(), seccion);
    EXPECT_FALSE(seccion.parent().isValid());
    EXPECT_EQ(modelo.rowCount(), 2);
    EXPECT_EQ(modelo.rowCount(modelo.index(1, 0)), 0);
    EXPECT_FALSE(modelo.index(2, 0).isValid());
}

TEST_F(ModeloGruposTest, TellsTheEntryAndItsPage)
{
    modelo.crece(indice);
    const QModelIndex familia = modelo.index(1, 0, modelo.index(0, 0));
    ASSERT_NE(modelo.entrada(familia), nullptr);
    EXPECT_EQ(modelo.entrada(familia), &indice[2]) << "the report's own, no copy";
    EXPECT_EQ(familia.data(Qt::ToolTipRole).toString(), u"Familia 2 (página 3)"_s);
    EXPECT_EQ(modelo.entrada({}), nullptr);
}

TEST_F(ModeloGruposTest, GrowsWithTheReportAndStaysTrueToItWhenItMoves)
{
    modelo.crece(indice);
    const QSignalSpy altas{&modelo, &QAbstractItemModel::rowsInserted};
    const QPersistentModelIndex seccionB = modelo.index(1, 0);
    for (int i = 0; i < 1000; ++i)
        indice.push_back({u"Familia %1"_s.arg(i + 3), 1, 4 + i, 0});
    modelo.crece(indice);
    EXPECT_EQ(altas.size(), 1) << "as one, so that a tree that shows them is laid out once";
    EXPECT_EQ(seccionB.data().toString(), u"Sección B"_s);
    EXPECT_EQ(modelo.rowCount(seccionB), 1000);
    EXPECT_EQ(modelo.index(999, 0, seccionB).data().toString(), u"Familia 1002"_s);
}

TEST_F(ModeloGruposTest, GroupsWithoutAnOuterOneHangFromTheNextOneOut)
{
    indice = {{u"Familia 1"_s, 1, 0, 40},
              {u"Ficha 1"_s, 2, 0, 50},
              {u"Familia 2"_s, 1, 1, 0},
              {u"Sección B"_s, 0, 1, 10},
              {u"Ficha 2"_s, 2, 1, 20}};
    modelo.crece(indice);
    ASSERT_EQ(modelo.rowCount(), 3);
    EXPECT_EQ(modelo.index(0, 0, modelo.index(0, 0)).data().toString(), u"Ficha 1"_s);
    EXPECT_EQ(modelo.rowCount(modelo.index(1, 0)), 0);
    EXPECT_EQ(modelo.index(0, 0, modelo.index(2, 0)).data().toString(), u"Ficha 2"_s);
}

TEST_F(ModeloGruposTest, GroupsOfOneLevelStandBesideEachOtherWhetherOrNotTheyHaveAnOuterOne)
{
    indice = {{u"Familia 1"_s, 1, 0, 40}, {u"Familia 2"_s, 1, 2, 10}};
    modelo.crece(indice);
    EXPECT_EQ(modelo.rowCount(), 2);
}

TEST_F(ModeloGruposTest, EmptiedItIsEmptyAndGrowsAnew)
{
    modelo.crece(indice);
    modelo.vacia();
    EXPECT_EQ(modelo.rowCount(), 0);
    EXPECT_FALSE(modelo.index(0, 0).isValid());
    indice = {{u"Otra"_s, 0, 0, 0}};
    modelo.crece(indice);
    ASSERT_EQ(modelo.rowCount(), 1);
    EXPECT_EQ(modelo.index(0, 0).data().toString(), u"Otra"_s);
    EXPECT_EQ(modelo.rowCount(modelo.index(0, 0)), 0);
}

} // namespace
} // namespace kestrane::report
