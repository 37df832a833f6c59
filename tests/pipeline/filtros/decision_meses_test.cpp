#include "pipeline/filtros/decision_meses.h"

#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

database::OpcionesDatos conRegional(const QString& nombre)
{
    database::OpcionesDatos opciones;
    opciones.regional = ConfiguracionRegional::deNombre(nombre).value();
    return opciones;
}

class DecisionMesesTest : public testing::Test
{
protected:
    explicit DecisionMesesTest(const QString& regional = u"es_ES"_s) : m_entorno{conRegional(regional)} { m_decision.carga(); }
    void pulsa(void (DecisionMeses::*boton)(), int veces)
    {
        for (int vez = 0; vez < veces; ++vez)
            (m_decision.*boton)();
    }

    EntornoDatos m_entorno;
    ContextoEjecucion m_contexto{m_entorno};
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15, 18, 30)};
    DecisionMeses m_decision{m_contexto, m_reloj};
};

TEST_F(DecisionMesesTest, ItBeginsWithTheMonthOfTodayAndWithBothButtonsForward)
{
    m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    m_decision.carga();
    EXPECT_EQ(m_decision.mes(), 3);
    EXPECT_EQ(m_decision.anio(), 2024);
    EXPECT_EQ(m_decision.nombreDelMes(), u"marzo"_s);
    EXPECT_TRUE(m_decision.seVeMesSiguiente() && m_decision.seVeAnioSiguiente());
    EXPECT_FALSE(m_contexto.CajaCompleta || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
}

TEST_F(DecisionMesesTest, BackFromJanuaryIsDecemberOfTheSameYear)
{
    pulsa(&DecisionMeses::mesAnterior, 2);
    EXPECT_EQ(m_decision.mes(), 1);
    m_decision.mesAnterior();
    EXPECT_EQ(m_decision.mes(), 12);
    EXPECT_EQ(m_decision.anio(), 2024);
}

TEST_F(DecisionMesesTest, ForwardFromDecemberIsJanuaryOfTheSameYear)
{
    pulsa(&DecisionMeses::mesSiguiente, 10);
    EXPECT_EQ(m_decision.mes(), 1);
    EXPECT_EQ(m_decision.anio(), 2024);
}

TEST_F(DecisionMesesTest, OnePressReachesAMonthAndAYearThatAreStillToCome)
{
    m_decision.mesSiguiente();
    m_decision.anioSiguiente();
    EXPECT_EQ(m_decision.mes(), 4);
    EXPECT_EQ(m_decision.anio(), 2025);
    EXPECT_TRUE(m_decision.seVeMesSiguiente() && m_decision.seVeAnioSiguiente());
}

TEST_F(DecisionMesesTest, ReachingTheMonthOfTodayHidesItsButtonInAnotherYearToo)
{
    m_decision.anioAnterior();
    m_decision.mesAnterior();
    m_decision.mesSiguiente();
    EXPECT_FALSE(m_decision.seVeMesSiguiente());
    EXPECT_EQ(m_decision.anio(), 2023);
    m_decision.mesAnterior();
    EXPECT_TRUE(m_decision.seVeMesSiguiente());
}

TEST_F(DecisionMesesTest, ReachingTheYearOfTodayHidesItsButtonUntilTheNextStepBack)
{
    m_decision.anioAnterior();
    EXPECT_TRUE(m_decision.seVeAnioSiguiente());
    m_decision.anioSiguiente();
    EXPECT_FALSE(m_decision.seVeAnioSiguiente());
    m_decision.anioAnterior();
    EXPECT_TRUE(m_decision.seVeAnioSiguiente());
}

TEST_F(DecisionMesesTest, AcceptingStoresBothAsTheyStand)
{
    m_decision.pon(12, 2019);
    m_decision.acepta();
    EXPECT_EQ(m_contexto.filtros.mes, 12);
    EXPECT_EQ(m_contexto.filtros.anio, 2019);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(DecisionMesesTest, AYearThatNoSixteenBitsHoldIsAnError)
{
    m_decision.pon(1, 32768);
    EXPECT_THROW(m_decision.acepta(), ErrorEjecucion);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

class DecisionMesesInglesaTest : public DecisionMesesTest
{
protected:
    DecisionMesesInglesaTest() : DecisionMesesTest{u"en_GB"_s} {}
};

TEST_F(DecisionMesesInglesaTest, MonthsAreNamedInTheMachinesLanguage)
{
    EXPECT_EQ(m_decision.nombreDelMes(), u"March"_s);
    m_decision.pon(12, 2024);
    EXPECT_EQ(m_decision.nombreDelMes(), u"December"_s);
}

} // namespace
} // namespace kestrane
