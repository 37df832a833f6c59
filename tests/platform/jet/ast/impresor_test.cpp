#include "platform/jet/ast/impresor.h"

#include "platform/jet/arboles.h"
#include "platform/jet/parser.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace arboles;
using enum OperadorBinario;

/// The statement printed is the second text, and that one is printed as it stands and says the same.
void comprueba(const QString& sentencia, const QString& impresa)
{
    const auto arbol = parsea(sentencia);
    ASSERT_TRUE(arbol.bien()) << qPrintable(describe(arbol.error(), sentencia));
    EXPECT_EQ(imprime(arbol.valor()), impresa);
    const auto otro = parsea(impresa);
    ASSERT_TRUE(otro.bien()) << qPrintable(describe(otro.error(), impresa));
    EXPECT_TRUE(arbol.valor() == otro.valor()) << qPrintable(impresa);
}

TEST(ImpresorTest, PrintsEachClause)
{
    comprueba(
        u"SELECT DISTINCT TOP 3 a,t.b AS c,* FROM t LEFT OUTER JOIN u x ON a=b,v WHERE a GROUP BY a,b HAVING c ORDER BY a,b DESC"_s,
        u"select distinct top 3 a, t.b as c, * from t left join u as x on a = b, v where a group by a, b having c "
        "order by a, b desc"_s);
    comprueba(u"Insert into t (a,b) values (1,'x')"_s, u"insert into t (a, b) values (1, 'x')"_s);
    comprueba(u"insert into t values (null)"_s, u"insert into t values (null)"_s);
    comprueba(u"update t set a=1,b=true where c"_s, u"update t set a = 1, b = true where c"_s);
    comprueba(u"delete * from t where a"_s, u"delete from t where a"_s);
    comprueba(u"informes"_s, u"select * from informes"_s);
}

TEST(ImpresorTest, ParenthesesOnlyWhereTheMeaningNeedsThem)
{
    comprueba(u"select ((a)+(b))*c, a+(b*c), a-(b-c), (a-b)-c from t"_s,
              u"select (a + b) * c, a + b * c, a - (b - c), a - b - c from t"_s);
    comprueba(u"select * from t where (a or b) and not (c and d)"_s, u"select * from t where (a or b) and not (c and d)"_s);
    comprueba(u"select * from t where (not a) = b"_s, u"select * from t where (not a) = b"_s);
    comprueba(u"select * from t where (a = b) is null and a = (b is null)"_s,
              u"select * from t where a = b is null and a = (b is null)"_s);
    comprueba(u"select -(a+b), -(-a), - -5 from t"_s, u"select -(a + b), --a, --5 from t"_s);
    comprueba(u"select * from a inner join (b inner join c on x) on y"_s,
              u"select * from a inner join (b inner join c on x) on y"_s);
    comprueba(u"select * from (a inner join b on x) inner join c on y"_s, u"select * from a inner join b on x inner join c on y"_s);
}

TEST(ImpresorTest, NamesInBracketsWhereTheyNeedThem)
{
    comprueba(u"select [a], [order], [a b], [2x], [ñ] from [t]"_s, u"select a, [order], [a b], [2x], [ñ] from t"_s);
}

TEST(ImpresorTest, LiteralsKeepTheirClass)
{
    comprueba(u"select 5, 5.0, 2147483648, .5, 1E30, 1e-7, 0.1 from t"_s,
              u"select 5, 5.0, 2147483648, 0.5, 1e+30, 1e-07, 0.1 from t"_s);
    comprueba(u"select 'O''D', '', #3/5/2024#, #12/30/1899 9:05# from t"_s,
              u"select 'O''D', '', #03/05/2024#, #12/30/1899 09:05:00# from t"_s);
}

TEST(ImpresorTest, Tests)
{
    comprueba(u"select * from t where a not like 'x' or a between 1 and 2 or a not in (1,2) or a in (select b from u where c)"_s,
              u"select * from t where a not like 'x' or a between 1 and 2 or a not in (1, 2) or a in (select b from u where c)"_s);
    comprueba(u"select * from t where a is not null and count(*) > f(a,b) & 'x'"_s,
              u"select * from t where a is not null and count(*) > f(a, b) & 'x'"_s);
}

TEST(ImpresorTest, PrintsWhatNoTextGaveIt)
{
    EXPECT_EQ(imprime(*op(y(col(u"a"_s), col(u"b"_s)), Igual, no(col(u"c"_s)))), u"(a and b) = (not c)"_s);
    EXPECT_EQ(imprime(*entre(o(col(u"a"_s), col(u"b"_s)), igual(col(u"c"_s), col(u"d"_s)), entero(1))),
              u"(a or b) between (c = d) and 1"_s);
}

} // namespace
} // namespace kestrane::jet
