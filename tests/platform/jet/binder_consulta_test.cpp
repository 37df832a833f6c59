#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

/// The names of the result, those from "*" marked with one.
QString nombres(const QString& sentencia)
{
    const auto traduccion = traduce(sentencia);
    if (!traduccion)
        return describe(traduccion.error(), sentencia);
    QStringList lista;
    for (const ColumnaResultado& columna : traduccion.valor().columnas)
        lista += columna.nombre + (columna.deAsterisco ? u"*"_s : QString());
    return lista.join(u' ');
}

/// What the rows are sorted by in the text for SQLite.
QString ordenDe(const QString& sentencia)
{
    return sqlDe(sentencia, Motor::Sqlite).section(u" ORDER BY "_s, 1);
}

TEST(BinderConsultaTest, RefusesTablesThatAreNotThere)
{
    rehusaTraducir(u"select * from noexiste"_s, Clase::TablaDesconocida, u"noexiste"_s);
    rehusaTraducir(u"noexiste"_s, Clase::TablaDesconocida, u"noexiste"_s);
    rehusaTraducir(u"select * from ventas where cliente in (select codigo from clientez)"_s, Clase::TablaDesconocida,
                   u"clientez"_s);
}

TEST(BinderConsultaTest, RefusesATableWhoseRowsHaveNoOrder)
{
    rehusaTraducir(u"select a from sinclave"_s, Clase::SinOrdenPosible, u"select a from sinclave"_s);
    rehusaTraducir(u"select a from sinclave order by a"_s, Clase::SinOrdenPosible, u"select a from sinclave order by a"_s);
    EXPECT_TRUE(traduce(u"select sum(a) from sinclave"_s).bien());
    EXPECT_TRUE(traduce(u"select a from sinclave group by a"_s).bien());
    EXPECT_TRUE(traduce(u"select nombre from clientes where codigo in (select a from sinclave)"_s).bien());
}

TEST(BinderConsultaTest, RefusesSortKeysOverWhatTheResultLeavesOut)
{
    const auto clase = Clase::ClaveDeOrdenFueraDelResultado;
    rehusaTraducir(u"select numero from ventas order by numero and tienda like '%x'"_s, clase, u"numero and tienda like '%x'"_s);
    rehusaTraducir(u"select v.pago, l.* from ventas v, lineas l order by l.tipo, l.codigo and v.tienda like '%x'"_s, clase,
                   u"l.codigo and v.tienda like '%x'"_s);
    rehusaTraducir(u"select numero from ventas order by -total"_s, clase, u"-total"_s);
    rehusaTraducir(u"select distinct tienda from ventas order by pago"_s, clase, u"pago"_s);
    rehusaTraducir(u"select numero from ventas order by 1"_s, Clase::SintaxisIncorrecta, u"1"_s);
    rehusaTraducir(u"select numero from ventas order by 'x' & 'y'"_s, Clase::SintaxisIncorrecta, u"'x' & 'y'"_s);
}

TEST(BinderConsultaTest, AStarShowsTheColumnsOfTheTablesInTheirOrder)
{
    EXPECT_EQ(nombres(u"select * from lineas"_s), u"num_venta* codigo* tipo* precio* tienda*"_s);
    EXPECT_EQ(nombres(u"lineas"_s), u"num_venta* codigo* tipo* precio* tienda*"_s);
    EXPECT_EQ(nombres(u"select * from lineas l, clientes"_s),
              u"num_venta* codigo* tipo* precio* tienda* codigo* nombre* apellidos* notas* nacimiento*"_s);
    EXPECT_EQ(nombres(u"select L.*, c.nombre from lineas l, clientes c"_s), u"num_venta* codigo* tipo* precio* tienda* nombre"_s);
    EXPECT_EQ(nombres(u"select *, codigo as n from lineas"_s), u"num_venta* codigo* tipo* precio* tienda* n"_s);
}

TEST(BinderConsultaTest, AColumnIsCalledByItsAliasItsNameOrANumber)
{
    EXPECT_EQ(nombres(u"select NUMERO, total as T, total x, total+1, sum(1) as s, 'a' from ventas"_s).section(u"\n"_s, 0, 0),
              u"Al agrupar, cada columna ha de estar en GROUP BY o dentro de sum, count, max, min o avg. (posición 8)"_s);
    EXPECT_EQ(nombres(u"select NUMERO, total as T, total x, total+1, 'a' from ventas"_s), u"numero T x Expr1000 Expr1001"_s);
    EXPECT_EQ(nombres(u"select distinct(tienda), pago from ventas"_s), u"tienda pago"_s);
    EXPECT_EQ(nombres(u"select count(*), max(nombre) from clientes"_s), u"Expr1000 Expr1001"_s);
}

TEST(BinderConsultaTest, AResultColumnHasTheWidthOfTheColumnItShows)
{
    const auto columnas = traduce(u"select nombre, nombre as n, notas, max(apellidos) as m, nombre & '' as x from clientes "
                                  "group by nombre, notas"_s)
                              .valor()
                              .columnas;
    std::vector<int> anchos;
    for (const ColumnaResultado& columna : columnas)
        anchos.push_back(columna.ancho);
    EXPECT_EQ(anchos, (std::vector{100, 100, 0, 100, 0}));
}

TEST(BinderConsultaTest, RowsWithoutAnOrderComeAsTheyWereStored)
{
    EXPECT_EQ(ordenDe(u"select * from ventas"_s), u"t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select nombre from ventas, clientes"_s), u"t0.\"rowid\", t1.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select l.precio from (ventas v inner join lineas l on numero = num_venta) left join clientes on cliente = "
                      "clientes.codigo"_s),
              u"t0.\"rowid\", t1.\"rowid\", t2.\"rowid\""_s);
}

TEST(BinderConsultaTest, EqualKeysFallBackOnTheStoredOrder)
{
    EXPECT_EQ(ordenDe(u"select numero from ventas order by fecha desc, total asc"_s),
              u"t0.\"fecha\" DESC, t0.\"total\", t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select * from ventas order by numero and tienda like '%x'"_s),
              u"-(t0.\"numero\" <> 0 AND t0.\"tienda\" LIKE ?), t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select top 3 numero from ventas"_s), u"t0.\"rowid\" LIMIT ?"_s);
}

TEST(BinderConsultaTest, GroupsComeAscendingByTheirColumns)
{
    EXPECT_EQ(ordenDe(u"select pago, sum(total) from ventas group by pago, cliente"_s), u"t0.\"pago\", t0.\"cliente\""_s);
    EXPECT_EQ(ordenDe(u"select pago, sum(total) from ventas group by pago, cliente order by sum(total) desc, cliente"_s),
              u"SUM(t0.\"total\") DESC, t0.\"cliente\", t0.\"pago\""_s);
    EXPECT_EQ(ordenDe(u"select month(fecha) as m from ventas group by month(fecha)"_s), u"mes(t0.\"fecha\")"_s);
}

TEST(BinderConsultaTest, DistinctRowsComeAscendingByTheList)
{
    EXPECT_EQ(ordenDe(u"select distinct pago, cliente from ventas"_s), u"1, 2"_s);
    EXPECT_EQ(ordenDe(u"select distinct pago, cliente from ventas order by cliente desc"_s), u"2 DESC, 1"_s);
    EXPECT_EQ(ordenDe(u"select distinct tienda, pago from ventas order by pago"_s),
              u"t0.\"pago\", t0.\"tienda\" COLLATE ESPANOL"_s);
}

TEST(BinderConsultaTest, OneRowAndSubqueriesHaveNoOrder)
{
    EXPECT_EQ(ordenDe(u"select sum(total), count(*) from ventas order by sum(total)"_s), u""_s);
    EXPECT_EQ(ordenDe(u"select sum(total) from ventas where cliente in (select codigo from clientes order by nombre)"_s), u""_s);
    EXPECT_EQ(condicionDe(u"codigo in (select top 2 cliente from ventas order by total)"_s, Motor::Sqlite),
              u"t0.\"codigo\" IN (SELECT t1.\"cliente\" FROM \"ventas\" AS t1 ORDER BY t1.\"total\", t1.\"rowid\" LIMIT ?)"_s);
}

TEST(BinderConsultaTest, ASortKeyIsAColumnBeforeItIsAnAlias)
{
    EXPECT_EQ(ordenDe(u"select total as numero from ventas order by numero"_s), u"t0.\"numero\", t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select total * 2 as doble from ventas order by doble desc"_s), u"t0.\"total\" * ? DESC, t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select total as t from ventas order by t + 1"_s).section(u"\n"_s, 0, 0),
              u"t0.\"total\" + ?, t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select distinct pago + 1 as p from ventas order by p desc"_s), u"1 DESC"_s);
    rehusaTraducir(u"select total as t from ventas where t > 1"_s, Clase::ColumnaDesconocida, u"t"_s);
}

TEST(BinderConsultaTest, ASortKeyMayBeAnExpressionOfTheList)
{
    EXPECT_EQ(ordenDe(u"select total * 2 as d from ventas order by d + 1"_s), u"t0.\"total\" * ? + ?, t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select total * 2 as d from ventas order by total * 2"_s), u"t0.\"total\" * ?, t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select tienda is null as d from ventas order by tienda is null"_s),
              u"-(t0.\"tienda\" IS NULL), t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select month(fecha) as m from ventas order by month(fecha)"_s), u"mes(t0.\"fecha\"), t0.\"rowid\""_s);
    EXPECT_EQ(ordenDe(u"select nombre from clientes order by codigo"_s), u"t0.\"codigo\", t0.\"rowid\""_s);
}

TEST(BinderConsultaTest, RefusesWhatOnlySomeEnginesRun)
{
    rehusaTraducir(u"select "_s + u"*,"_s.repeated(125) + u"numero from ventas"_s, Clase::DemasiadoLargo, u"numero"_s);
    EXPECT_TRUE(traduce(u"select "_s + u"*,"_s.repeated(124) + u"* from ventas"_s).bien()); // 125 times its 8 columns
    const QString interior = u"select top 1 num_venta from lineas where num_venta = numero"_s;
    rehusaTraducir(u"select numero from ventas where numero in (%1)"_s.arg(interior), Clase::SentenciaNoAdmitida, interior);
    EXPECT_TRUE(
        traduce(u"select numero from ventas where numero in (select top 1 num_venta from lineas where codigo = 1)"_s).bien());
}

TEST(BinderConsultaTest, TheTablesOfAStatementAreNamedOnce)
{
    EXPECT_EQ(traduce(u"select a.numero from ventas a, ventas b where a.cliente in (select codigo from CLIENTES)"_s).valor().tablas,
              (std::vector<QString>{u"ventas"_s, u"clientes"_s}));
}

} // namespace
} // namespace kestrane::jet
