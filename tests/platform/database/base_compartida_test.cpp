#include "platform/database/base_compartida.h"

#include "platform/database/motor_de_filas.h"
#include "platform/database/sqlite/base_de_prueba.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

class BaseCompartidaTest : public testing::Test
{
protected:
    BaseCompartidaTest() { m_base.entra(m_motor); }
    ~BaseCompartidaTest() override { m_base.sale(m_motor); }
    void anade(int maximo)
    {
        Edicion fila{tabla()};
        fila.pon(0, 1);
        m_base.anade(tabla(), fila);
        m_base.enviaSiHay(maximo);
    }
    const jet::Tabla& tabla() { return *m_motor.catalogo().tabla(u"t"); }
    std::string enviadas() { return m_fichero.consulta("select count(*) from t"); }

    sqlite::BaseDePrueba m_fichero{"create table t (a LONG)"};
    sqlite::SqliteMotor m_motor{{m_fichero.fichero()}};
    BaseCompartida m_base{QStringLiteral("Prueba"), std::chrono::seconds{5}};
};

TEST_F(BaseCompartidaTest, RowsWaitUntilThereAreEnough)
{
    anade(3);
    anade(3);
    EXPECT_EQ(enviadas(), "0|");
    anade(3);
    EXPECT_EQ(enviadas(), "3|");
    EXPECT_EQ(m_base.pendientes(), 0);
}

TEST_F(BaseCompartidaTest, ReadingAndWritingSendThem)
{
    anade(9);
    m_base.antesDeLeer();
    EXPECT_EQ(enviadas(), "1|");
    anade(9);
    m_base.antesDeEscribir();
    EXPECT_EQ(enviadas(), "2|");
}

TEST_F(BaseCompartidaTest, AddingAndWritingCountAsWritesAndReadingDoesNot)
{
    const quint64 antes = m_base.escrituras();
    m_base.antesDeLeer();
    EXPECT_EQ(m_base.escrituras(), antes);
    anade(9);
    EXPECT_GT(m_base.escrituras(), antes);
    const quint64 despues = m_base.escrituras();
    m_base.antesDeEscribir();
    EXPECT_GT(m_base.escrituras(), despues);
}

TEST_F(BaseCompartidaTest, AWriteReadsTheOpenQueriesToTheirEnds)
{
    SentenciaDeFilas::Vista vista;
    Cursor abierto{std::make_unique<SentenciaDeFilas>(5, vista), 1, AlmacenFilas::LimitePorDefecto};
    abierto.ejecuta({}, m_base.aMedias());
    m_base.antesDeLeer();
    EXPECT_FALSE(abierto.completo());
    m_base.antesDeEscribir();
    EXPECT_TRUE(abierto.completo());
    EXPECT_EQ(abierto.leidas(), 5);
}

TEST_F(BaseCompartidaTest, AnOpenQueryThatCannotBeReadDisturbsNoWrite)
{
    SentenciaDeFilas::Vista vista;
    Cursor roto{std::make_unique<SentenciaDeFilas>(5, vista, 2), 1, AlmacenFilas::LimitePorDefecto};
    roto.ejecuta({}, m_base.aMedias());
    EXPECT_NO_THROW(m_base.antesDeEscribir());
    EXPECT_THROW(static_cast<void>(roto.hay(5)), ErrorMotor);
}

TEST_F(BaseCompartidaTest, WithoutAnEngineRowsWaitAndTheErrorSaysSo)
{
    anade(9);
    m_base.sale(m_motor);
    try {
        m_base.envia();
        FAIL();
    } catch (const ErrorMotor& error) {
        EXPECT_TRUE(error.descripcion().contains(u"\"Prueba\""));
        EXPECT_TRUE(error.descripcion().contains(u"1 fila"));
    }
    EXPECT_FALSE(m_base.enviaSinError());
    m_base.entra(m_motor);
    EXPECT_TRUE(m_base.enviaSinError());
    EXPECT_EQ(enviadas(), "1|");
}

} // namespace
} // namespace kestrane::database
