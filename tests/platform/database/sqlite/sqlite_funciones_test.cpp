#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database::sqlite {
namespace {

using namespace Qt::StringLiterals;

class SqliteFunciones : public testing::Test
{
protected:
    /// The text of an expression of the engine; "NULL" for Null, the error's text when it is refused.
    std::string valor(const char* expresion)
    {
        std::string texto = "NULL";
        const std::string sql = std::string{"select "} + expresion;
        try {
            m_motor.consulta(sql.c_str(), {}, [&](sqlite3_stmt* fila) {
                if (sqlite3_column_type(fila, 0) != SQLITE_NULL)
                    texto = SqliteMotor::texto(fila, 0).toStdString();
            });
        } catch (const ErrorEjecucion& error) {
            return error.descripcion().toStdString();
        }
        return texto;
    }

private:
    BaseDePrueba m_base{"create table t (a LONG)"};
    SqliteMotor m_motor{{m_base.fichero()}};
};

TEST_F(SqliteFunciones, NullGivesNull)
{
    for (const char* const expresion : {"mes(null)", "anio(null)", "hora(null)", "texto(null)", "division(1, null)",
                                        "resto(null, 2)", "null like '%'", "'a' like null"})
        EXPECT_EQ(valor(expresion), "NULL") << expresion;
}

TEST_F(SqliteFunciones, WhatCannotBeComputedIsRefusedInSpanish)
{
    EXPECT_NE(valor("mes('ayer')").find("no es una fecha"), std::string::npos);
    EXPECT_NE(valor("division(1, 0)").find("cero"), std::string::npos);
    EXPECT_NE(valor("resto(1, 0)").find("cero"), std::string::npos);
}

TEST_F(SqliteFunciones, PartsOfDates)
{
    EXPECT_EQ(valor("mes('2024-03-05')"), "3");
    EXPECT_EQ(valor("anio('2024-03-05 10:00:00')"), "2024");
    EXPECT_EQ(valor("dia('2024-03-05')"), "5");
    EXPECT_EQ(valor("hora('1899-12-30 09:05:00')"), "9");
    EXPECT_EQ(valor("hora('9:05')"), "9");
    EXPECT_EQ(valor("hora('2024-03-05')"), "0");
}

TEST_F(SqliteFunciones, TextsOfNumbersAndDatesAreRegional)
{
    EXPECT_EQ(valor("texto(12.5)"), "12,5");
    EXPECT_EQ(valor("texto(2)"), "2");
    EXPECT_EQ(valor("texto('ya')"), "ya");
    EXPECT_EQ(valor("texto_fecha('2024-03-05')"), "05/03/2024");
}

TEST_F(SqliteFunciones, DivisionsAreThoseOfTheDialect)
{
    EXPECT_EQ(valor("division(7, 2)"), "3.5");
    EXPECT_EQ(valor("division_entera(7, 2)"), "3");
    EXPECT_EQ(valor("division_entera(-7, 2)"), "-3");
    EXPECT_EQ(valor("division_entera(7.5, 2)"), "4") << "operands are rounded half to even: 8 by 2";
    EXPECT_EQ(valor("resto(7, 3)"), "1");
    EXPECT_EQ(valor("resto(-7, 3)"), "-1");
}

TEST_F(SqliteFunciones, LikeIgnoresCaseBeyondAsciiWithAndWithoutEscape)
{
    EXPECT_EQ(valor("'ESPAÑA' like '%España'"), "1");
    EXPECT_EQ(valor("'x\\y' like 'x\\%'"), "1");
    EXPECT_EQ(valor("'x\\y' like 'x\\%' escape '!'"), "1");
    EXPECT_EQ(valor("'a' like 'b'"), "0");
}

TEST_F(SqliteFunciones, TheCollationComparesAndSortsAsSpanish)
{
    EXPECT_EQ(valor("'ESPAÑA' = 'españa' collate espanol"), "1");
    EXPECT_EQ(valor("'a' = 'a ' collate espanol"), "0");
    EXPECT_EQ(valor("group_concat(c, ' ') from (select column1 c from (values ('Zoe'),('ñu'),('Álvaro'),('ana'),('oso'),('no')) "
                    "order by c collate espanol)"),
              "Álvaro ana no ñu oso Zoe");
}

} // namespace
} // namespace kestrane::database::sqlite
