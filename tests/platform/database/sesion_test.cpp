// How statements share what is prepared and when rows are sent, which results do not show.

#include "platform/database/pasos_motor.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class SesionContada : public PasosMotor
{
};

TEST_F(SesionContada, StatementsThatDifferInTheirLiteralsArePreparedOnce)
{
    for (int i = 1; i <= 50; ++i) {
        Recordset rs;
        rs.Open(u"select b from t where a = "_s + QString::number(i), m_conexion);
        EXPECT_EQ(rs.Fields(0).texto(), u"fila "_s + QString::number(i));
    }
    EXPECT_EQ(m_pasos.preparadas, 1);
    EXPECT_EQ(m_pasos.ejecutadas, 50);
    EXPECT_EQ(m_pasos.filas, 50);
}

TEST_F(SesionContada, OneShapeOpenTwiceAtOnceIsPreparedTwice)
{
    for (int i = 1; i <= 10; ++i) {
        Recordset una;
        una.Open(u"select b from t where a = 1"_s, m_conexion);
        Recordset otra;
        otra.Open(u"select b from t where a = 2"_s, m_conexion);
        EXPECT_NE(una.Fields(0).texto(), otra.Fields(0).texto());
    }
    EXPECT_EQ(m_pasos.preparadas, 2);
}

TEST_F(SesionContada, AWriteCompletesTheRowsThatAreOpen)
{
    Recordset rs;
    rs.Open(u"select a from t"_s, m_conexion);
    EXPECT_FALSE(rs.Eof());
    m_conexion.Execute(u"delete from t where a = 5"_s);
    EXPECT_EQ(m_pasos.filas, 301);
}

TEST_F(SesionContada, RowsThatWroteDifferentColumnsAreSentTogether)
{
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    for (int i = 0; i < 100; ++i) {
        rs.AddNew();
        if (i % 2 == 0)
            rs.Fields(u"a") = i;
        else
            rs.Fields(u"b") = u"impar"_s;
        rs.Update();
    }
    rs.Close();
    EXPECT_EQ(m_pasos.envios, 1);
    EXPECT_EQ(m_pasos.filasEnviadas, 100);
}

TEST_F(SesionContada, RowsThatCouldNotBeSentWaitOnAndTheErrorIsTold)
{
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"a") = 999;
    rs.Update();
    m_pasos.fallan = true;
    EXPECT_THROW(m_conexion.Execute(u"delete from padres"_s), ErrorEjecucion);
    EXPECT_FALSE(m_entorno.enviaPendientes());
    m_pasos.fallan = false;
    m_conexion.Execute(u"delete from padres"_s);
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "1|");
}

} // namespace
} // namespace kestrane::database
