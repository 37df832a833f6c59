#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using Clase = ErrorSql::Clase;

void rehusa(const QString& condicion, Clase clase, const QString& lugar)
{
    rehusaTraducir(u"select * from ventas where "_s + condicion, clase, lugar);
}

TEST(BinderFuncionTest, RefusesFunctionsThatDoNotExistOrAreGivenTheWrongValues)
{
    rehusa(u"upper(tienda) = 'X'"_s, Clase::SintaxisIncorrecta, u"upper(tienda)"_s);
    rehusa(u"month() = 1"_s, Clase::SintaxisIncorrecta, u"month()"_s);
    rehusa(u"month(fecha, hora) = 1"_s, Clase::SintaxisIncorrecta, u"month(fecha, hora)"_s);
    rehusa(u"month(*) = 1"_s, Clase::SintaxisIncorrecta, u"month(*)"_s);
    rehusa(u"month(total) = 1"_s, Clase::TiposIncompatibles, u"total"_s);
    rehusa(u"hour('9:05') = 9"_s, Clase::TiposIncompatibles, u"'9:05'"_s);
    EXPECT_EQ(traduce(u"select upper(tienda) from ventas"_s).error().mensaje,
              u"No existe la función \"upper\": las hay month, year, day, hour, sum, count, max, min y avg."_s);
}

TEST(BinderFuncionTest, RefusesAggregatesWhereThereAreNoGroups)
{
    rehusa(u"sum(total) > 10"_s, Clase::AgrupacionIncorrecta, u"sum(total)"_s);
    rehusa(u"count(*) > 1"_s, Clase::AgrupacionIncorrecta, u"count(*)"_s);
    rehusaTraducir(u"select max(sum(total)) from ventas"_s, Clase::AgrupacionIncorrecta, u"sum(total)"_s);
    rehusaTraducir(u"select * from clientes inner join ventas on count(*) = cliente"_s, Clase::AgrupacionIncorrecta, u"count(*)"_s);
    rehusaTraducir(u"select sum(total) from ventas group by sum(total)"_s, Clase::AgrupacionIncorrecta, u"sum(total)"_s);
    rehusaTraducir(u"select sum(*) from ventas"_s, Clase::SintaxisIncorrecta, u"sum(*)"_s);
    rehusaTraducir(u"select count() from ventas"_s, Clase::SintaxisIncorrecta, u"count()"_s);
    rehusaTraducir(u"select sum(tienda) from ventas"_s, Clase::TiposIncompatibles, u"tienda"_s);
    rehusaTraducir(u"select avg(fecha) from ventas"_s, Clase::TiposIncompatibles, u"fecha"_s);
}

TEST(BinderFuncionTest, NamesOfFunctionsDoNotMindCase)
{
    EXPECT_EQ(expresionDe(u"MONTH (fecha)"_s, Motor::Sqlite), u"mes(t0.\"fecha\")"_s);
    EXPECT_EQ(sqlDe(u"select Count(*), SUM(total) from ventas"_s, Motor::Sqlite),
              u"SELECT COUNT(*), SUM(t0.\"total\") FROM \"ventas\" AS t0"_s);
}

} // namespace
} // namespace kestrane::jet
