#include "platform/report/cortes_de_grupos.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

TEST(CortesDeGrupos, GroupsAreCountedByLevel)
{
    CortesDeGrupos cortes{2};
    for (const int empiezan : {2, 0, 1, 2, 0})
        cortes.anade(empiezan);
    EXPECT_EQ(cortes.empiezan(0), 2);
    EXPECT_EQ(cortes.empiezan(2), 1);
    EXPECT_EQ(cortes.grupoDe(2, 1), 0);
    EXPECT_EQ(cortes.grupoDe(2, 2), 1);
    EXPECT_EQ(cortes.grupoDe(4, 1), 1);
    EXPECT_EQ(cortes.grupoDe(4, 2), 2);
}

TEST(CortesDeGrupos, FarIntoTheReportToo)
{
    CortesDeGrupos cortes{1};
    for (int i = 0; i < 2000; ++i)
        cortes.anade(i % 3 == 0 ? 1 : 0);
    EXPECT_EQ(cortes.grupoDe(255, 1), 85);
    EXPECT_EQ(cortes.grupoDe(256, 1), 85);
    EXPECT_EQ(cortes.grupoDe(1999, 1), 666);
}

TEST(CortesDeGrupos, WithoutLevelsNoGroupBegins)
{
    CortesDeGrupos cortes;
    cortes.anade(0);
    EXPECT_EQ(cortes.empiezan(0), 0);
}

} // namespace
} // namespace kestrane::report
