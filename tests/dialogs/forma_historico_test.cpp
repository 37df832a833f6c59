#include "dialogs/forma_historico.h"

#include "dialogs/panel_de_prueba.h"
#include "pipeline/filtros/decision_historico_empleados.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class HistoricoSencillo final : public FormaHistorico
{
public:
    explicit HistoricoSencillo(const ServiciosDialogo& servicios)
        : FormaHistorico{u"frmSencilla"_s, u"Sencilla"_s, servicios}
        , m_decision{servicios.contexto}
    {
        sirve(m_decision);
        auto* columna = new QVBoxLayout{&fondo()};
        columna->addWidget(&periodo());
        columna->addLayout(casillas());
    }
    void carga()
    {
        viste();
        ensenaCompleto();
    }

private:
    DecisionHistoricoEmpleados m_decision;
};

class FormaHistoricoTest : public prueba::FormaConPanelesTest<HistoricoSencillo>
{
};

TEST_F(FormaHistoricoTest, TheTicketFormatIsChosenWhileItsBoxIsTicked)
{
    abre();
    pulsa(u"chFTicket"_s);
    EXPECT_TRUE(m_contexto.FormatoTicket);
    pulsa(u"chFTicket"_s);
    EXPECT_FALSE(m_contexto.FormatoTicket);
}

TEST_F(FormaHistoricoTest, CompletenessIsAskedForWithTheInvoiceModuleAlone)
{
    abre();
    EXPECT_FALSE(seVe(u"ch_Completo"_s));
    m_contexto.ModuloFacturas = true;
    abre();
    pulsa(u"ch_Completo"_s);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    pulsa(u"ch_Completo"_s);
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

TEST_F(FormaHistoricoTest, ItIsDressedBeforeAControlTakesAColourOfItsContainer)
{
    abre();
    EXPECT_EQ(m_aspecto.pasos,
              (QStringList{u"TraducirForm frmSencilla"_s, u"AplicarLetra frmSencilla"_s, u"PintarForm frmSencilla"_s}));
    EXPECT_EQ(fondoDe(control(*m_forma, u"ch_Completo"_s)), fondoDe(control(*m_forma, u"Frame1"_s)));
}

} // namespace
} // namespace kestrane
