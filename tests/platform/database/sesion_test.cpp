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
    m_pasos.losEnvios = Pasos::Envios::DiscoLleno;
    EXPECT_THROW(m_conexion.Execute(u"delete from padres"_s), ErrorEjecucion);
    EXPECT_FALSE(m_entorno.enviaPendientes());
    m_pasos.losEnvios = Pasos::Envios::Bien;
    m_conexion.Execute(u"delete from padres"_s);
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "1|");
}

TEST_F(SesionContada, RowsRefusedWithoutAWordAreToldWhenTheConnectionCloses)
{
    const auto anadeYSuelta = [this] {
        Recordset rs;
        rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
        rs.AddNew();
        rs.Fields(u"a") = 999;
        rs.Update();
        m_pasos.losEnvios = Pasos::Envios::FilasRechazadas;
    };
    anadeYSuelta();
    m_pasos.losEnvios = Pasos::Envios::Bien;
    EXPECT_THROW(m_conexion.Close(), ErrorEjecucion);
    EXPECT_FALSE(m_conexion.abierta());
    EXPECT_NO_THROW(m_entorno.termina()) << "it is told once";
    m_conexion.Open();
    anadeYSuelta();
    EXPECT_THROW(m_entorno.termina(), ErrorEjecucion);
}

TEST_F(SesionContada, RowsThatNoConnectionCouldSendAreToldAtTheEnd)
{
    {
        Conexion otra{m_entorno};
        otra.Open(u"dsn=Prueba"_s);
        Recordset rs;
        rs.Open(u"t"_s, otra, CursorType::Keyset);
        m_conexion.Close();
        rs.AddNew();
        rs.Fields(u"a") = 999;
        rs.Update();
        m_pasos.losEnvios = Pasos::Envios::DiscoLleno;
    }
    EXPECT_THROW(m_entorno.termina(), ErrorEjecucion);
    m_pasos.losEnvios = Pasos::Envios::Bien;
    m_conexion.Open();
    EXPECT_NO_THROW(m_entorno.termina());
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "1|");
}

TEST_F(SesionContada, ALockIsWaitedForOnceHoweverManyGoAwayBehindIt)
{
    EXPECT_THROW(
        {
            Conexion otra{m_entorno};
            otra.Open(u"dsn=Prueba"_s);
            Recordset una;
            una.Open(u"t"_s, otra, CursorType::Keyset);
            Recordset dos;
            dos.Open(u"t"_s, m_conexion, CursorType::Keyset);
            for (Recordset* const rs : {&una, &dos}) {
                rs->AddNew();
                rs->Fields(u"a") = 999;
                rs->Update();
            }
            m_pasos.losEnvios = Pasos::Envios::Bloqueados;
            otra.Execute(u"delete from padres"_s);
        },
        ErrorEjecucion);
    EXPECT_FALSE(m_entorno.enviaPendientes());
    EXPECT_EQ(m_pasos.esperado, m_entorno.opciones().espera);
    m_pasos.losEnvios = Pasos::Envios::Bien;
    EXPECT_TRUE(m_entorno.enviaPendientes());
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "2|");
    m_pasos.losEnvios = Pasos::Envios::Bloqueados;
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"a") = 1;
    rs.Update();
    EXPECT_THROW(rs.Close(), ErrorEjecucion);
    EXPECT_EQ(m_pasos.esperado, 2 * m_entorno.opciones().espera) << "the next lock is waited for again";
}

TEST_F(SesionContada, TheRowWhoseSendingFailsIsAddedAllTheSame)
{
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    for (int i = 0; i < m_entorno.opciones().filasPorEnvio - 1; ++i) {
        rs.AddNew();
        rs.Fields(u"a") = 999;
        rs.Update();
    }
    rs.AddNew();
    rs.Fields(u"a") = 999;
    m_pasos.losEnvios = Pasos::Envios::Bloqueados;
    EXPECT_THROW(rs.Update(), ErrorEjecucion);
    m_pasos.losEnvios = Pasos::Envios::Bien;
    rs.Update();
    rs.Close();
    EXPECT_EQ(m_base.consulta("select count(*) from t where a = 999"), "500|");
}

TEST_F(SesionContada, AnErrorOfTheRowsSentDoesNotNameTheStatementThatSendsThem)
{
    Recordset rs;
    rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
    rs.AddNew();
    rs.Fields(u"a") = 999;
    rs.Update();
    m_pasos.losEnvios = Pasos::Envios::FilasRechazadas;
    try {
        m_conexion.Execute(u"delete from padres"_s);
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_FALSE(error.descripcion().contains(u"padres")) << qPrintable(error.descripcion());
    }
}

} // namespace
} // namespace kestrane::database
