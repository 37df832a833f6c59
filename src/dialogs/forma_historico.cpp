#include "dialogs/forma_historico.h"

#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

FormaHistorico::FormaHistorico(const QString& objeto, const QString& titulo, const ServiciosDialogo& servicios)
    : FormaFiltro{objeto, titulo, servicios}
    , m_fondo{marco(u"Frame1"_s, this)}
    , m_periodo{new EleccionDePeriodo{reloj(), m_fondo}}
    , m_completo{casilla(u"ch_Completo"_s, u"Completo"_s, m_fondo)}
    , m_formatoTicket{casilla(u"chFTicket"_s, u"Formato Ticket"_s, m_fondo)}
    , m_tienda{new EleccionDeTienda{contexto(), m_fondo}}
{
    auto* exterior = new QVBoxLayout{this};
    exterior->setContentsMargins({});
    exterior->addWidget(m_fondo);
}

void FormaHistorico::sirve(DecisionDeFiltro& decision)
{
    connect(m_completo, &QCheckBox::toggled, this, [&decision](bool marcada) { decision.completa(marcada); });
    connect(m_formatoTicket, &QCheckBox::toggled, this, [&decision](bool marcada) { decision.eligeFormato(marcada); });
}

void FormaHistorico::viste()
{
    aspecto().TraducirForm(*this);
    aspecto().AplicarLetra(*this);
    aspecto().PintarForm(*this);
    copiaFondo(*m_completo, *m_completo->parentWidget());
}

void FormaHistorico::ensenaCompleto()
{
    m_completo->setVisible(contexto().ModuloFacturas);
}

QLayout* FormaHistorico::casillas()
{
    auto* fila = new QHBoxLayout;
    fila->addWidget(m_formatoTicket);
    fila->addWidget(m_completo);
    fila->addStretch(1);
    return fila;
}

} // namespace kestrane
