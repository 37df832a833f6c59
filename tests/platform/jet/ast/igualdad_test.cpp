#include "platform/jet/parser.h"
#include "platform/runtime/soporte.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

bool iguales(const QString& una, const QString& otra)
{
    const auto a = parsea(una);
    const auto b = parsea(otra);
    EXPECT_TRUE(a.bien() && b.bien()) << qPrintable(una) << '\n' << qPrintable(otra);
    return a.bien() && b.bien() && a.valor() == b.valor();
}

TEST(IgualdadTest, StatementsThatSayOtherThingsDiffer)
{
    const QString base = u"select a, b as c from t left join u on a = b where a like 'x' group by a having b order by a"_s;
    for (const QString& otra :
         {u"select distinct a, b as c from t left join u on a = b where a like 'x' group by a having b order by a"_s,
          u"select top 1 a, b as c from t left join u on a = b where a like 'x' group by a having b order by a"_s,
          u"select a, b as d from t left join u on a = b where a like 'x' group by a having b order by a"_s,
          u"select a, * from t left join u on a = b where a like 'x' group by a having b order by a"_s,
          u"select a, b as c from t inner join u on a = b where a like 'x' group by a having b order by a"_s,
          u"select a, b as c from t left join u on a = c where a like 'x' group by a having b order by a"_s,
          u"select a, b as c from t left join u x on a = b where a like 'x' group by a having b order by a"_s,
          u"select a, b as c from t left join u on a = b where a like 'y' group by a having b order by a"_s,
          u"select a, b as c from t left join u on a = b where a not like 'x' group by a having b order by a"_s,
          u"select a, b as c from t left join u on a = b group by a having b order by a"_s,
          u"select a, b as c from t left join u on a = b where a like 'x' group by a, b having b order by a"_s,
          u"select a, b as c from t left join u on a = b where a like 'x' group by a having c order by a"_s,
          u"select a, b as c from t left join u on a = b where a like 'x' group by a having b order by a desc"_s,
          u"delete from t"_s})
        EXPECT_FALSE(iguales(base, otra)) << qPrintable(otra);
}

TEST(IgualdadTest, ExpressionsThatSayOtherThingsDiffer)
{
    const QString cabeza = u"delete from t where "_s;
    const QStringList todas = {u"a"_s,
                               u"t.a"_s,
                               u"5"_s,
                               u"5.0"_s,
                               u"'5'"_s,
                               u"#03/05/2024#"_s,
                               u"null"_s,
                               u"true"_s,
                               u"false"_s,
                               u"-a"_s,
                               u"+a"_s,
                               u"not a"_s,
                               u"a and b"_s,
                               u"a or b"_s,
                               u"a = b"_s,
                               u"a <> b"_s,
                               u"a like b"_s,
                               u"a not like b"_s,
                               u"a between 1 and 2"_s,
                               u"a between 1 and 3"_s,
                               u"a in (1)"_s,
                               u"a in (1, 2)"_s,
                               u"a not in (1)"_s,
                               u"a in (select b from u)"_s,
                               u"a in (select c from u)"_s,
                               u"a is null"_s,
                               u"a is not null"_s,
                               u"f(a)"_s,
                               u"g(a)"_s,
                               u"f(*)"_s,
                               u"f()"_s};
    for (const QString& una : todas)
        for (const QString& otra : todas)
            EXPECT_EQ(iguales(cabeza + una, cabeza + otra), una == otra) << qPrintable(una) << ' ' << qPrintable(otra);
}

TEST(IgualdadTest, StatementsThatWriteOtherThingsDiffer)
{
    EXPECT_FALSE(iguales(u"insert into t (a) values (1)"_s, u"insert into t (b) values (1)"_s));
    EXPECT_FALSE(iguales(u"insert into t (a) values (1)"_s, u"insert into t values (1)"_s));
    EXPECT_FALSE(iguales(u"insert into t (a) values (1)"_s, u"insert into u (a) values (1)"_s));
    EXPECT_FALSE(iguales(u"update t set a = 1"_s, u"update t set a = 2"_s));
    EXPECT_FALSE(iguales(u"update t set a = 1"_s, u"update t set a = 1 where b"_s));
    EXPECT_FALSE(iguales(u"delete from t"_s, u"delete from t where a"_s));
}

TEST(IgualdadTest, PlacesSayNothing)
{
    EXPECT_TRUE(iguales(u"select a from t where a=5"_s, u"  SELECT  (a)  FROM  t  WHERE  ((a))  =  5 ;"_s));
    EXPECT_TRUE(iguales(u"delete * from t"_s, u"delete from t"_s));
}

} // namespace
} // namespace kestrane::jet
