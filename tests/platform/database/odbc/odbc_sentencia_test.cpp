#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

class OdbcSentencia : public Servidor
{
};
KESTRANE_EN_TODOS(OdbcSentencia);

TEST_P(OdbcSentencia, AResultOfAnotherShapeThanAnnouncedIsRefused)
{
    EXPECT_TRUE(error([&] { filas(u"select a, i from t"_s, {TipoColumna::Entero32}); }));
}

TEST_P(OdbcSentencia, TooFewOrWrongParametersAreRefused)
{
    const auto sentencia =
        motor().prepara("select a from t where a = ?", std::array{TipoColumna::Entero32}, std::array{TipoColumna::Entero32});
    EXPECT_TRUE(error([&] { sentencia->ejecuta({}); }));
    EXPECT_TRUE(error([&] { sentencia->ejecuta(std::array<Ligado, 1>{QStringView{u"uno"}}); }));
}

TEST_P(OdbcSentencia, AStatementRunsAgainWithOtherValues)
{
    llena(3);
    const auto sentencia = motor().prepara("select a, x from t where a = ?", std::array{TipoColumna::Entero32},
                                           std::array{TipoColumna::Entero32, TipoColumna::Texto});
    EXPECT_EQ(filas(*sentencia, 2, {2}), "2,'fila 2'|");
    EXPECT_EQ(filas(*sentencia, 2, {9}), "");
    EXPECT_EQ(filas(*sentencia, 2, {3}), "3,'fila 3'|");
    EXPECT_EQ(filas(*sentencia, 2, {Nulo{}}), "") << "null equals nothing";
}

TEST_P(OdbcSentencia, AResultLeftHalfReadDoesNotHinderTheNext)
{
    llena(500);
    const auto sentencia = motor().prepara("select a from t where a > ? order by a", std::array{TipoColumna::Entero32},
                                           std::array{TipoColumna::Entero32});
    sentencia->ejecuta(std::array<Ligado, 1>{0});
    AlmacenFilas leidas{1};
    for (int i = 0; i < 70; ++i)
        ASSERT_TRUE(sentencia->siguiente(leidas));
    sentencia->reinicia();
    EXPECT_EQ(filas(*sentencia, 1, {498}), "499|500|");
}

TEST_P(OdbcSentencia, SeveralResultsAreOpenAtOnce)
{
    llena(300);
    const auto fuera = motor().prepara("select a from t order by a", {}, std::array{TipoColumna::Entero32});
    const auto dentro =
        motor().prepara("select x from t where a = ?", std::array{TipoColumna::Entero32}, std::array{TipoColumna::Texto});
    fuera->ejecuta({});
    AlmacenFilas leidas{1};
    int cuantas = 0;
    while (fuera->siguiente(leidas)) {
        ++cuantas;
        ASSERT_EQ(filas(*dentro, 1, {cuantas}), "'fila " + std::to_string(cuantas) + "'|");
    }
    EXPECT_EQ(cuantas, 300);
}

TEST_P(OdbcSentencia, AResultIsTheStateOfItsStart)
{
    llena(300);
    const auto sentencia = motor().prepara("select a from t order by a", {}, std::array{TipoColumna::Entero32});
    sentencia->ejecuta({});
    AlmacenFilas leidas{1};
    ASSERT_TRUE(sentencia->siguiente(leidas));
    EXPECT_EQ(ejecuta(u"delete from t"_s), 300);
    while (sentencia->siguiente(leidas)) {
    }
    EXPECT_EQ(leidas.filas(), 300);
}

TEST_P(OdbcSentencia, AffectedRowsAreThoseThatTheConditionFindsChangedOrNot)
{
    llena(5);
    EXPECT_EQ(ejecuta(u"update t set i = 1 where a > 3"_s), 2);
    EXPECT_EQ(ejecuta(u"update t set i = 1 where a > 3"_s), 2);
    EXPECT_EQ(ejecuta(u"update t set i = 1 where a > 9"_s), 0);
    EXPECT_EQ(ejecuta(u"delete from t where a < 3"_s), 2);
    EXPECT_EQ(ejecuta(u"insert into t (a) values (?)"_s, {7}, {TipoColumna::Entero32}), 1);
}

TEST_P(OdbcSentencia, AWriteMayRunAgain)
{
    const auto sentencia = motor().prepara("insert into t (a) values (?)", std::array{TipoColumna::Entero32}, {});
    for (int i = 1; i <= 3; ++i) {
        sentencia->ejecuta(std::array<Ligado, 1>{i});
        EXPECT_EQ(sentencia->afectadas(), 1);
        sentencia->reinicia();
    }
    EXPECT_EQ(filas(u"select a from t order by orden_"_s, {TipoColumna::Entero32}), "1|2|3|");
}

} // namespace
} // namespace kestrane::database::odbc
