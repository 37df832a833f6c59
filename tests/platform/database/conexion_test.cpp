#include "platform/database/pasos_motor.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class ConexionContada : public PasosMotor
{
};

TEST_F(ConexionContada, AfterALostConnectionTheNextUseOpensAnewAndSendsWhatWaits)
{
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"a") = 999;
    rs.Update();
    m_pasos.cortados = 1;
    EXPECT_THROW(rs.Close(), ErrorEjecucion);
    EXPECT_FALSE(rs.abierto());
    Recordset otra;
    otra.Open(u"select a from t where a = 999"_s, m_conexion);
    EXPECT_TRUE(otra.RecordCount() == 1);
    EXPECT_EQ(m_pasos.abiertos, 2);
}

TEST_F(ConexionContada, ADatabaseThatStaysLostIsTriedAgainByEachUse)
{
    m_pasos.cortados = 1;
    m_base.renombra();
    EXPECT_THROW(m_conexion.Execute(u"delete from t"_s), ErrorEjecucion);
    EXPECT_THROW(m_conexion.Execute(u"delete from t"_s), ErrorEjecucion);
    m_base.renombra();
    m_conexion.Execute(u"delete from t"_s);
    EXPECT_EQ(m_pasos.abiertos, 2);
}

} // namespace
} // namespace kestrane::database
