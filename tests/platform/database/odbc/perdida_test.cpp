// A server that goes away under a program's connections and recordsets.

#include "platform/database/conexion.h"
#include "platform/database/odbc/servidor.h"
#include "platform/database/recordset.h"

namespace kestrane::database::odbc {
namespace {

class Perdida : public Servidor
{
protected:
    Perdida()
    {
        llena(3000);
        m_conexion.Open(u"dsn=Cualquiera"_s);
    }
    qint32 cuantas()
    {
        Recordset rs;
        rs.Open(u"select count(a) as n from t"_s, m_conexion);
        return rs.Fields(0).entero32();
    }
    /// Gathers a row in a recordset that it leaves open.
    void anade(Recordset& rs)
    {
        rs.Open(u"t"_s, m_conexion, CursorType::Keyset);
        rs.AddNew();
        rs.Fields(u"a") = 9999;
        rs.Fields(u"s") = false;
        rs.Update();
    }

    EntornoDatos m_entorno{opcionesDatos()};
    Conexion m_conexion{m_entorno};
};
KESTRANE_EN_TODOS(Perdida);

TEST_P(Perdida, TheNextStatementFailsAndTheOneBehindItConnectsAnew)
{
    EXPECT_EQ(cuantas(), 3000);
    cortaLasDemas();
    try {
        m_conexion.Execute(u"update t set i = 1"_s);
        FAIL();
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(error.descripcion().contains(u"perdido la conexión")) << qPrintable(error.descripcion());
    }
    EXPECT_EQ(cuantas(), 3000);
    EXPECT_EQ(filas(u"select count(*) from t where i = 1"_s, {TipoColumna::Entero32}), "0|");
}

TEST_P(Perdida, InTheMidstOfAResultAllRowsComeOrAnErrorNeverFewer)
{
    Recordset rs;
    rs.Open(u"select a, x from t"_s, m_conexion);
    EXPECT_FALSE(rs.Eof());
    cortaLasDemas();
    int leidas = 0;
    try {
        for (; !rs.Eof(); rs.MoveNext())
            ++leidas;
        EXPECT_EQ(leidas, 3000);
    } catch (const ErrorEjecucion& error) {
        EXPECT_TRUE(error.descripcion().contains(u"perdido la conexión")) << qPrintable(error.descripcion());
        EXPECT_THROW(rs.MoveNext(), ErrorEjecucion);
    }
    if (leidas == 3000) { // the driver held them all: the loss has yet to be met
        EXPECT_THROW(static_cast<void>(cuantas()), ErrorEjecucion);
    }
    EXPECT_EQ(cuantas(), 3000) << "over the next connection";
}

TEST_P(Perdida, RowsThatWaitedAreSentOverTheNextConnection)
{
    Recordset rs;
    anade(rs);
    cortaLasDemas();
    EXPECT_THROW(rs.Close(), ErrorEjecucion);
    EXPECT_EQ(cuantas(), 3001);
    EXPECT_NO_THROW(m_conexion.Close());
    EXPECT_EQ(filas(u"select count(*) from t where a = 9999"_s, {TipoColumna::Entero32}), "1|");
}

TEST_P(Perdida, RowsThatNoConnectionCouldSendAreToldAtTheEnd)
{
    {
        Recordset rs;
        anade(rs);
        cortaLasDemas();
    }
    EXPECT_THROW(m_entorno.termina(), ErrorEjecucion);
    EXPECT_EQ(cuantas(), 3001) << "a connection opened after all sends them";
    EXPECT_NO_THROW(m_entorno.termina());
}

} // namespace
} // namespace kestrane::database::odbc
