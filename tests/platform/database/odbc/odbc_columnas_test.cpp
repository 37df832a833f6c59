#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

class OdbcColumnas : public Servidor
{
protected:
    /// The numbers 1 to n came, each once and in order.
    void expectFilas(int hasta)
    {
        AlmacenFilas leidas{2};
        const auto sentencia =
            motor().prepara("select a, x from t order by orden_", {}, std::array{TipoColumna::Entero32, TipoColumna::Texto});
        sentencia->ejecuta({});
        while (sentencia->siguiente(leidas)) {
        }
        EXPECT_FALSE(sentencia->siguiente(leidas)) << "past the end it stays at the end";
        ASSERT_EQ(leidas.filas(), hasta);
        for (int i = 1; leidas.siguiente(); ++i) {
            ASSERT_EQ(leidas.valor(0), Valor{i});
            ASSERT_EQ(leidas.valor(1), Valor{u"fila %1"_s.arg(i)});
        }
    }
};
KESTRANE_EN_TODOS(OdbcColumnas);

TEST_P(OdbcColumnas, ResultsOfAnyNumberOfRowsComeWhole)
{
    int hay = 0;
    for (const int filas : {0, 1, 2, 15, 16, 17, 31, 32, 199, 200, 201, 215, 216, 217, 416, 1000}) {
        SCOPED_TRACE(filas);
        for (; hay < filas; ++hay)
            ejecuta(u"insert into t (a, x) values (%1, 'fila %1')"_s.arg(hay + 1));
        expectFilas(filas);
    }
}

TEST_P(OdbcColumnas, MemosOfAnyLengthComeWholeBesideShortOnes)
{
    const int largos[] = {0, 1, 254, 255, 256, 1019, 1020, 1021, 4095, 4096, 65535, 65536, 70000, 3};
    for (const int largo : largos)
        ejecuta(u"insert into t (a, m) values (?, ?)"_s, {largo, QStringView{QString{largo, u'ñ'}}},
                {TipoColumna::Entero32, TipoColumna::Memo});
    AlmacenFilas leidas{3};
    const auto sentencia = motor().prepara("select m, a, m from t order by orden_", {},
                                           std::array{TipoColumna::Memo, TipoColumna::Entero32, TipoColumna::Memo});
    sentencia->ejecuta({});
    while (sentencia->siguiente(leidas)) {
    }
    for (const int largo : largos) {
        SCOPED_TRACE(largo);
        ASSERT_TRUE(leidas.siguiente());
        EXPECT_EQ(leidas.valor(1), Valor{largo});
        EXPECT_EQ(leidas.valor(0), (Valor{QString{largo, u'ñ'}}));
        EXPECT_EQ(leidas.valor(2), (Valor{QString{largo, u'ñ'}}));
    }
    EXPECT_FALSE(leidas.siguiente());
}

TEST_P(OdbcColumnas, ManyLongMemosComeInOrder)
{
    ejecuta(segun(u"insert into t (a, m) select n, repeat('é', n * 3) from generate_series(1, 500) n",
                  u"insert into t (a, m) select seq, repeat('é', seq * 3) from seq_1_to_500"));
    AlmacenFilas leidas{2};
    const auto sentencia =
        motor().prepara("select a, m from t order by orden_", {}, std::array{TipoColumna::Entero32, TipoColumna::Memo});
    sentencia->ejecuta({});
    while (sentencia->siguiente(leidas)) {
    }
    ASSERT_EQ(leidas.filas(), 500);
    for (int i = 1; leidas.siguiente(); ++i)
        ASSERT_EQ(leidas.valor(1), (Valor{QString{i * 3, u'é'}})) << i;
}

TEST_P(OdbcColumnas, ATextExpressionLongerThanAnyColumnComesWhole)
{
    EXPECT_EQ(filas(segun(u"select repeat('ab', 3000)", u"select repeat('ab', 3000)"), {TipoColumna::Texto}),
              "'" + QString{u"ab"_s}.repeated(3000).toStdString() + "'|");
}

TEST_P(OdbcColumnas, AnExpressionComesInTheTypeAskedFor)
{
    llena(3);
    EXPECT_EQ(filas(u"select count(*), sum(a), avg(a), max(x), max(f), min(i) from t"_s,
                    {TipoColumna::Entero32, TipoColumna::Doble, TipoColumna::Doble, TipoColumna::Texto, TipoColumna::FechaHora,
                     TipoColumna::Entero16}),
              "3,6,2,'fila 3',NULL,NULL|");
    EXPECT_EQ(filas(u"select -(case when a > 1 then 1 else 0 end) from t order by a"_s, {TipoColumna::SiNo}), "no|si|si|");
}

TEST_P(OdbcColumnas, ANumberThatDoesNotFitItsTypeIsAnOverflowNotAnotherNumber)
{
    llena(300);
    ejecuta(u"insert into t (a) values (40000)"_s);
    EXPECT_THROW(filas(u"select a from t order by orden_"_s, {TipoColumna::Entero16}), ErrorEjecucion);
    EXPECT_THROW(filas(u"select 3000000000"_s, {TipoColumna::Entero32}), ErrorEjecucion);
    EXPECT_EQ(filas(u"select 2147483647"_s, {TipoColumna::Entero32}), "2147483647|");
}

TEST_P(OdbcColumnas, ADateThatCannotBeReadIsRefusedWithItsColumn)
{
    ejecuta(u"insert into t (a, f) values (1, '0050-03-15')"_s);
    const auto rechazo = error([this] {
        filas(u"select a, f as nacimiento from t"_s, {TipoColumna::Entero32, TipoColumna::FechaHora});
    });
    ASSERT_TRUE(rechazo);
    EXPECT_EQ(rechazo->numero(), ErrorEjecucion::SentenciaRechazada);
    EXPECT_TRUE(rechazo->descripcion().contains(u"\"nacimiento\"")) << qPrintable(rechazo->descripcion());
    ejecuta(u"update t set f = null"_s);
    EXPECT_EQ(filas(u"select f from t"_s, {TipoColumna::FechaHora}), "NULL|");
}

TEST_P(OdbcColumnas, ATimeOfDayComesWithoutADay)
{
    const QString una = u"select cast('%1' as time), cast('2024-03-05' as date), cast(null as time)"_s;
    EXPECT_EQ(filas(una.arg(u"09:05:07"_s) + u" union all "_s + una.arg(u"23:59:58"_s) + u" order by 1"_s,
                    {TipoColumna::FechaHora, TipoColumna::FechaHora, TipoColumna::FechaHora}),
              "1899-12-30 9:5:7,2024-3-5 0:0:0,NULL|1899-12-30 23:59:58,2024-3-5 0:0:0,NULL|");
}

// The drivers do not let it be told from what they give in its place.
TEST_P(OdbcColumnas, ADateThatNoCalendarHasIsWhatTheDriverMakesOfIt)
{
    ejecuta(segun(u"insert into t (f) values ('infinity')", u"insert into t (f) values ('0000-00-00')"));
    EXPECT_EQ(filas(u"select f from t"_s, {TipoColumna::FechaHora}), esPostgreSql() ? "9999-12-31 23:59:59|" : "NULL|");
}

TEST_P(OdbcColumnas, BitsOfManyRowsAreFlags)
{
    llena(100);
    std::string esperadas;
    for (int i = 1; i <= 100; ++i)
        esperadas += i % 3 == 0 ? "si|" : "no|";
    EXPECT_EQ(filas(u"select mod(a, 3) = 0 from t order by orden_"_s, {TipoColumna::SiNo}), esperadas);
}

TEST_P(OdbcColumnas, RowsOfManyWideTextsComeWhole)
{
    QString sql = u"select a"_s;
    std::vector<TipoColumna> tipos{TipoColumna::Entero32};
    for (int i = 0; i < 60; ++i) {
        sql += u", x"_s;
        tipos.push_back(TipoColumna::Texto);
    }
    llena(100);
    const std::string todas = filas(sql + u" from t order by orden_"_s, tipos);
    EXPECT_EQ(std::count(todas.begin(), todas.end(), '|'), 100);
    EXPECT_EQ(todas.substr(0, 21), "1,'fila 1','fila 1','");
    EXPECT_TRUE(todas.ends_with(",'fila 100','fila 100'|"));
}

} // namespace
} // namespace kestrane::database::odbc
