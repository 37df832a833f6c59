// What the engine is asked for during a report; that results stay the same stands in conformidad/.

#include "platform/database/pasos_motor.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class SesionInforme : public PasosMotor
{
};

TEST_F(SesionInforme, WithinAReportARepeatedTextIsAnsweredFromMemory)
{
    const AmbitoInforme ambito = m_conexion.EmpiezaInforme();
    for (int i = 0; i < 20; ++i) {
        Recordset rs;
        rs.Open(u"select b from t where a = 7"_s, m_conexion);
        EXPECT_TRUE(rs.RecordCount() > 0);
        EXPECT_EQ(rs.Fields(0).texto(), u"fila 7");
    }
    EXPECT_EQ(m_pasos.ejecutadas, 2);
}

TEST_F(SesionInforme, AnnouncedStatementsAreReadInChunks)
{
    const AmbitoInforme ambito = m_conexion.EmpiezaInforme();
    Recordset padres;
    padres.Open(u"select n from padres"_s, m_conexion);
    padres.Anticipa(u"select b from t where a = "_s, u"n"_s, u" and b like '%'"_s);
    for (Recordset& padre : padres) {
        const QString n = QString::number(padre.Fields(0).entero32());
        Recordset rs;
        rs.Open(u"select b from t where a = "_s + n + u" and b like '%'"_s, m_conexion);
        ASSERT_TRUE(rs.RecordCount() == 1);
        ASSERT_EQ(rs.Fields(u"b").texto(), u"fila "_s + n);
    }
    EXPECT_EQ(m_pasos.ejecutadas, 3) << "the parents, 200 keys, 100 keys";
}

TEST_F(SesionInforme, AChunkThatFailsIsNotTriedForEachOfItsKeys)
{
    m_base.ejecuta("create table fechas (a LONG, d DATETIME); insert into fechas select n, '2024-01-01' from padres; "
                   "update fechas set d = 'ayer' where a = 150");
    const AmbitoInforme ambito = m_conexion.EmpiezaInforme();
    Recordset padres;
    padres.Open(u"select n from padres"_s, m_conexion);
    padres.Anticipa(u"select d from fechas where a = "_s, u"n"_s, u""_s);
    int leidas = 0;
    EXPECT_THROW(
        for (Recordset& padre
             : padres) {
            Recordset rs;
            rs.Open(u"select d from fechas where a = "_s + QString::number(padre.Fields(0).entero32()), m_conexion);
            EXPECT_TRUE(rs.RecordCount() > 0);
            ++leidas;
        },
        ErrorEjecucion);
    EXPECT_EQ(leidas, 149);
    EXPECT_EQ(m_pasos.ejecutadas, 1 + 1 + 150);
}

TEST_F(SesionInforme, AResultThatCannotBeReadIsNotRemembered)
{
    m_base.ejecuta("create table fechas (a LONG, d DATETIME); insert into fechas values (1, '2024-01-01'), (2, 'ayer')");
    const AmbitoInforme ambito = m_conexion.EmpiezaInforme();
    for (int vez = 0; vez < 4; ++vez) {
        Recordset rs;
        rs.Open(u"select d from fechas"_s, m_conexion);
        EXPECT_THROW(static_cast<void>(qint32{rs.RecordCount()}), ErrorEjecucion);
        rs.Close();
        rs.Open(u"select d from fechas"_s, m_conexion);
        EXPECT_TRUE(rs.RecordCount() > 0);
        m_conexion.Execute(u"delete from padres where n = 0"_s);
    }
}

TEST_F(SesionInforme, AnAnswerOlderThanAWriteIsNotRemembered)
{
    const AmbitoInforme ambito = m_conexion.EmpiezaInforme();
    const QString texto = u"select b from t where a = 7"_s;
    Recordset rs;
    rs.Open(texto, m_conexion);
    rs.Close();
    rs.Open(texto, m_conexion);
    EXPECT_EQ(rs.Fields(0).texto(), u"fila 7");
    m_conexion.Execute(u"update t set b = 'otra' where a = 7"_s);
    Recordset entretanto;
    entretanto.Open(texto, m_conexion);
    entretanto.Close();
    rs.Close();
    for (int vez = 0; vez < 3; ++vez) {
        rs.Open(texto, m_conexion);
        EXPECT_EQ(rs.Fields(0).texto(), u"otra");
        rs.Close();
    }
}

TEST_F(SesionInforme, ReadingAheadWorksInACacheOfOneShape)
{
    OpcionesDatos opciones = m_entorno.opciones();
    opciones.formas = 1;
    EntornoDatos entorno{opciones};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=Prueba"_s);
    m_pasos.aCero();
    const AmbitoInforme ambito = conexion.EmpiezaInforme();
    Recordset padres;
    padres.Open(u"select n from padres"_s, conexion);
    padres.Anticipa(u"select b from t where a = "_s, u"n"_s, u""_s);
    for (Recordset& padre : padres) {
        const QString n = QString::number(padre.Fields(0).entero32());
        Recordset rs;
        rs.Open(u"select b from t where a = "_s + n, conexion);
        ASSERT_EQ(rs.Fields(u"b").texto(), u"fila "_s + n);
    }
    EXPECT_EQ(m_pasos.ejecutadas, 3);
}

} // namespace
} // namespace kestrane::database
