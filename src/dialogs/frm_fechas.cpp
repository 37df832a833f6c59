#include "dialogs/frm_fechas.h"

#include "dialogs/dibujos_formato.h"
#include "dialogs/rotulo_pulsable.h"
#include "pipeline/filtros/periodos_rapidos.h"
#include "platform/controls/boton_menu.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cmath>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr double AltoDeVentanaCorriente = 11085; ///< twips; in lower windows the calendars get a height of their own
constexpr double AltoDeCalendarioBajo = 3810;

} // namespace

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
    filtros->addWidget(calendarios());
    filtros->addWidget(periodosRapidos());
    m_completo = new QCheckBox{u"Completo"_s, m_frFiltros};
    m_completo->setObjectName(u"ch_Completo"_s);
    m_completo->setMinimumHeight(LadoTactil);
    m_completo->setBackgroundRole(QPalette::Window);
    m_completo->setAutoFillBackground(true);
    filtros->addWidget(m_completo);
    m_tienda = new EleccionDeTienda{contexto(), m_frFiltros};
    filtros->addWidget(m_tienda, 1);
    m_frFormatos = formatos();

    auto* capas = new QGridLayout{m_frame4}; // the panel of formats stands in the same place as the filters
    capas->setContentsMargins({});
    capas->addWidget(m_frFiltros, 0, 0);
    capas->addWidget(m_frFormatos, 0, 0);
    auto* pie = new QHBoxLayout;
    QPushButton* const aceptar = boton(u"Command1"_s, u"Aceptar"_s, m_frame1);
    aceptar->setDefault(true);
    pie->addStretch(1);
    pie->addWidget(aceptar);
    pie->addWidget(botonSalir(m_frame1));
    auto* interior = new QVBoxLayout{m_frame1};
    interior->addWidget(m_frame4, 1);
    interior->addLayout(pie);
    auto* columna = new QVBoxLayout{this};
    columna->setContentsMargins({});
    columna->addWidget(m_frame1);
    boton(u"Command3"_s, {}, this)->hide(); // records captions for translation
    connect(aceptar, &QPushButton::clicked, this, &FrmFechas::acepta);
    connect(m_completo, &QCheckBox::toggled, this, [this](bool marcada) { m_decision.completa(marcada); });
}

QWidget* FrmFechas::calendarios()
{
    auto* fila = new QWidget{m_frFiltros};
    auto* lados = new QGridLayout{fila};
    lados->setContentsMargins({});
    int columna = 0;
    for (const auto& [nombre, leyenda, calendario] :
         {std::tuple{u"cld_Desde"_s, u"Desde"_s, &m_desde}, {u"cld_Hasta"_s, u"Hasta"_s, &m_hasta}}) {
        *calendario = new Calendario{nombre, fila};
        QLabel* const suRotulo = rotulo(nombre + u"_rotulo"_s, leyenda, fila);
        suRotulo->setBuddy(*calendario);
        (*calendario)->escrita().setAccessibleName(leyenda);
        lados->addWidget(suRotulo, 0, columna);
        lados->addWidget(*calendario, 1, columna++);
    }
    return fila;
}

/// They only set the two dates.
QWidget* FrmFechas::periodosRapidos()
{
    auto* fila = new QWidget{m_frFiltros};
    auto* lados = new QHBoxLayout{fila};
    lados->setContentsMargins({});
    for (const PeriodoRapido& rapido : kestrane::periodosRapidos()) {
        QPushButton* const suyo = boton(u"periodo "_s + rapido.leyenda.toString(), rapido.leyenda.toString(), fila);
        connect(suyo, &QPushButton::clicked, this, [this, en = rapido.en] {
            const Periodo periodo = en(reloj().hoy());
            m_desde->pon(periodo.desde);
            m_hasta->pon(periodo.hasta);
        });
        lados->addWidget(suyo);
    }
    return fila;
}

QFrame* FrmFechas::formatos()
{
    QFrame* const panel = marco(u"frFormatos"_s, m_frame4);
    auto* columna = new QVBoxLayout{panel};
    QLabel* const titulo = rotulo(u"lblFormatos"_s, u"SELECCIONE EL FORMATO DEL LISTADO"_s, panel);
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setProperty("letraRelativa", 1.2);
    columna->addWidget(titulo);
    auto* lados = new QHBoxLayout;
    lados->addStretch(1);
    lados->addWidget(formato(u"cmdFolio"_s, u"lblFolio"_s, false));
    lados->addSpacing(40);
    lados->addWidget(formato(u"cmdTicket"_s, u"lblTicket"_s, true));
    lados->addStretch(1);
    columna->addLayout(lados, 1);
    m_folio = panel->findChild<QPushButton*>(u"cmdFolio"_s);
    return panel;
}

QWidget* FrmFechas::formato(const QString& nombreBoton, const QString& nombreRotulo, bool ticket)
{
    auto* bloque = new QWidget{m_frame4};
    auto* columna = new QVBoxLayout{bloque};
    QPushButton* const dibujo = boton(nombreBoton, {}, bloque);
    dibujo->setIconSize({96, 96});
    dibujo->setIcon(dibujoDeFormato(ticket, palette().color(QPalette::ButtonText)));
    dibujo->setMinimumSize(150, 150);
    auto* leyenda = new RotuloPulsable{bloque};
    leyenda->setObjectName(nombreRotulo);
    leyenda->setAlignment(Qt::AlignCenter);
    leyenda->setWordWrap(true);
    leyenda->setMinimumHeight(LadoTactil);
    columna->addStretch(1);
    columna->addWidget(dibujo, 0, Qt::AlignHCenter);
    columna->addWidget(leyenda);
    columna->addStretch(1);
    connect(dibujo, &QPushButton::clicked, this, [this, ticket] { aceptaEnFormato(ticket); });
    connect(leyenda, &RotuloPulsable::pulsado, this, [this, ticket] { aceptaEnFormato(ticket); });
    return bloque;
}

void FrmFechas::carga()
{
    aspecto().TraducirForm(*this);
    m_decision.carga();
    copiaFondo(*m_completo, *m_completo->parentWidget());
    for (Calendario* const calendario : {m_desde, m_hasta}) {
        calendario->pon(reloj().hoy());
        calendario->ponHoy(reloj().hoy());
    }
    aspecto().AplicarLetra(*this);
    aspecto().PintarForm(*this);
    escala();
    if (contexto().AltoVentana < AltoDeVentanaCorriente) {
        for (Calendario* const calendario : {m_desde, m_hasta})
            calendario->ponAlto(static_cast<int>(std::lround(puntosDeTwips(AltoDeCalendarioBajo))));
    }
    m_tienda->CargarTiendas(*m_frFiltros, *m_frame1);
    m_completo->setVisible(contexto().ModuloFacturas);
    pantallaInicial();
    adjustSize();
    m_desde->setFocus();
}

void FrmFechas::pantallaInicial()
{
    m_frFormatos->hide();
    for (const auto& [nombre, formato] : {std::pair{u"lblFolio"_s, u" formato Folio"_s}, {u"lblTicket"_s, u" formato Ticket"_s}}) {
        m_frFormatos->findChild<QLabel*>(nombre)->setText(m_preparacion.Titulo + formato);
        m_frFormatos->findChild<QPushButton*>(nombre == u"lblFolio" ? u"cmdFolio"_s : u"cmdTicket"_s)
            ->setAccessibleName(m_preparacion.Titulo + formato);
    }
    m_decision.completa(false);
    copiaFondo(*m_frame4, *m_frFiltros);
}

void FrmFechas::acepta()
{
    const Aceptacion aceptacion = m_decision.acepta(!m_frFormatos->isHidden(), m_desde->fecha(), m_hasta->fecha());
    switch (aceptacion.paso) {
    case Aceptacion::Paso::PideFormato:
        return ensenaFormatos();
    case Aceptacion::Paso::Rechazada:
        return di(aceptacion.motivo);
    case Aceptacion::Paso::Aceptada:
        return accept();
    }
}

void FrmFechas::aceptaEnFormato(bool ticket)
{
    m_decision.eligeFormato(ticket);
    acepta();
}

void FrmFechas::ensenaFormatos()
{
    m_frFormatos->show();
    m_frFormatos->raise();
    m_folio->setFocus();
}

} // namespace kestrane
