#include "platform/controls/tile_panel.h"

#include "platform/controls/boton_menu.h"
#include "platform/controls/ficha.h"
#include "platform/suite/color_decimal.h"

#include <QEvent>

#include <algorithm>

namespace kestrane {

namespace {

constexpr int Separacion = 6;
constexpr int LetrasPorColumna = 18;

QColor colorPropio(const ElementoPanel& elemento)
{
    const std::optional<Rgb> color = rgbDeDecimal(elemento.ColorFondo);
    return color ? QColor::fromRgb(*color) : QColor{};
}

} // namespace

TilePanel::TilePanel(const QString& objeto, QWidget* padre) : QScrollArea{padre}, m_lienzo{new QWidget}
{
    setObjectName(objeto);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(m_lienzo);
    setFocusPolicy(Qt::NoFocus);
    m_lienzo->setAutoFillBackground(true);
}

void TilePanel::ponColores(const QColor& boton, const QColor& fondo)
{
    m_colorBoton = boton;
    if (fondo.isValid()) {
        QPalette colores = m_lienzo->palette();
        colores.setColor(QPalette::Window, fondo);
        m_lienzo->setPalette(colores);
        viewport()->setPalette(colores);
    }
    pinta();
}

void TilePanel::usaColores(bool si)
{
    m_usaColores = si;
    pinta();
}

void TilePanel::pulsaConEnter()
{
    m_pulsaConEnter = true;
    for (Ficha* const ficha : m_fichas)
        ficha->setAutoDefault(true);
}

void TilePanel::da(const ArrayPanel& elementos)
{
    m_elegida = nullptr;
    qDeleteAll(m_fichas);
    m_fichas.clear();
    if (elementos.reservado()) {
        for (int i = 0; i <= elementos.limiteSuperior(); ++i)
            anade(elementos[i]);
    }
    pinta();
    coloca();
}

void TilePanel::anade(const ElementoPanel& elemento)
{
    if (elemento.Texto.isEmpty())
        return;
    auto* const ficha = new Ficha{elemento, m_lienzo};
    ficha->setCheckable(true);
    ficha->setAutoDefault(m_pulsaConEnter);
    ficha->show();
    connect(ficha, &QPushButton::clicked, this, [this, ficha] { elige(ficha); });
    m_fichas += ficha;
}

/// Whoever hears of it may close the window or give another array: the element goes as a copy.
void TilePanel::elige(Ficha* ficha)
{
    for (Ficha* const otra : m_fichas)
        otra->setChecked(otra == ficha);
    m_elegida = ficha;
    const ElementoPanel elemento = ficha->elemento();
    emit pulsado(elemento);
}

const ElementoPanel* TilePanel::elegido() const
{
    return m_elegida ? &m_elegida->elemento() : nullptr;
}

void TilePanel::desmarca()
{
    m_elegida = nullptr;
    for (Ficha* const ficha : m_fichas)
        ficha->setChecked(false);
}

void TilePanel::enfoca()
{
    if (!m_fichas.isEmpty())
        m_fichas.first()->setFocus();
}

void TilePanel::pinta()
{
    for (Ficha* const ficha : m_fichas) {
        const QColor propio = m_usaColores ? colorPropio(ficha->elemento()) : QColor{};
        ficha->ponColor(propio.isValid() ? propio : m_colorBoton);
    }
}

/// Wider where one of them has a picture, so that a name keeps its room beside it.
int TilePanel::columnas() const
{
    int ancho = fontMetrics().averageCharWidth() * LetrasPorColumna;
    const auto conImagen = std::ranges::find_if(m_fichas, &Ficha::conImagen);
    if (conImagen != m_fichas.end())
        ancho = std::max(ancho, (*conImagen)->sizeHint().width());
    return std::max(1, (viewport()->width() + Separacion) / (ancho + Separacion));
}

/// Rows of equal columns, each as high as the highest of its buttons.
void TilePanel::coloca()
{
    const int cuantas = columnas();
    const int ancho = (viewport()->width() - (cuantas - 1) * Separacion) / cuantas;
    int y = 0;
    for (qsizetype primera = 0; primera < m_fichas.size(); primera += cuantas) {
        const qsizetype fin = std::min<qsizetype>(primera + cuantas, m_fichas.size());
        int alto = LadoTactil;
        for (qsizetype i = primera; i < fin; ++i)
            alto = std::max(alto, m_fichas[i]->heightForWidth(ancho));
        for (qsizetype i = primera; i < fin; ++i)
            m_fichas[i]->setGeometry(static_cast<int>(i - primera) * (ancho + Separacion), y, ancho, alto);
        y += alto + Separacion;
    }
    m_lienzo->resize(viewport()->width(), std::max(viewport()->height(), y));
}

QSize TilePanel::sizeHint() const
{
    const int ancho = fontMetrics().averageCharWidth() * LetrasPorColumna * 2;
    return {ancho, 4 * (LadoTactil + Separacion)};
}

void TilePanel::resizeEvent(QResizeEvent* evento)
{
    QScrollArea::resizeEvent(evento);
    coloca();
}

void TilePanel::changeEvent(QEvent* evento)
{
    QScrollArea::changeEvent(evento);
    if (evento->type() == QEvent::FontChange)
        coloca();
}

} // namespace kestrane
