#include "platform/jet/parser.h"

#include "platform/jet/arboles.h"
#include "platform/jet/ast/impresor.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace arboles;
using Clase = ErrorSql::Clase;

void rehusa(const QString& sentencia, Clase clase, int posicion, int longitud)
{
    const auto arbol = parsea(sentencia);
    ASSERT_FALSE(arbol.bien()) << qPrintable(sentencia);
    EXPECT_EQ(arbol.error().clase, clase) << qPrintable(sentencia) << '\n' << qPrintable(arbol.error().mensaje);
    EXPECT_EQ(arbol.error().posicion, posicion) << qPrintable(sentencia);
    EXPECT_EQ(arbol.error().longitud, longitud) << qPrintable(sentencia);
}

void comprueba(const QString& texto, const Sentencia& esperada)
{
    const auto arbol = parsea(texto);
    ASSERT_TRUE(arbol.bien()) << qPrintable(describe(arbol.error(), texto));
    EXPECT_TRUE(arbol.valor() == esperada) << qPrintable(texto) << '\n' << qPrintable(imprime(arbol.valor()));
}

TEST(ParserTest, RefusesWhatIsNoStatement)
{
    rehusa(u""_s, Clase::TextoVacio, 0, 0);
    rehusa(u" \r\n "_s, Clase::TextoVacio, 4, 0);
    rehusa(u";"_s, Clase::TextoVacio, 0, 1);
    rehusa(u"selec * from t"_s, Clase::SintaxisIncorrecta, 0, 5);
    rehusa(u"clientes empleados"_s, Clase::SintaxisIncorrecta, 0, 8);
    rehusa(u"5"_s, Clase::SintaxisIncorrecta, 0, 1);
    rehusa(u"'x'"_s, Clase::SintaxisIncorrecta, 0, 3);
}

TEST(ParserTest, RefusesStatementsOfOtherKindsByName)
{
    for (const QString& otra :
         {u"create table t (a long)"_s, u"drop table t"_s, u"alter table t add b long"_s, u"exec p"_s,
          u"parameters x long; select * from t"_s, u"transform sum(a) select b from t"_s, u"PRAGMA table_info(t)"_s,
          u"begin transaction"_s, u"with x as (select 1) select 2"_s, u"truncate table t"_s, u"set a = 1"_s, u"values (1)"_s})
        rehusa(otra, Clase::SentenciaNoAdmitida, 0, static_cast<int>(otra.indexOf(u' ')));
    rehusa(u"select a from t union select b from u"_s, Clase::SentenciaNoAdmitida, 16, 5);
    rehusa(u"select * into u from t"_s, Clase::SentenciaNoAdmitida, 9, 4);
    rehusa(u"insert into t (a) select b from u"_s, Clase::SentenciaNoAdmitida, 18, 6);
    rehusa(u"insert into t (a) values (1),(2)"_s, Clase::SentenciaNoAdmitida, 28, 1);
    rehusa(u"select * from t right join u on a = b"_s, Clase::SentenciaNoAdmitida, 16, 5);
    rehusa(u"select * from (select * from t)"_s, Clase::SentenciaNoAdmitida, 15, 6);
    rehusa(u"select * from main.t"_s, Clase::SentenciaNoAdmitida, 18, 1);
}

TEST(ParserTest, RefusesASecondStatement)
{
    rehusa(u"delete from t; delete from u"_s, Clase::SentenciaNoAdmitida, 15, 6);
    rehusa(u"select a from t;;"_s, Clase::SentenciaNoAdmitida, 16, 1);
    rehusa(u"select * from t select * from u"_s, Clase::SintaxisIncorrecta, 16, 6);
}

TEST(ParserTest, RefusesClausesThatAreMissingOrInTheWrongPlace)
{
    rehusa(u"select from t"_s, Clase::SintaxisIncorrecta, 7, 4);
    rehusa(u"select a"_s, Clase::SintaxisIncorrecta, 8, 0);
    rehusa(u"select * from"_s, Clase::SintaxisIncorrecta, 13, 0);
    rehusa(u"select * from  where codigo = 7"_s, Clase::SintaxisIncorrecta, 15, 5);
    rehusa(u"select * from t order a"_s, Clase::SintaxisIncorrecta, 22, 1);
    rehusa(u"select * from t order by"_s, Clase::SintaxisIncorrecta, 24, 0);
    rehusa(u"select * from t order by a where b"_s, Clase::SintaxisIncorrecta, 27, 5);
    rehusa(u"select * from t where a where b"_s, Clase::SintaxisIncorrecta, 24, 5);
    rehusa(u"select a,, b from t"_s, Clase::SintaxisIncorrecta, 9, 1);
    rehusa(u"select a as from t"_s, Clase::SintaxisIncorrecta, 12, 4);
    rehusa(u"select top a from t"_s, Clase::SintaxisIncorrecta, 11, 1);
    rehusa(u"select top 2.5 a from t"_s, Clase::SintaxisIncorrecta, 11, 3);
    rehusa(u"select a, distinct b from t"_s, Clase::SintaxisIncorrecta, 10, 8);
    rehusa(u"select * from t inner u on a = b"_s, Clase::SintaxisIncorrecta, 22, 1);
    rehusa(u"select * from t inner join u"_s, Clase::SintaxisIncorrecta, 28, 0);
    rehusa(u"select * from (t inner join u on a = b"_s, Clase::SintaxisIncorrecta, 38, 0);
    rehusa(u"delete t"_s, Clase::SintaxisIncorrecta, 7, 1);
    rehusa(u"delete from t order by a"_s, Clase::SintaxisIncorrecta, 14, 5);
    rehusa(u"update t a = 1"_s, Clase::SintaxisIncorrecta, 9, 1);
    rehusa(u"update t set a = 1,"_s, Clase::SintaxisIncorrecta, 19, 0);
    rehusa(u"update t set a = 12,5"_s, Clase::SintaxisIncorrecta, 20, 1);
    rehusa(u"insert t (a) values (1)"_s, Clase::SintaxisIncorrecta, 7, 1);
    rehusa(u"insert into t () values (1)"_s, Clase::SintaxisIncorrecta, 15, 1);
    rehusa(u"insert into t (a) (1)"_s, Clase::SintaxisIncorrecta, 18, 1);
    rehusa(u"insert into t (a) values ()"_s, Clase::SintaxisIncorrecta, 26, 1);
}

TEST(ParserTest, MessagesSayWhatIsThereAndWhatWasExpected)
{
    const auto mensaje = [](const QString& sentencia) { return parsea(sentencia).error().mensaje; };
    EXPECT_EQ(mensaje(u"select * from t where"_s), u"La sentencia termina y se esperaba un valor."_s);
    EXPECT_EQ(mensaje(u"select a b c from t"_s), u"Aquí hay \"c\" y se esperaba FROM."_s);
    EXPECT_EQ(mensaje(u"update t set a 5"_s), u"Aquí hay el número 5 y se esperaba \"=\"."_s);
    EXPECT_EQ(mensaje(u"drop table t"_s), u"No se admite la sentencia DROP: solo SELECT, INSERT, UPDATE y DELETE."_s);
}

TEST(ParserTest, ATableAloneIsAllOfIt)
{
    comprueba(u"informes"_s, elige(tabla(u"informes"_s), todo()));
    comprueba(u" [mi tabla] ; "_s, elige(tabla(u"mi tabla"_s), todo()));
    comprueba(u"drop"_s, elige(tabla(u"drop"_s), todo()));
}

TEST(ParserTest, StatementsThatWrite)
{
    Insercion insercion;
    insercion.tabla = {u"t"_s, {}};
    insercion.columnas = {{u"a"_s, {}}, {u"b"_s, {}}};
    insercion.valores = lista(entero(1), menos(doble(2.5, 1)));
    comprueba(u"Insert into t (a,b)  values (1,-2.5)"_s, std::move(insercion));

    Modificacion modificacion;
    modificacion.tabla = {u"t"_s, {}};
    modificacion.asignaciones.push_back({{u"a"_s, {}}, texto(u"x"_s)});
    modificacion.asignaciones.push_back({{u"b"_s, {}}, suma(col(u"b"_s), entero(1, 1))});
    modificacion.donde = col(u"c"_s);
    comprueba(u"update t set a = 'x', b = b + 1 where c"_s, std::move(modificacion));

    comprueba(u"Delete * from t"_s, Borrado{{u"t"_s, {}}, nullptr});
    comprueba(u"delete from t where a"_s, Borrado{{u"t"_s, {}}, col(u"a"_s)});
}

} // namespace
} // namespace kestrane::jet
