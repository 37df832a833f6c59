#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

TEST(BinderEscrituraTest, RefusesTablesAndColumnsThatAreNotThere)
{
    rehusaTraducir(u"insert into nada (a) values (1)"_s, Clase::TablaDesconocida, u"nada"_s);
    rehusaTraducir(u"update nada set a = 1"_s, Clase::TablaDesconocida, u"nada"_s);
    rehusaTraducir(u"delete from nada"_s, Clase::TablaDesconocida, u"nada"_s);
    rehusaTraducir(u"insert into ventas (nada) values (1)"_s, Clase::ColumnaDesconocida, u"nada"_s);
    rehusaTraducir(u"update ventas set nada = 1"_s, Clase::ColumnaDesconocida, u"nada"_s);
    rehusaTraducir(u"update ventas set total = nada"_s, Clase::ColumnaDesconocida, u"nada"_s);
    rehusaTraducir(u"update ventas set total = 1 where nada = 2"_s, Clase::ColumnaDesconocida, u"nada"_s);
    rehusaTraducir(u"delete from ventas where nada"_s, Clase::ColumnaDesconocida, u"nada"_s);
    rehusaTraducir(u"insert into ventas (total) values (pago)"_s, Clase::ColumnaDesconocida, u"pago"_s);
}

TEST(BinderEscrituraTest, RefusesColumnsAndValuesThatDoNotMatch)
{
    rehusaTraducir(u"insert into ventas (total, pago) values (1)"_s, Clase::SintaxisIncorrecta, u"ventas"_s);
    rehusaTraducir(u"insert into ventas (total) values (1, 2)"_s, Clase::SintaxisIncorrecta, u"ventas"_s);
    rehusaTraducir(u"insert into lineas values (1, 2)"_s, Clase::SintaxisIncorrecta, u"lineas"_s);
    rehusaTraducir(u"insert into ventas (total, TOTAL) values (1, 2)"_s, Clase::SintaxisIncorrecta, u"TOTAL"_s);
    rehusaTraducir(u"update ventas set total = 1, Total = 2"_s, Clase::SintaxisIncorrecta, u"Total"_s);
}

TEST(BinderEscrituraTest, RefusesValuesThatNoConversionMakesFit)
{
    rehusaTraducir(u"update ventas set fecha = 5"_s, Clase::TiposIncompatibles, u"5"_s);
    rehusaTraducir(u"update ventas set total = #03/15/2024#"_s, Clase::TiposIncompatibles, u"#03/15/2024#"_s);
    rehusaTraducir(u"update ventas set borrar = 'Si'"_s, Clase::TiposIncompatibles, u"'Si'"_s);
    rehusaTraducir(u"update ventas set total = tienda"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusaTraducir(u"update ventas set total = fecha"_s, Clase::TiposIncompatibles, u"fecha"_s);
    rehusaTraducir(u"update ventas set numero = total"_s, Clase::TiposIncompatibles, u"total"_s);
    rehusaTraducir(u"update ventas set numero = pago / 2"_s, Clase::TiposIncompatibles, u"pago / 2"_s);
    rehusaTraducir(u"update ventas set total = sum(total)"_s, Clase::AgrupacionIncorrecta, u"sum(total)"_s);
    rehusaTraducir(u"insert into ventas (total) values (count(*))"_s, Clase::AgrupacionIncorrecta, u"count(*)"_s);
}

TEST(BinderEscrituraTest, LiteralsTakeTheTypeOfTheirColumn)
{
    const auto parametros = traduce(u"insert into ventas (numero, fecha, pago, total, tienda, borrar) "
                                    "values (2.5, '15/03/2024', '3', '12,5', 105, 1)"_s)
                                .valor()
                                .parametros;
    EXPECT_EQ(parametros[0], (Parametro{0, TipoColumna::Entero32, 0, false, u"numero"_s}));
    EXPECT_EQ(parametros[1], (Parametro{1, TipoColumna::FechaHora, 0, false, u"fecha"_s}));
    EXPECT_EQ(parametros[2], (Parametro{2, TipoColumna::Entero16, 0, false, u"pago"_s}));
    EXPECT_EQ(parametros[3], (Parametro{3, TipoColumna::Doble, 0, false, u"total"_s}));
    EXPECT_EQ(parametros[4], (Parametro{4, TipoColumna::Texto, 50, false, u"tienda"_s}));
    EXPECT_EQ(parametros[5], (Parametro{5, TipoColumna::SiNo, 0, false, u"borrar"_s}));
}

TEST(BinderEscrituraTest, WidthsAreThoseOfTextsAlone)
{
    const auto parametros =
        traduce(u"update clientes set nombre = 'Ana', notas = 'x' where apellidos = 'Paz'"_s).valor().parametros;
    EXPECT_EQ(parametros[0], (Parametro{0, TipoColumna::Texto, 100, false, u"nombre"_s}));
    EXPECT_EQ(parametros[1], (Parametro{1, TipoColumna::Memo, 0, false, u"notas"_s}));
    EXPECT_EQ(parametros[2], (Parametro{2, TipoColumna::Texto, 0, false, {}}));
}

TEST(BinderEscrituraTest, StatementsThatWriteNameTheirTableFirst)
{
    const auto traduccion = traduce(u"Delete * from VENTAS where cliente in (select codigo from clientes)"_s).valor();
    EXPECT_EQ(traduccion.clase, Traduccion::Clase::Borrado);
    EXPECT_EQ(traduccion.tablas, (std::vector<QString>{u"ventas"_s, u"clientes"_s}));
    EXPECT_EQ(QString::fromUtf8(traduccion.sql), u"DELETE FROM \"ventas\" WHERE \"ventas\".\"cliente\" IN "
                                                 "(SELECT t1.\"codigo\" FROM \"clientes\" AS t1)"_s);
}

TEST(BinderEscrituraTest, OnlyComputedValuesThatMayNotFitAreWatched)
{
    const auto asignado = [](const QString& asignacion) {
        return sqlDe(u"update ventas set "_s + asignacion, Motor::Sqlite).section(u" = "_s, 1);
    };
    EXPECT_EQ(asignado(u"pago = pago + 1"_s), u"cabe_entero(\"ventas\".\"pago\" + ?, 16, 'pago')");
    EXPECT_EQ(asignado(u"numero = pago + 1"_s), u"cabe_entero(\"ventas\".\"pago\" + ?, 32, 'numero')");
    EXPECT_EQ(asignado(u"pago = numero"_s), u"cabe_entero(\"ventas\".\"numero\", 16, 'pago')");
    EXPECT_EQ(asignado(u"numero = pago"_s), u"\"ventas\".\"pago\"");
    EXPECT_EQ(asignado(u"pago = 5"_s), u"?");
    EXPECT_EQ(asignado(u"pago = null"_s), u"NULL");
    EXPECT_EQ(asignado(u"numero = total > 1"_s), u"-(\"ventas\".\"total\" > ?)");
    EXPECT_EQ(asignado(u"total = pago + 1"_s), u"\"ventas\".\"pago\" + ?");
}

TEST(BinderEscrituraTest, ServersWatchTheirColumnsThemselves)
{
    EXPECT_FALSE(sqlDe(u"update ventas set pago = pago + 1, tienda = tienda & 'x'"_s, Motor::PostgreSql).contains(u"cabe_"));
    EXPECT_FALSE(sqlDe(u"update ventas set pago = pago + 1, tienda = tienda & 'x'"_s, Motor::MariaDb).contains(u"cabe_"));
}

TEST(BinderEscrituraTest, Texts)
{
    EXPECT_EQ(sqlDe(u"insert into lineas values (1, 2, 'S', 2.5, null)"_s, Motor::Sqlite),
              u"INSERT INTO \"lineas\" (\"num_venta\", \"codigo\", \"tipo\", \"precio\", \"tienda\") VALUES (?, ?, ?, ?, NULL)"_s);
    EXPECT_EQ(sqlDe(u"update ventas set total = total - 1, tienda = tienda & 'x', borrar = true"_s, Motor::Sqlite),
              u"UPDATE \"ventas\" SET \"total\" = \"ventas\".\"total\" - ?, \"tienda\" = "
              "cabe_texto(ifnull(\"ventas\".\"tienda\", '') || ?, 50, 'tienda'), \"borrar\" = -1"_s);
    EXPECT_EQ(sqlDe(u"update ventas set borrar = pago, tienda = total, total = pago > 1"_s, Motor::Sqlite),
              u"UPDATE \"ventas\" SET \"borrar\" = -(\"ventas\".\"pago\" <> 0), \"tienda\" = "
              "cabe_texto(texto(\"ventas\".\"total\"), 50, 'tienda'), \"total\" = -(\"ventas\".\"pago\" > ?)"_s);
    EXPECT_EQ(sqlDe(u"delete from ventas"_s, Motor::Sqlite), u"DELETE FROM \"ventas\""_s);
}

} // namespace
} // namespace kestrane::jet
