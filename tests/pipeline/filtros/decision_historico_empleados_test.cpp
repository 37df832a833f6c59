#include "pipeline/filtros/decision_historico_empleados.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using Paso = Aceptacion::Paso;

class DecisionHistoricoEmpleadosTest : public testing::Test
{
protected:
    static Fecha dia(int dia) { return *Fecha::deCalendario(2024, 3, dia); }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    DecisionHistoricoEmpleados m_decision{m_contexto};
};

TEST_F(DecisionHistoricoEmpleadosTest, LoadingForgetsCompletenessFormatAndAcceptanceAndKeepsTheEmployee)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    m_contexto.filtros.empleado = 3;
    m_decision.carga();
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.CajaCompleta || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.filtros.empleado, 3);
}

TEST_F(DecisionHistoricoEmpleadosTest, OneEmployeeOrAllAndTheWayBackIsAll)
{
    m_decision.eligeEmpleado(7);
    EXPECT_EQ(m_contexto.filtros.empleado, 7);
    m_decision.eligeTodos();
    EXPECT_EQ(m_contexto.filtros.empleado, -1);
    m_decision.eligeEmpleado(7);
    m_decision.vuelve();
    EXPECT_EQ(m_contexto.filtros.empleado, -1);
}

TEST_F(DecisionHistoricoEmpleadosTest, InTotalsOrInDetail)
{
    m_decision.totaliza();
    EXPECT_TRUE(m_contexto.filtros.totalizado);
    m_decision.detalla();
    EXPECT_FALSE(m_contexto.filtros.totalizado);
}

TEST_F(DecisionHistoricoEmpleadosTest, AcceptingChecksThePeriodAndStoresIt)
{
    EXPECT_EQ(m_decision.acepta(dia(15), dia(14)).paso, Paso::Rechazada);
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
    EXPECT_EQ(m_decision.acepta(dia(15), dia(15)).paso, Paso::Aceptada);
    EXPECT_EQ(m_contexto.FechaDesde, dia(15));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

} // namespace
} // namespace kestrane
