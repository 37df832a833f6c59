#include "platform/database/plan_sentencia.h"

#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;
using jet::TipoColumna;

jet::Traduccion consulta()
{
    jet::Traduccion traduccion;
    traduccion.sql = "select a, b, rowid from t where a >= ? order by rowid";
    traduccion.parametros = {{0, TipoColumna::Entero32, 0, false, QString{}}};
    traduccion.columnas = {{u"a"_s, TipoColumna::Entero32, 0, true}, {u"b"_s, TipoColumna::Texto, 50, true}};
    traduccion.tablaEditable = u"t"_s;
    traduccion.columnaDeTabla = {0, 1};
    return traduccion;
}

class PlanSentenciaTest : public testing::Test
{
protected:
    sqlite::BaseDePrueba m_base{"create table t (a LONG, b TEXT(50)); insert into t values (1, 'uno'), (2, 'dos')"};
    sqlite::SqliteMotor m_motor{{m_base.fichero()}};
    PlanSentencia m_plan{consulta(), m_motor.catalogo().tabla(u"t")};
    Cursor::Anillo m_aMedias;
};

TEST_F(PlanSentenciaTest, HiddenColumnsStandBehindThoseOfTheResult)
{
    EXPECT_EQ(m_plan.columnas(), 2);
    EXPECT_EQ(m_plan.columna(u"B"), 1);
    EXPECT_EQ(m_plan.columna(u"rowid"), -1);
    EXPECT_EQ(m_plan.columnaIdentidad(), 2);
    EXPECT_EQ(m_plan.columnaClave(), -1);
    jet::Traduccion conClave = consulta();
    conClave.conClave = true;
    const PlanSentencia varias{std::move(conClave), m_plan.tabla()};
    EXPECT_EQ(varias.columnaClave(), 2);
    EXPECT_EQ(varias.columnaIdentidad(), 3);
    const PlanSentencia deUnaUnion{consulta(), nullptr};
    EXPECT_EQ(deUnaUnion.columnaIdentidad(), -1);
    jet::Tabla sinIdentidad = *m_plan.tabla();
    sinIdentidad.identidad.clear();
    EXPECT_EQ((PlanSentencia{consulta(), &sinIdentidad}.columnaIdentidad()), -1);
}

TEST_F(PlanSentenciaTest, TheIdentityComesWithEachRow)
{
    Cursor& cursor = m_plan.toma(m_motor, AlmacenFilas::LimitePorDefecto);
    const Ligado desde[] = {qint32{2}};
    cursor.ejecuta(desde, m_aMedias);
    ASSERT_TRUE(cursor.avanza());
    EXPECT_EQ(cursor.lector().valor(1), Valor{u"dos"_s});
    EXPECT_EQ(cursor.lector().valor(m_plan.columnaIdentidad()), Valor{2.0});
    m_plan.devuelve(cursor);
}

TEST_F(PlanSentenciaTest, CursorsAreMadeAsManyAsAreOpenAtOnceAndUsedAgain)
{
    Cursor& uno = m_plan.toma(m_motor, AlmacenFilas::LimitePorDefecto);
    Cursor& otro = m_plan.toma(m_motor, AlmacenFilas::LimitePorDefecto);
    EXPECT_NE(&uno, &otro);
    m_plan.devuelve(uno);
    EXPECT_EQ(&m_plan.toma(m_motor, AlmacenFilas::LimitePorDefecto), &uno);
    m_plan.devuelve(uno);
    m_plan.devuelve(otro);
}

} // namespace
} // namespace kestrane::database
