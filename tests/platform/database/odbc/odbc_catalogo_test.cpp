#include "platform/database/odbc/odbc_catalogo.h"

#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

TEST(TipoDeServidor, TheServersTypesAreThoseOfTheDialect)
{
    const auto pg = [](const char16_t* tipo, int ancho = 0) { return tipoDeServidor(jet::Motor::PostgreSql, tipo, ancho); };
    EXPECT_EQ(pg(u"int4"), (TipoServidor{TipoColumna::Entero32, 0}));
    EXPECT_EQ(pg(u"sino"), (TipoServidor{TipoColumna::SiNo, 0}));
    EXPECT_EQ(pg(u"varchar", 20), (TipoServidor{TipoColumna::Texto, 20}));
    EXPECT_EQ(pg(u"text"), (TipoServidor{TipoColumna::Memo, 0}));
    EXPECT_EQ(pg(u"int8"), (TipoServidor{TipoColumna::Doble, 0})) << "wider than any integer of the dialect";
    EXPECT_EQ(pg(u"jsonb"), (TipoServidor{TipoColumna::Memo, 0}));
    EXPECT_EQ(pg(u"bool"), (TipoServidor{TipoColumna::SiNo, 0, true})) << "no number, as that of sino is";
    const auto maria = [](const char16_t* tipo, int ancho = 0) { return tipoDeServidor(jet::Motor::MariaDb, tipo, ancho); };
    EXPECT_EQ(maria(u"tinyint"), (TipoServidor{TipoColumna::SiNo, 0}));
    EXPECT_EQ(maria(u"bit"), (TipoServidor{TipoColumna::SiNo, 0, true}));
    EXPECT_EQ(maria(u"datetime"), (TipoServidor{TipoColumna::FechaHora, 0}));
    EXPECT_EQ(maria(u"char", 3), (TipoServidor{TipoColumna::Texto, 3}));
    EXPECT_EQ(maria(u"mediumtext", 65535), (TipoServidor{TipoColumna::Memo, 0}));
}

class OdbcCatalogoEnServidor : public Servidor
{
protected:
    void crea(const QString& definicion)
    {
        ejecuta(u"drop table if exists c"_s);
        ejecuta(u"create table c "_s + definicion);
    }
    const jet::Tabla* c() { return motor().catalogo().tabla(u"c"); }
};
KESTRANE_EN_TODOS(OdbcCatalogoEnServidor);

TEST_P(OdbcCatalogoEnServidor, ATableIsKnownWhateverTheCaseOfItsName)
{
    EXPECT_EQ(motor().catalogo().tabla(u"noexiste"), nullptr);
    EXPECT_EQ(motor().catalogo().tabla(u"pg_class"), nullptr);
    EXPECT_EQ(motor().catalogo().tabla(u"' or 1=1 --"), nullptr);
    const jet::Tabla* const tabla = motor().catalogo().tabla(u"T");
    ASSERT_NE(tabla, nullptr);
    EXPECT_EQ(tabla->nombre, u"t");
    EXPECT_EQ(motor().catalogo().tabla(u"t"), tabla);
}

TEST_P(OdbcCatalogoEnServidor, ATableMadeAfterItWasAskedForIsFound)
{
    ejecuta(u"drop table if exists c"_s);
    EXPECT_EQ(c(), nullptr);
    crea(u"(x int)"_s);
    EXPECT_NE(c(), nullptr);
}

TEST_P(OdbcCatalogoEnServidor, ColumnsHaveTypeWidthAndNullability)
{
    crea(segun(u"(orden_ bigint generated always as identity primary key, a integer not null, i smallint, d double precision, "
               u"f timestamp(0), x varchar(50), m text)",
               u"(orden_ bigint not null invisible auto_increment primary key, a int not null, i smallint, d double, f datetime, "
               u"x varchar(50), m mediumtext)"));
    ASSERT_NE(c(), nullptr);
    const std::vector<jet::Columna> esperadas = {
        {u"a"_s, TipoColumna::Entero32, 0, false}, {u"i"_s, TipoColumna::Entero16, 0, true}, {u"d"_s, TipoColumna::Doble, 0, true},
        {u"f"_s, TipoColumna::FechaHora, 0, true}, {u"x"_s, TipoColumna::Texto, 50, true},   {u"m"_s, TipoColumna::Memo, 0, true}};
    EXPECT_EQ(c()->columnas, esperadas);
}

TEST_P(OdbcCatalogoEnServidor, TheHiddenColumnIsOrderAndIdentity)
{
    EXPECT_EQ(motor().catalogo().tabla(u"t")->orden, std::vector{u"orden_"_s});
    EXPECT_EQ(motor().catalogo().tabla(u"t")->identidad, u"orden_");
    EXPECT_FALSE(motor().catalogo().tabla(u"t")->tieneClavesUnicas);
}

TEST_P(OdbcCatalogoEnServidor, WithoutItThePrimaryKeyIsTheOrderAndTheIdentityWhenItIsOneColumn)
{
    crea(u"(b int not null, a int not null, x int, primary key (a))"_s);
    EXPECT_EQ(c()->orden, std::vector{u"a"_s});
    EXPECT_EQ(c()->identidad, u"a");
    EXPECT_EQ(c()->columnas.size(), 3U);
    EXPECT_TRUE(c()->tieneClavesUnicas);
}

TEST_P(OdbcCatalogoEnServidor, AKeyOfSeveralColumnsIsAnOrderInItsOwnSequenceAndNoIdentity)
{
    crea(u"(b int not null, a int not null, x int, primary key (x, b))"_s);
    EXPECT_EQ(c()->orden, (std::vector{u"x"_s, u"b"_s}));
    EXPECT_EQ(c()->identidad, u"");
}

TEST_P(OdbcCatalogoEnServidor, WithoutAnyKeyThereIsNoOrder)
{
    crea(u"(b int, x int)"_s);
    EXPECT_TRUE(c()->orden.empty());
    EXPECT_EQ(c()->identidad, u"");
    EXPECT_FALSE(c()->tieneClavesUnicas);
}

TEST_P(OdbcCatalogoEnServidor, AUniqueIndexIsARuleBesideTheHiddenColumns)
{
    ejecuta(u"create unique index ut on t (a)"_s);
    EXPECT_TRUE(motor().catalogo().tabla(u"t")->tieneClavesUnicas);
}

TEST_P(OdbcCatalogoEnServidor, ADefaultThatANullWouldDisplaceIsARuleToo)
{
    crea(u"(b int default 7)"_s);
    EXPECT_TRUE(c()->tieneClavesUnicas);
}

TEST_P(OdbcCatalogoEnServidor, ADefaultOfAColumnThatTakesNoNullIsNone)
{
    EXPECT_FALSE(motor().catalogo().tabla(u"t")->tieneClavesUnicas) << "of its column s";
}

TEST_P(OdbcCatalogoEnServidor, ACheckIsARuleToo)
{
    crea(u"(b int, check (b > 0))"_s);
    EXPECT_TRUE(c()->tieneClavesUnicas);
}

} // namespace
} // namespace kestrane::database::odbc
