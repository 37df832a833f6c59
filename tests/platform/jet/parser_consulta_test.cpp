#include "platform/jet/arboles.h"
#include "platform/jet/ast/impresor.h"
#include "platform/jet/limites.h"
#include "platform/jet/parser.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace arboles;
using Clase = ErrorSql::Clase;

void comprueba(const QString& texto, const Sentencia& esperada)
{
    const auto arbol = parsea(texto);
    ASSERT_TRUE(arbol.bien()) << qPrintable(describe(arbol.error(), texto));
    EXPECT_TRUE(arbol.valor() == esperada) << qPrintable(texto) << '\n' << qPrintable(imprime(arbol.valor()));
}

TEST(ParserConsultaTest, RefusesMoreTablesThanTheLimit)
{
    const QString justas = u"select * from t"_s + u",t"_s.repeated(limites::TablasUnidas - 1);
    EXPECT_TRUE(parsea(justas).bien());
    EXPECT_EQ(parsea(justas + u",t"_s).error().clase, Clase::SentenciaNoAdmitida);
    EXPECT_EQ(parsea(u"select * from t"_s + u" inner join t on a"_s.repeated(50'000)).error().clase, Clase::SentenciaNoAdmitida);
}

TEST(ParserConsultaTest, RefusesListsPastTheLimit)
{
    const QString mil = u"a"_s + u",a"_s.repeated(limites::ElementosDeLista - 1);
    EXPECT_TRUE(parsea(u"select %1 from t group by %1 order by %1"_s.arg(mil)).bien());
    for (const QString& larga : {u"select %1,a from t"_s, u"select a from t group by %1,a"_s, u"select a from t order by %1,a"_s})
        EXPECT_EQ(parsea(larga.arg(mil)).error().clase, Clase::DemasiadoLargo) << qPrintable(larga);
}

TEST(ParserConsultaTest, Lists)
{
    comprueba(u"select * from t"_s, elige(tabla(u"t"_s), todo()));
    comprueba(u"select all a from t;"_s, elige(tabla(u"t"_s), elem(col(u"a"_s))));
    comprueba(u"select *, t.x as n, t.* from t"_s, elige(tabla(u"t"_s), todo(), elem(col(u"t"_s, u"x"_s), u"n"_s), todo(u"t"_s)));
    comprueba(u"select a b, count(*)as [n m] from t"_s,
              elige(tabla(u"t"_s), elem(col(u"a"_s), u"b"_s), elem(cuentaTodo(), u"n m"_s)));
}

TEST(ParserConsultaTest, DistinctIsOfTheRowEvenWithParentheses)
{
    Consulta distinta = elige(tabla(u"t"_s), elem(col(u"a"_s)), elem(col(u"b"_s)));
    distinta.filas = Filas::Distintas;
    comprueba(u"select distinct(a), b from t"_s, std::move(distinta));
}

TEST(ParserConsultaTest, TopStandsBehindDistinct)
{
    Consulta tres = elige(tabla(u"t"_s), elem(col(u"a"_s)));
    tres.filas = Filas::Distintas;
    tres.limite = entero(3);
    comprueba(u"select distinct top 3 a from t"_s, std::move(tres));
}

TEST(ParserConsultaTest, TablesAndJoins)
{
    Consulta coma = elige(tabla(u"t"_s), todo());
    coma.desde.push_back(tabla(u"u"_s, u"x"_s));
    coma.desde.push_back(tabla(u"v"_s, u"y"_s));
    comprueba(u"select * from t, u x, v as y"_s, std::move(coma));

    const auto union1 = [] { return une(ClaseUnion::Interior, tabla(u"a"_s), tabla(u"b"_s), igual(col(u"x"_s), col(u"y"_s))); };
    comprueba(u"select * from a inner join b on x = y"_s, elige(union1(), todo()));
    const auto union2 = [&] { return une(ClaseUnion::Izquierda, union1(), tabla(u"c"_s), col(u"z"_s)); };
    comprueba(u"select * from (a inner join b on x = y) left join c on z"_s, elige(union2(), todo()));
    comprueba(u"select * from a inner join b on x = y left outer join c on (z)"_s, elige(union2(), todo()));
    comprueba(u"select * from c left join (a inner join b on x = y) on z"_s,
              elige(une(ClaseUnion::Izquierda, tabla(u"c"_s), union1(), col(u"z"_s)), todo()));
    comprueba(u"select * from ((a))"_s, elige(tabla(u"a"_s), todo()));
}

TEST(ParserConsultaTest, ClausesInTheirOrder)
{
    Consulta entera = elige(tabla(u"t"_s), elem(col(u"a"_s)), elem(llama(u"sum"_s, col(u"b"_s))));
    entera.donde = igual(col(u"c"_s), entero(1));
    entera.grupos.push_back(col(u"a"_s));
    entera.teniendo = igual(cuentaTodo(), entero(2, 1));
    entera.orden.push_back({llama(u"sum"_s, col(u"b"_s)), Direccion::Descendente});
    entera.orden.push_back({col(u"a"_s), Direccion::Ascendente});
    comprueba(u"select a, sum(b) from t where c = 1 group by a having count(*) = 2 order by sum(b) desc, a asc"_s,
              std::move(entera));
}

} // namespace
} // namespace kestrane::jet
