#include "platform/jet/anticipacion.h"

#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

std::optional<Traduccion> anticipada(const QString& sentencia, int literal, int claves, Motor motor = Motor::Sqlite)
{
    CatalogoPrueba catalogo = tiendaDePrueba(motor);
    return Traductor{catalogo, motor, ConfiguracionRegional::espania()}.traduceAnticipada(sentencia, literal, claves);
}

TEST(AnticipacionTest, ReadingAheadIsForPlainQueriesOfOneKeyAlone)
{
    const QString llana = u"select * from lineas where num_venta = 5 and tienda like '%x'"_s;
    EXPECT_TRUE(anticipada(llana, 0, 3));
    EXPECT_FALSE(anticipada(llana, 1, 3)); // LIKE
    EXPECT_FALSE(anticipada(llana, 2, 3)); // no such literal
    EXPECT_FALSE(anticipada(llana, 0, 0));
    for (const QString& otra :
         {u"select * from lineas where num_venta = -5"_s, u"select * from lineas where num_venta <> 5"_s,
          u"select * from lineas where num_venta = 5 or codigo = 1"_s, u"select * from lineas where not num_venta = 5"_s,
          u"select * from lineas where num_venta = 5.5"_s, u"select * from lineas where precio = 5"_s,
          u"select * from lineas where num_venta + 1 = 5"_s, u"select * from lineas where num_venta in (5)"_s,
          u"select sum(precio) from lineas where num_venta = 5"_s, u"select distinct codigo from lineas where num_venta = 5"_s,
          u"select codigo from lineas where num_venta = 5 group by codigo"_s,
          u"select * from lineas where codigo in (select numero from ventas where cliente = 5)"_s,
          u"select * from lineas where num_venta = 5 order by codigo = 7"_s, u"update lineas set precio = 1 where num_venta = 5"_s,
          u"select * from"_s})
        EXPECT_FALSE(anticipada(otra, 0, 3)) << qPrintable(otra);
    EXPECT_FALSE(anticipada(u"select top 2 * from lineas where num_venta = 5"_s, 1, 3));
}

TEST(AnticipacionTest, ReadingAheadPutsTheKeysLastAndTheirColumnBehindTheResult)
{
    const auto traduccion =
        anticipada(u"select codigo from lineas where 5 = num_venta and (tienda like '%x' or precio > 1) order by codigo"_s, 0, 3);
    ASSERT_TRUE(traduccion);
    EXPECT_EQ(QString::fromUtf8(traduccion->sql),
              u"SELECT t0.\"codigo\", t0.\"num_venta\", t0.\"rowid\" FROM \"lineas\" AS t0 WHERE (t0.\"tienda\" LIKE ? OR "
              "t0.\"precio\" > ?) AND t0.\"num_venta\" IN (?, ?, ?) ORDER BY t0.\"codigo\", t0.\"rowid\""_s);
    EXPECT_TRUE(traduccion->conClave);
    EXPECT_EQ(traduccion->columnas.size(), 1u);
    EXPECT_EQ(traduccion->tablaEditable, u"lineas"_s);
    const Parametro clave{0, TipoColumna::Entero32, 0, false, {}};
    EXPECT_EQ(traduccion->parametros[1].literal, 2);
    for (size_t i = 2; i < 5; ++i)
        EXPECT_EQ(traduccion->parametros[i], clave);
}

TEST(AnticipacionTest, ReadingAheadWorksOverJoins)
{
    const auto traduccion = anticipada(u"select l.precio from ventas v, lineas l where v.numero = l.num_venta and v.cliente = 5"_s,
                                       0, 2, Motor::PostgreSql);
    ASSERT_TRUE(traduccion);
    EXPECT_EQ(
        QString::fromUtf8(traduccion->sql),
        u"SELECT t1.\"precio\", t0.\"cliente\" FROM \"ventas\" AS t0, \"lineas\" AS t1 WHERE t0.\"numero\" = t1.\"num_venta\" AND "
        "t0.\"cliente\" IN (CAST(? AS integer), CAST(? AS integer)) ORDER BY t0.\"orden_\", t1.\"orden_\""_s);
}

} // namespace
} // namespace kestrane::jet
