#include "platform/jet/ambito.h"

#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

TEST(AmbitoTest, RefusesNamesThatMeanNothing)
{
    rehusaTraducir(u"select noexiste from clientes"_s, Clase::ColumnaDesconocida, u"noexiste"_s);
    rehusaTraducir(u"select clientes.noexiste from clientes"_s, Clase::ColumnaDesconocida, u"clientes.noexiste"_s);
    rehusaTraducir(u"select ventas.total from clientes"_s, Clase::TablaDesconocida, u"ventas.total"_s);
    rehusaTraducir(u"select ventas.* from clientes"_s, Clase::TablaDesconocida, u"ventas.*"_s);
    rehusaTraducir(u"select clientes.nombre from clientes c"_s, Clase::TablaDesconocida, u"clientes.nombre"_s);
    rehusaTraducir(u"select rowid from clientes"_s, Clase::ColumnaDesconocida, u"rowid"_s);
    rehusaTraducir(u"select clientes.rowid from clientes"_s, Clase::ColumnaDesconocida, u"clientes.rowid"_s);
}

TEST(AmbitoTest, RefusesNamesThatMeanSeveralThings)
{
    rehusaTraducir(u"select codigo from clientes, lineas"_s, Clase::NombreAmbiguo, u"codigo"_s);
    rehusaTraducir(u"select nombre from clientes, lineas where codigo = 3"_s, Clase::NombreAmbiguo, u"codigo"_s);
    rehusaTraducir(u"select nombre from clientes, lineas order by codigo"_s, Clase::NombreAmbiguo, u"codigo"_s);
    rehusaTraducir(u"select nombre from clientes inner join lineas on codigo = 3"_s, Clase::NombreAmbiguo, u"codigo"_s);
    rehusaTraducir(u"select * from clientes, Clientes"_s, Clase::NombreAmbiguo, u"Clientes"_s);
    rehusaTraducir(u"select * from clientes c, ventas C"_s, Clase::NombreAmbiguo, u"ventas"_s);
}

TEST(AmbitoTest, TheConditionOfAJoinSeesItsOwnTablesOnly)
{
    rehusaTraducir(u"select * from ventas, clientes c inner join lineas l on c.codigo = ventas.cliente"_s, Clase::TablaDesconocida,
                   u"ventas.cliente"_s);
    EXPECT_TRUE(traduce(u"select * from (clientes c inner join lineas l on c.codigo = l.codigo) left join ventas v "
                        "on v.numero = l.num_venta and v.cliente = c.codigo"_s)
                    .bien());
}

TEST(AmbitoTest, ASubqueryLooksInsideFirstAndThenOutside)
{
    EXPECT_EQ(condicionDe(u"codigo in (select codigo from lineas where precio > 5)"_s, Motor::Sqlite),
              u"t0.\"codigo\" IN (SELECT t1.\"codigo\" FROM \"lineas\" AS t1 WHERE t1.\"precio\" > ?)"_s);
    EXPECT_EQ(
        condicionDe(u"codigo in (select num_venta from lineas where nombre = tipo)"_s, Motor::Sqlite),
        u"t0.\"codigo\" IN (SELECT t1.\"num_venta\" FROM \"lineas\" AS t1 WHERE t0.\"nombre\" COLLATE ESPANOL = t1.\"tipo\")"_s);
    rehusaTraducir(u"select numero from ventas where nombre in (select nombre from clientes)"_s, Clase::ColumnaDesconocida,
                   u"nombre"_s);
    rehusaTraducir(u"select numero from ventas where cliente in (select lineas.nombre from lineas)"_s, Clase::ColumnaDesconocida,
                   u"lineas.nombre"_s);
}

TEST(AmbitoTest, NamesDoNotMindCase)
{
    EXPECT_EQ(sqlDe(u"select NOMBRE from CLIENTES where Clientes.Codigo = 1"_s, Motor::Sqlite),
              u"SELECT t0.\"nombre\", t0.\"rowid\" FROM \"clientes\" AS t0 WHERE t0.\"codigo\" = ? ORDER BY t0.\"rowid\""_s);
}

TEST(AmbitoTest, NamesDoNotMindCaseBeyondAsciiEither)
{
    const Tabla tabla = tablaDePrueba(u"años"_s, {{u"añoÉ"_s, TipoColumna::Entero32}});
    EXPECT_EQ(indiceDeColumna(tabla, u"AÑOé"), 0);
    EXPECT_EQ(indiceDeColumna(tabla, u"anoe"), -1);
    EXPECT_EQ(indiceDeColumna(tabla, u"añoÉx"), -1);
}

TEST(AmbitoTest, MessagesSayWhereTheNameWasLookedFor)
{
    const auto mensaje = [](const QString& sentencia) { return traduce(sentencia).error().mensaje; };
    EXPECT_EQ(mensaje(u"select nada from clientes, lineas l"_s), u"No existe la columna \"nada\" en \"clientes\", \"l\"."_s);
    EXPECT_EQ(mensaje(u"select l.nada from lineas l"_s), u"No existe la columna \"nada\" en \"l\"."_s);
    EXPECT_EQ(mensaje(u"select v.total from lineas l"_s),
              u"La tabla \"v\" de la columna \"v.total\" no está en FROM, donde hay \"l\"."_s);
    EXPECT_EQ(mensaje(u"select codigo from clientes, lineas"_s),
              u"La columna \"codigo\" está en varias tablas: escriba clientes.codigo o lineas.codigo."_s);
}

} // namespace
} // namespace kestrane::jet
