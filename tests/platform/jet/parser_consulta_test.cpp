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
    const auto lista = [](int elementos) { return u"a"_s + u",a"_s.repeated(elementos - 1); };
    const auto clase = [](const QString& sentencia) {
        const auto arbol = parsea(sentencia);
        return arbol ? Clase::TextoVacio : arbol.error().clase;
    };
    struct Caso
    {
        QString sentencia;
        int caben;
    };
    for (const Caso& caso :
         {Caso{u"select %1 from t"_s, limites::ElementosDeLista}, Caso{u"select a from t group by %1"_s, limites::ClavesDeLista},
          Caso{u"select a from t order by %1"_s, limites::ClavesDeLista},
          Caso{u"select a from t where a in (%1)"_s, limites::ElementosDeIn}}) {
        EXPECT_EQ(clase(caso.sentencia.arg(lista(caso.caben))), Clase::TextoVacio) << qPrintable(caso.sentencia);
        EXPECT_EQ(clase(caso.sentencia.arg(lista(caso.caben + 1))), Clase::DemasiadoLargo) << qPrintable(caso.sentencia);
    }
}

TEST(ParserConsultaTest, RefusesMoreLiteralsThanTheLimit)
{
    const QString justas = u"select a from t where a = 1"_s + u" and a = 'x'"_s.repeated(20) +
                           u" and a in (1%1)"_s.arg(u",1"_s.repeated(limites::Literales - 22));
    EXPECT_TRUE(parsea(justas).bien());
    const QString unaMas = justas + u" and a = #03/15/2024#"_s;
    ASSERT_FALSE(parsea(unaMas).bien());
    EXPECT_EQ(parsea(unaMas).error().clase, Clase::DemasiadoLargo);
    EXPECT_EQ(unaMas.mid(parsea(unaMas).error().posicion, parsea(unaMas).error().longitud), u"#03/15/2024#"_s);
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
