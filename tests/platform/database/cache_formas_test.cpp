#include "platform/database/cache_formas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

std::unique_ptr<PlanSentencia> plan()
{
    return std::make_unique<PlanSentencia>(jet::Traduccion{}, nullptr);
}

constexpr qsizetype Mucho = 1'000'000;

TEST(CacheFormas, AShapeThatWasNeverMetIsNotFound)
{
    CacheFormas cache{10, Mucho};
    EXPECT_EQ(cache.busca(u"select 1", 1), nullptr);
}

TEST(CacheFormas, AShapeGivesItsPlanAgain)
{
    CacheFormas cache{10, Mucho};
    PlanSentencia& guardado = cache.inserta(u"select 1", 1, plan());
    EXPECT_EQ(cache.busca(u"select 1", 1), &guardado);
}

TEST(CacheFormas, ShapesOfOneHashAreToldApartByTheirText)
{
    CacheFormas cache{10, Mucho};
    PlanSentencia& uno = cache.inserta(u"select 1", 7, plan());
    PlanSentencia& otro = cache.inserta(u"select 2", 7, plan());
    EXPECT_EQ(cache.busca(u"select 1", 7), &uno);
    EXPECT_EQ(cache.busca(u"select 2", 7), &otro);
    EXPECT_EQ(cache.busca(u"select 3", 7), nullptr);
}

TEST(CacheFormas, PastItsNumberTheOneUsedLongestAgoGoes)
{
    CacheFormas cache{3, Mucho};
    for (size_t i = 0; i < 3; ++i)
        cache.inserta(QString::number(i), i, plan());
    EXPECT_NE(cache.busca(u"0", 0), nullptr); // used again: 1 is now the oldest
    cache.inserta(u"3", 3, plan());
    EXPECT_EQ(cache.cuantas(), 3);
    EXPECT_EQ(cache.busca(u"1", 1), nullptr);
    EXPECT_NE(cache.busca(u"0", 0), nullptr);
}

TEST(CacheFormas, PastItsBytesTheOldestGoAndTheNewestStays)
{
    CacheFormas cache{1000, 50'000};
    for (size_t i = 0; i < 100; ++i)
        cache.inserta(QString::number(i) + QString(1000, u'x'), i, plan());
    EXPECT_LE(cache.bytes(), 50'000);
    EXPECT_LT(cache.cuantas(), 100);
    EXPECT_NE(cache.busca(QString(u"99"_s + QString(1000, u'x')), 99), nullptr);
}

TEST(CacheFormas, APlanInUseStaysWhateverTheBound)
{
    CacheFormas cache{2, Mucho};
    PlanSentencia& usado = cache.inserta(u"en uso", 0, plan());
    usado.usa();
    for (size_t i = 1; i < 10; ++i)
        cache.inserta(QString::number(i), i, plan());
    EXPECT_EQ(cache.busca(u"en uso", 0), &usado);
    usado.deja();
}

} // namespace
} // namespace kestrane::database
