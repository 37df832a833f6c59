#include "pipeline/filtros/decision_historico_clientes.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using Paso = Aceptacion::Paso;
using Ventas = DecisionHistoricoClientes::Ventas;

class DecisionHistoricoClientesTest : public testing::Test
{
protected:
    DecisionHistoricoClientesTest() { m_decision.carga(); }
    static Fecha dia(int dia) { return *Fecha::deCalendario(2024, 3, dia); }
    Aceptacion acepta(Ventas ventas = Ventas::Ambos) { return m_decision.acepta(dia(1), dia(15), ventas); }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    Filtros& m_filtros = m_contexto.filtros;
    DecisionHistoricoClientes m_decision{m_contexto};
};

TEST_F(DecisionHistoricoClientesTest, LoadingForgetsSectionFormatAndAcceptanceAndKeepsWhetherTheCashIsComplete)
{
    m_contexto.FormatoTicket = m_contexto.CajaCompleta = m_contexto.FiltroAceptado = true;
    m_filtros.seccion = 4;
    m_decision.carga();
    EXPECT_EQ(m_filtros.seccion, -1);
    EXPECT_FALSE(m_contexto.FormatoTicket || m_contexto.FiltroAceptado);
    EXPECT_TRUE(m_contexto.CajaCompleta);
}

TEST_F(DecisionHistoricoClientesTest, LeftAfterItsLoadTheSectionsOfBeforeStand)
{
    m_filtros.todasLasSecciones = true;
    m_decision.carga();
    m_decision.sale();
    EXPECT_TRUE(m_filtros.todasLasSecciones);
}

TEST_F(DecisionHistoricoClientesTest, WithoutASectionAllAreMeantThoughTheBoxWasNotTicked)
{
    m_filtros.todasLasSecciones = false;
    EXPECT_EQ(acepta().paso, Paso::Aceptada);
    EXPECT_TRUE(m_filtros.todasLasSecciones);
    EXPECT_EQ(m_filtros.seccion, -1);
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
    EXPECT_EQ(m_contexto.FechaHasta, dia(15));
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(DecisionHistoricoClientesTest, ASectionIsTheOnlyOne)
{
    m_filtros.todasLasSecciones = true;
    m_decision.eligeSeccion(4);
    EXPECT_EQ(acepta().paso, Paso::Aceptada);
    EXPECT_EQ(m_filtros.seccion, 4);
    EXPECT_FALSE(m_filtros.todasLasSecciones);
}

TEST_F(DecisionHistoricoClientesTest, AllSectionsTickedBehindOneKeepItsCode)
{
    m_decision.eligeSeccion(4);
    m_decision.todasLasSecciones(true);
    EXPECT_EQ(acepta().paso, Paso::Aceptada);
    EXPECT_TRUE(m_filtros.todasLasSecciones);
    EXPECT_EQ(m_filtros.seccion, 4);
    m_decision.todasLasSecciones(false);
    EXPECT_FALSE(m_filtros.todasLasSecciones);
}

TEST_F(DecisionHistoricoClientesTest, ProductsServicesOrBoth)
{
    (void)acepta(Ventas::Productos);
    EXPECT_TRUE(m_filtros.soloProductos && !m_filtros.soloServicios);
    (void)acepta(Ventas::Servicios);
    EXPECT_TRUE(!m_filtros.soloProductos && m_filtros.soloServicios);
    (void)acepta(Ventas::Ambos);
    EXPECT_FALSE(m_filtros.soloProductos || m_filtros.soloServicios);
}

TEST_F(DecisionHistoricoClientesTest, WhereOnlyProductsAreSoldThatIsNotAsked)
{
    for (const QString& tipo : {u"PERFUMERIA"_s, u"TPV"_s, u"SUPERMERCADO"_s, u"PANADERIA"_s}) {
        m_contexto.TipoPrograma = tipo;
        EXPECT_FALSE(m_decision.preguntaVentas()) << tipo.toStdString();
        (void)acepta(Ventas::Servicios);
        EXPECT_TRUE(m_filtros.soloProductos && !m_filtros.soloServicios) << tipo.toStdString();
    }
    for (const QString& tipo : {u"PELUQUERIA"_s, u"TALLACOLOR"_s}) {
        m_contexto.TipoPrograma = tipo;
        EXPECT_TRUE(m_decision.preguntaVentas()) << tipo.toStdString();
    }
}

TEST_F(DecisionHistoricoClientesTest, AWrongPeriodIsToldAndNothingIsStored)
{
    EXPECT_EQ(m_decision.acepta(dia(15), dia(14), Ventas::Productos),
              (Aceptacion{Paso::Rechazada, u"La fecha hasta seleccionada es anterior a la fecha desde."_s}));
    EXPECT_EQ(m_contexto.FechaDesde, Fecha{});
    EXPECT_FALSE(m_filtros.todasLasSecciones || m_filtros.soloProductos || m_contexto.FiltroAceptado);
}

} // namespace
} // namespace kestrane
