#include "instalacion/obra.h"

#include "instalacion/ddl.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

TEST(Obra, IndexesAreToldFromTablesOnEveryEngine)
{
    EXPECT_FALSE(creaIndice(u"CREATE TABLE indices (a int)"_s));
    EXPECT_TRUE(creaIndice(u"CREATE INDEX ix ON t (a)"_s));
    EXPECT_TRUE(creaIndice(u"CREATE UNIQUE INDEX ix ON t (a)"_s));
    for (const jet::Motor motor : {jet::Motor::Sqlite, jet::Motor::PostgreSql, jet::Motor::MariaDb})
        EXPECT_EQ(std::ranges::count_if(sentenciasDeCreacion(baseListados(), motor), creaIndice), 1);
}

} // namespace
} // namespace kestrane::instalacion
