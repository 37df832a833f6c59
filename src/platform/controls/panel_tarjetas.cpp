#include "platform/controls/panel_tarjetas.h"

#include "platform/controls/reparto_tarjetas.h"

#include <QApplication>
#include <QEvent>

namespace kestrane {

namespace {

constexpr int Margen = 10;
constexpr int Separacion = 8;
constexpr int LetrasPorColumna = 17;

} // namespace

PanelTarjetas::PanelTarjetas(const QString& objeto, QWidget* padre)
    : QScrollArea{padre}
    , m_lienzo{new QWidget}
    , m_reparto{new QTimer{this}}
{
    setObjectName(objeto);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(m_lienzo);
    m_reparto->setSingleShot(true);
    connect(m_reparto, &QTimer::timeout, this, &PanelTarjetas::reparte);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ahora) {
        if (ahora && m_lienzo->isAncestorOf(ahora))
            ensureWidgetVisible(ahora, Margen, Margen);
    });
}

void PanelTarjetas::anade(GrupoBotones* tarjeta)
{
    tarjeta->setParent(m_lienzo);
    tarjeta->installEventFilter(this);
    connect(tarjeta, &GrupoBotones::cambiado, this, &PanelTarjetas::pideReparto);
    m_tarjetas += tarjeta;
}

/// Once for all that changes before the next events are served.
void PanelTarjetas::pideReparto()
{
    m_reparto->start(0);
}

int PanelTarjetas::anchoDeColumna() const
{
    int ancho = fontMetrics().averageCharWidth() * LetrasPorColumna;
    for (const GrupoBotones* const tarjeta : m_tarjetas) {
        if (!tarjeta->isHidden())
            ancho = std::max(ancho, tarjeta->anchoMinimo());
    }
    return ancho;
}

void PanelTarjetas::reparte()
{
    m_reparto->stop();
    std::vector<Tarjeta> cartas;
    for (const GrupoBotones* const tarjeta : m_tarjetas) {
        const int botones = tarjeta->isHidden() ? 0 : static_cast<int>(tarjeta->visibles().size());
        cartas.push_back({botones, [tarjeta](int ancho, int columnas) { return tarjeta->altoPara(ancho, columnas); }});
    }
    const QSize lugar = viewport()->size().shrunkBy(QMargins{Margen, Margen, Margen, Margen});
    const auto sitios = reparteTarjetas(cartas, lugar, {.anchoColumna = anchoDeColumna(), .separacion = Separacion});
    int fin = 0;
    for (qsizetype i = 0; i < m_tarjetas.size(); ++i) {
        const SitioTarjeta& sitio = sitios[static_cast<size_t>(i)];
        m_tarjetas[i]->setGeometry(sitio.caja.translated(Margen, Margen));
        m_tarjetas[i]->ponColumnas(sitio.columnas);
        fin = std::max(fin, sitio.caja.bottom() + 1);
    }
    m_lienzo->resize(viewport()->width(), std::max(viewport()->height(), fin + 2 * Margen));
    emit repartido();
}

void PanelTarjetas::resizeEvent(QResizeEvent* evento)
{
    QScrollArea::resizeEvent(evento);
    reparte();
}

bool PanelTarjetas::eventFilter(QObject* vigilado, QEvent* evento)
{
    const bool seVeOtraCosa = evento->type() == QEvent::ShowToParent || evento->type() == QEvent::HideToParent;
    if (seVeOtraCosa && m_tarjetas.contains(vigilado))
        pideReparto();
    return QScrollArea::eventFilter(vigilado, evento);
}

} // namespace kestrane
