#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

TEST(TraductorTest, WhatIsRefusedSaysWhere)
{
    rehusaTraducir(u"select * from"_s, ErrorSql::Clase::SintaxisIncorrecta, u""_s);
    rehusaTraducir(u"select * from ventas where total = 'x'"_s, ErrorSql::Clase::TiposIncompatibles, u"'x'"_s);
    rehusaTraducir(u"select * from ventas where tienda = 'x"_s, ErrorSql::Clase::LiteralSinCerrar, u"'x"_s);
}

TEST(TraductorTest, EachStatementHasItsClass)
{
    EXPECT_EQ(traduce(u"ventas"_s).valor().clase, Traduccion::Clase::Consulta);
    EXPECT_EQ(traduce(u"insert into ventas (total) values (1)"_s).valor().clase, Traduccion::Clase::Insercion);
    EXPECT_EQ(traduce(u"update ventas set total = 1"_s).valor().clase, Traduccion::Clase::Modificacion);
    EXPECT_EQ(traduce(u"delete from ventas"_s).valor().clase, Traduccion::Clase::Borrado);
}

TEST(TraductorTest, ParametersComeInTheOrderOfTheRenderedText)
{
    const auto parametros =
        traduce(u"select top 5 numero, 'x' as a from ventas where total > 10 order by -numero = 7"_s).valor().parametros;
    std::vector<int> literales;
    for (const Parametro& parametro : parametros)
        literales.push_back(parametro.literal);
    EXPECT_EQ(literales, (std::vector{1, 2, 3, 0})); // TOP goes to the end
}

TEST(TraductorTest, APlainQueryOfOneTableCanBeEdited)
{
    const auto traduccion = traduce(u"select total, total + 1 as x, NUMERO, ventas.* from ventas where pago = 1"_s).valor();
    EXPECT_EQ(traduccion.tablaEditable, u"ventas"_s);
    EXPECT_EQ(traduccion.columnaDeTabla, (std::vector{5, -1, 0, 0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_TRUE(traduccion.sql.contains(", t0.\"rowid\" FROM"));
}

TEST(TraductorTest, OtherQueriesCannot)
{
    for (const QString& consulta :
         {u"select numero, nombre from ventas, clientes"_s, u"select distinct pago from ventas"_s,
          u"select distinct tienda from ventas"_s, u"select count(*) as n from ventas"_s,
          u"select pago from ventas group by pago"_s, u"select numero from ventas inner join clientes on cliente = codigo"_s,
          u"delete from ventas"_s}) {
        const auto traduccion = traduce(consulta).valor();
        EXPECT_EQ(traduccion.tablaEditable, u""_s) << qPrintable(consulta);
        EXPECT_TRUE(traduccion.columnaDeTabla.empty()) << qPrintable(consulta);
        EXPECT_FALSE(traduccion.sql.contains("\"rowid\" FROM")) << qPrintable(consulta);
    }
}

TEST(TraductorTest, RowsOfATableWithoutAnIdentityHaveNoHiddenColumn)
{
    CatalogoPrueba catalogo;
    Tabla tabla;
    tabla.nombre = u"ajena"_s;
    tabla.columnas = {{u"serie"_s, TipoColumna::Texto}, {u"numero"_s, TipoColumna::Entero32}};
    tabla.orden = {u"serie"_s, u"numero"_s};
    catalogo.anade(tabla);
    const Traductor traductor{catalogo, Motor::PostgreSql, ConfiguracionRegional::espania()};
    const auto todo = traductor.traduce(u"ajena"_s).valor();
    EXPECT_EQ(todo.tablaEditable, u"ajena"_s) << "rows can be added to it";
    EXPECT_EQ(QString::fromUtf8(todo.sql),
              u"SELECT t0.\"serie\", t0.\"numero\" FROM \"ajena\" AS t0 ORDER BY t0.\"serie\", t0.\"numero\""_s);
    EXPECT_EQ(QString::fromUtf8(traductor.traduce(u"select distinct serie from ajena"_s).valor().sql),
              u"SELECT DISTINCT t0.\"serie\" FROM \"ajena\" AS t0 ORDER BY 1 NULLS FIRST"_s);
}

} // namespace
} // namespace kestrane::jet
