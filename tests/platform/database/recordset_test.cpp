// How much of the database a recordset asks for, which its rows do not show; what they show stands in conformidad/.

#include "platform/database/pasos_motor.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class RecordsetContado : public PasosMotor
{
};

TEST_F(RecordsetContado, TheTestForMoreThanNoneReadsOneRow)
{
    Recordset rs;
    rs.Open(u"select a from t"_s, m_conexion);
    EXPECT_EQ(m_pasos.filas, 0);
    EXPECT_TRUE(rs.RecordCount() > 0);
    EXPECT_TRUE(rs.RecordCount() >= 1);
    EXPECT_FALSE(rs.RecordCount() == 0);
    EXPECT_FALSE(rs.RecordCount() < 1);
    EXPECT_TRUE(rs.RecordCount() != 0);
    EXPECT_FALSE(rs.Eof());
    EXPECT_EQ(rs.Fields(u"a").entero32(), 1);
    EXPECT_EQ(m_pasos.filas, 1);
}

TEST_F(RecordsetContado, TheTestForExactlyOneReadsTwo)
{
    Recordset rs;
    rs.Open(u"select a from t"_s, m_conexion);
    EXPECT_FALSE(rs.RecordCount() == 1);
    EXPECT_TRUE(rs.RecordCount() > 1);
    EXPECT_EQ(m_pasos.filas, 2);
}

TEST_F(RecordsetContado, TheNumberItselfReadsAll)
{
    Recordset rs;
    rs.Open(u"select a from t"_s, m_conexion);
    EXPECT_EQ(qint32{rs.RecordCount()}, 300);
    EXPECT_EQ(m_pasos.filas, 301);
    EXPECT_EQ(qint32{rs.RecordCount()}, 300);
    EXPECT_EQ(m_pasos.filas, 301);
}

TEST_F(RecordsetContado, TheStepToTheSecondRowReadsTheRestAndEndsTheEnginesCursor)
{
    Recordset rs;
    rs.Open(u"select a from t"_s, m_conexion);
    EXPECT_FALSE(rs.Eof());
    EXPECT_EQ(m_pasos.filas, 1);
    rs.MoveNext();
    EXPECT_EQ(m_pasos.filas, 301);
    EXPECT_EQ(rs.Fields(u"a").entero32(), 2);
}

TEST_F(RecordsetContado, AnAppendingRecordsetReadsNothingUntilARowIsAskedFor)
{
    Recordset rs;
    rs.Open(u"select * from t"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"a") = 301;
    rs.Update();
    EXPECT_EQ(m_pasos.ejecutadas, 0);
    EXPECT_EQ(m_pasos.filas, 0);
    EXPECT_EQ(m_pasos.envios, 0);
    EXPECT_TRUE(rs.RecordCount() > 0);
    EXPECT_EQ(m_pasos.ejecutadas, 1);
    EXPECT_EQ(m_pasos.filas, 1);
    EXPECT_EQ(m_pasos.envios, 1);
}

TEST_F(RecordsetContado, ALookUpAsksNothingButItsOneStep)
{
    Recordset rs;
    rs.Open(u"select b from t where a = 3"_s, m_conexion);
    EXPECT_TRUE(rs.RecordCount() > 0);
    EXPECT_EQ(rs.Fields(u"b").texto(), u"fila 3");
    rs.Close();
    EXPECT_EQ(m_pasos.preparadas, 1);
    EXPECT_EQ(m_pasos.ejecutadas, 1);
    EXPECT_EQ(m_pasos.filas, 1);
    EXPECT_EQ(m_pasos.reinicios, 1);
}

class RecordsetConFilaMala : public PasosMotor
{
protected:
    RecordsetConFilaMala()
    {
        m_base.ejecuta("create table fechas (a LONG, d DATETIME); insert into fechas select n, '2024-01-01' from padres; "
                       "update fechas set d = 'ayer' where a = 5");
        m_rs.Open(u"select a, d from fechas"_s, m_conexion);
        EXPECT_FALSE(m_rs.Eof());
    }

    Recordset m_rs;
};

TEST_F(RecordsetConFilaMala, ItNeverSeemsToHaveFewerRows)
{
    for (int vez = 0; vez < 3; ++vez) {
        EXPECT_THROW(static_cast<void>(qint32{m_rs.RecordCount()}), ErrorEjecucion);
        EXPECT_THROW(m_rs.MoveNext(), ErrorEjecucion);
        EXPECT_THROW(static_cast<void>(m_rs.RecordCount() > 0), ErrorEjecucion);
    }
}

TEST_F(RecordsetConFilaMala, OtherStatementsRunAndTheErrorComesWhereTheRowsAreAskedFor)
{
    EXPECT_NO_THROW(m_conexion.Execute(u"delete from padres"_s));
    EXPECT_EQ(m_base.consulta("select count(*) from padres"), "0|");
    EXPECT_EQ(m_rs.Fields(u"a").entero32(), 1) << "the row that was read stays";
    EXPECT_THROW(m_rs.MoveNext(), ErrorEjecucion);
}

TEST_F(RecordsetConFilaMala, ARecordsetThatGoesAwaySendsItsRowsAllTheSame)
{
    {
        Recordset altas;
        altas.Open(u"t"_s, m_conexion, CursorType::Keyset);
        altas.AddNew();
        altas.Fields(u"a") = 999;
        altas.Update();
    }
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "1|");
    EXPECT_THROW(m_rs.MoveNext(), ErrorEjecucion);
}

} // namespace
} // namespace kestrane::database
