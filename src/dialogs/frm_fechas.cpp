#include "dialogs/frm_fechas.h"

#include "dialogs/dibujos_formato.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace kestrane {

using namespace Qt::StringLiterals;

FrmFechas::FrmFechas(const ServiciosDialogo& servicios, PreparacionFechas preparacion)
    : FormaFiltro{u"frmFechas"_s, u"Fechas"_s, servicios}
    , m_preparacion{std::move(preparacion)}
    , m_decision{servicios.contexto, m_preparacion.ConFormatos}
{
    monta();
}

void FrmFechas::monta()
{
    m_frame1 = marco(u"Frame1"_s, this);
    m_frame4 = marco(u"Frame4"_s, m_frame1);
    m_frFiltros = marco(u"frFiltros"_s, m_frame4);
    auto* filtros = new QVBoxLayout{m_frFiltros};
    m_periodo = new EleccionDePeriodo{reloj(), m_frFiltros};
    filtros->addWidget(m_periodo);
    m_completo = casilla(u"ch_Completo"_s, u"Completo"_s, m_frFiltros);
    filtros->addWidget(m_completo);
    filtros->addStretch(1);
    m_frFormatos = formatos();

    auto* capas = new QGridLayout{m_frame4}; // the panel of formats stands in the same place as the filters
    capas->setContentsMargins({});
    capas->addWidget(m_frFiltros, 0, 0);
    capas->addWidget(m_frFormatos, 0, 0);
    QPushButton* const aceptar = botonAceptar(m_frame1);
    auto* interior = new QVBoxLayout{m_frame1};
    m_tienda = new EleccionDeTienda{contexto(), m_frame1}; // beside the two panels: in sight behind either of them
    interior->addWidget(m_frame4);
    interior->addWidget(m_tienda, 1);
    interior->addLayout(pie({aceptar, botonSalir(m_frame1)}));
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->addWidget(m_frame1);
    boton(u"Command3"_s, {}, this)->hide(); // records captions for translation
    connect(aceptar, &QPushButton::clicked, this, &FrmFechas::acepta);
    connect(m_completo, &QCheckBox::toggled, this, [this](bool marcada) { m_decision.completa(marcada); });
}

QFrame* FrmFechas::formatos()
{
    QFrame* const panel = marco(u"frFormatos"_s, m_frame4);
    auto* columna = new QVBoxLayout{panel};
    QLabel* const cabeza = encabezado(u"lblFormatos"_s, u"SELECCIONE EL FORMATO DEL LISTADO"_s, panel);
    cabeza->setAlignment(Qt::AlignCenter);
    columna->addWidget(cabeza);
    auto* lados = new QHBoxLayout;
    lados->addStretch(1);
    m_folio = formato(u"cmdFolio"_s, u"lblFolio"_s, false, panel);
    m_ticket = formato(u"cmdTicket"_s, u"lblTicket"_s, true, panel);
    lados->addWidget(m_folio);
    lados->addSpacing(40);
    lados->addWidget(m_ticket);
    lados->addStretch(1);
    columna->addLayout(lados, 1);
    return panel;
}

BotonDibujado* FrmFechas::formato(const QString& boton, const QString& rotulo, bool ticket, QWidget* padre)
{
    const QColor tinta = palette().color(QPalette::ButtonText);
    auto* bloque = new BotonDibujado{boton, rotulo, dibujoDeFormato(ticket, tinta), padre};
    connect(bloque, &BotonDibujado::pulsado, this, [this, ticket] { aceptaEnFormato(ticket); });
    return bloque;
}

void FrmFechas::carga()
{
    aspecto().TraducirForm(*this);
    m_decision.carga();
    copiaFondo(*m_completo, *m_completo->parentWidget());
    m_periodo->carga();
    aspecto().AplicarLetra(*this);
    aspecto().PintarForm(*this);
    escala();
    m_periodo->ajustaAlto(contexto().AltoVentana);
    m_tienda->CargarTiendas(*m_frFiltros, *m_frame1);
    m_completo->setVisible(contexto().ModuloFacturas);
    pantallaInicial();
    adjustSize();
    m_periodo->setFocus();
}

void FrmFechas::pantallaInicial()
{
    m_frFormatos->hide();
    m_frFiltros->setEnabled(true);
    m_folio->ponLeyenda(m_preparacion.Titulo + u" formato Folio"_s);
    m_ticket->ponLeyenda(m_preparacion.Titulo + u" formato Ticket"_s);
    m_decision.completa(false);
    copiaFondo(*m_frame4, *m_frFiltros);
}

void FrmFechas::acepta()
{
    const Aceptacion aceptacion = m_decision.acepta(!m_frFormatos->isHidden(), m_periodo->desde(), m_periodo->hasta());
    if (aceptacion.paso == Aceptacion::Paso::PideFormato)
        return ensenaFormatos();
    terminaSi(aceptacion);
}

void FrmFechas::aceptaEnFormato(bool ticket)
{
    m_decision.eligeFormato(ticket);
    acepta();
}

void FrmFechas::ensenaFormatos()
{
    m_frFiltros->setEnabled(false); // from here there is no way back to the dates, by the keyboard neither
    m_frFormatos->show();
    m_frFormatos->raise();
    m_folio->setFocus();
}

} // namespace kestrane
