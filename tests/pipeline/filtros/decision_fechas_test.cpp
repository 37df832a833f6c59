#include "pipeline/filtros/decision_fechas.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using Paso = Aceptacion::Paso;

class DecisionFechasTest : public testing::Test
{
protected:
    static Fecha dia(int dia) { return *Fecha::deCalendario(2024, 3, dia); }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    DecisionFechas m_sencilla{m_contexto, false};
    DecisionFechas m_conFormatos{m_contexto, true};
};

TEST_F(DecisionFechasTest, LoadingForgetsFormatCompletenessAndAcceptanceAndKeepsStoreAndPeriod)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    m_contexto.FechaDesde = dia(1);
    m_sencilla.carga();
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.CajaCompleta || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
}

TEST_F(DecisionFechasTest, AOneDayPeriodIsAcceptedAndStored)
{
    EXPECT_EQ(m_sencilla.acepta(false, dia(15), dia(15)), (Aceptacion{Paso::Aceptada, {}}));
    EXPECT_EQ(m_contexto.FechaDesde, dia(15));
    EXPECT_EQ(m_contexto.FechaHasta, dia(15));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(DecisionFechasTest, AnEndBeforeTheBeginningIsToldAndNothingIsStored)
{
    m_contexto.FechaDesde = dia(1);
    m_contexto.FechaHasta = dia(2);
    EXPECT_EQ(m_sencilla.acepta(false, dia(15), dia(14)),
              (Aceptacion{Paso::Rechazada, u"La fecha hasta seleccionada es anterior a la fecha desde."_s}));
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
    EXPECT_EQ(m_contexto.FechaHasta, dia(2));
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(DecisionFechasTest, WithFormatsTheFirstAcceptanceAsksForThemAndReadsNothing)
{
    EXPECT_EQ(m_conFormatos.acepta(false, dia(15), dia(14)), (Aceptacion{Paso::PideFormato, {}}));
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(DecisionFechasTest, WithTheirPanelInSightAcceptanceRunsItsSecondStage)
{
    m_conFormatos.eligeFormato(true);
    EXPECT_EQ(m_conFormatos.acepta(true, dia(15), dia(16)).paso, Paso::Aceptada);
    EXPECT_TRUE(m_contexto.FormatoTicket);
    EXPECT_EQ(m_conFormatos.acepta(true, dia(15), dia(14)).paso, Paso::Rechazada);
}

TEST_F(DecisionFechasTest, TheBoxSaysWhetherTheCashIsComplete)
{
    m_sencilla.completa(true);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    m_sencilla.completa(false);
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

TEST_F(DecisionFechasTest, LeavingIsNoAcceptanceAndKeepsThePeriod)
{
    m_contexto.FiltroAceptado = true;
    m_contexto.FechaDesde = dia(3);
    m_sencilla.sale();
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.FechaDesde, dia(3));
}

TEST_F(DecisionFechasTest, AFirstDayAloneIsStoredWithoutACheckThoughItIsStillToCome)
{
    m_contexto.FechaHasta = dia(2);
    aceptaDesde(m_contexto, dia(31));
    EXPECT_EQ(m_contexto.FechaDesde, dia(31));
    EXPECT_EQ(m_contexto.FechaHasta, dia(2));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

} // namespace
} // namespace kestrane
