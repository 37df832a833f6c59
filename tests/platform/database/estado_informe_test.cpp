#include "platform/database/estado_informe.h"

#include "platform/database/motor_de_filas.h"

#include <gtest/gtest.h>

namespace kestrane::database {
namespace {

using namespace Qt::StringLiterals;

class EstadoInformeTest : public testing::Test
{
protected:
    void guarda() { m_estado.respuestas().guarda(u"a"_s, m_plan, std::make_shared<const AlmacenFilas>(1)); }
    bool recuerda() { return m_estado.respuestas().busca(u"a"_s) != nullptr; }

    PlanSentencia m_plan{jet::Traduccion{}, nullptr};
    EstadoInforme m_estado{100'000};
};

TEST_F(EstadoInformeTest, ItIsActiveBetweenTheFirstBeginningAndTheLastEnd)
{
    EXPECT_FALSE(m_estado.activo());
    m_estado.empieza();
    m_estado.empieza();
    m_estado.termina();
    EXPECT_TRUE(m_estado.activo());
    m_estado.termina();
    EXPECT_FALSE(m_estado.activo());
}

TEST_F(EstadoInformeTest, TheLastEndForgets)
{
    m_estado.empieza();
    m_estado.empieza();
    guarda();
    m_estado.termina();
    EXPECT_TRUE(recuerda());
    m_estado.termina();
    EXPECT_FALSE(recuerda());
}

TEST_F(EstadoInformeTest, AWriteForgetsWhatWasRead)
{
    m_estado.alDia(5);
    guarda();
    m_estado.alDia(5);
    EXPECT_TRUE(recuerda());
    m_estado.alDia(6);
    EXPECT_FALSE(recuerda());
}

TEST_F(EstadoInformeTest, AnswersReadAheadHaveHalfOfTheMemoryUntilTheyAreForgotten)
{
    Cursor::Anillo aMedias;
    SentenciaDeFilas::Vista vista;
    Cursor cabeceras{std::make_unique<SentenciaDeFilas>(3, vista), 1, AlmacenFilas::LimitePorDefecto};
    cabeceras.ejecuta({}, aMedias);
    cabeceras.completa();
    const ConfiguracionRegional regional = ConfiguracionRegional::espania();
    EXPECT_EQ(m_estado.bytesParaAdelantar(), 50'000);
    m_estado.anuncia(std::make_unique<Anticipacion>(this, cabeceras, 0, u"x"_s, u""_s, regional));
    AlmacenFilas filas{1};
    filas.empiezaFila();
    filas.ponTextoUtf8("0123456789", 10);
    filas.terminaFila();
    const qsizetype bytes = filas.bytes();
    EXPECT_GT(bytes, 10);
    m_estado.anticipaciones().front()->guarda({u"1"_s}, {std::make_shared<const AlmacenFilas>(std::move(filas))});
    EXPECT_EQ(m_estado.bytesParaAdelantar(), 50'000 - bytes);
    m_estado.alDia(1);
    EXPECT_EQ(m_estado.bytesParaAdelantar(), 50'000);
}

TEST_F(EstadoInformeTest, AnAnnouncementGoesWithItsRecordset)
{
    Cursor::Anillo aMedias;
    SentenciaDeFilas::Vista vista;
    Cursor cabeceras{std::make_unique<SentenciaDeFilas>(3, vista), 1, AlmacenFilas::LimitePorDefecto};
    cabeceras.ejecuta({}, aMedias);
    cabeceras.completa();
    const ConfiguracionRegional regional = ConfiguracionRegional::espania();
    const int uno = 1;
    const int otro = 2;
    m_estado.anuncia(std::make_unique<Anticipacion>(&uno, cabeceras, 0, u"x"_s, u""_s, regional));
    m_estado.anuncia(std::make_unique<Anticipacion>(&otro, cabeceras, 0, u"y"_s, u""_s, regional));
    m_estado.retira(&uno);
    ASSERT_EQ(m_estado.anticipaciones().size(), 1u);
    EXPECT_TRUE(m_estado.anticipaciones().front()->esDe(&otro));
}

} // namespace
} // namespace kestrane::database
