#include "platform/controls/grupo_botones.h"

#include <QEvent>
#include <QPainter>

#include <numeric>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Margen = 8;
constexpr int Separacion = 4;
constexpr qreal Radio = 10;

int anchoDeBoton(int ancho, int cuantos)
{
    return (ancho - 2 * Margen - (cuantos - 1) * Separacion) / cuantos;
}

} // namespace

GrupoBotones::GrupoBotones(const QString& objeto, const QString& titulo, QWidget* padre)
    : QFrame{padre}
    , m_titulo{new QLabel{titulo, this}}
    , m_zona{new QWidget{this}}
{
    setObjectName(objeto);
    setAccessibleName(titulo);
    setProperty("tarjeta", true);
    QFont negrita = m_titulo->font();
    negrita.setBold(true);
    m_titulo->setFont(negrita);
    m_zona->installEventFilter(this);
}

void GrupoBotones::anade(BotonMenu* boton)
{
    boton->setParent(m_zona);
    m_botones += boton;
}

QList<BotonMenu*> GrupoBotones::visibles() const
{
    QList<BotonMenu*> vistos;
    for (BotonMenu* const boton : m_botones) {
        if (!boton->isHidden())
            vistos += boton;
    }
    return vistos;
}

int GrupoBotones::altoTitulo() const
{
    return m_titulo->text().isEmpty() ? Margen : m_titulo->sizeHint().height() + Margen + Separacion;
}

/// The buttons of a row share its width, those of the last one too.
QList<int> GrupoBotones::altosDeFila(int ancho, int columnas) const
{
    const QList<BotonMenu*> vistos = visibles();
    QList<int> altos;
    for (qsizetype primero = 0; primero < vistos.size(); primero += columnas) {
        const auto cuantos = static_cast<int>(std::min<qsizetype>(columnas, vistos.size() - primero));
        int alto = 0;
        for (int i = 0; i < cuantos; ++i)
            alto = std::max(alto, vistos[primero + i]->heightForWidth(anchoDeBoton(ancho, cuantos)));
        altos += alto;
    }
    return altos;
}

int GrupoBotones::altoPara(int ancho, int columnas) const
{
    const QList<int> altos = altosDeFila(ancho, columnas);
    if (altos.isEmpty())
        return 0;
    const auto separaciones = static_cast<int>(altos.size() - 1) * Separacion;
    return std::accumulate(altos.begin(), altos.end(), altoTitulo() + separaciones + Margen);
}

int GrupoBotones::anchoMinimo() const
{
    int ancho = m_titulo->sizeHint().width();
    for (const BotonMenu* const boton : visibles())
        ancho = std::max(ancho, boton->minimumSizeHint().width());
    return ancho + 2 * Margen;
}

void GrupoBotones::ponColumnas(int columnas)
{
    m_columnas = std::max(1, columnas);
    coloca();
}

QSize GrupoBotones::sizeHint() const
{
    const int ancho = anchoMinimo() * m_columnas;
    return {ancho, altoPara(ancho, m_columnas)};
}

/// What the rows need first, then what is left over in equal parts.
void GrupoBotones::coloca()
{
    const int cabeza = altoTitulo();
    m_titulo->setGeometry(Margen + 2, Margen / 2, width() - 2 * Margen, cabeza - Margen / 2);
    m_zona->setGeometry(0, cabeza, width(), height() - cabeza);
    const QList<BotonMenu*> vistos = visibles();
    const QList<int> altos = altosDeFila(width(), m_columnas);
    if (altos.isEmpty())
        return;
    const int sobra = std::max(0, height() - altoPara(width(), m_columnas)) / static_cast<int>(altos.size());
    qsizetype siguiente = 0;
    int y = 0;
    for (const int alto : altos) {
        const auto cuantos = static_cast<int>(std::min<qsizetype>(m_columnas, vistos.size() - siguiente));
        const int ancho = anchoDeBoton(width(), cuantos);
        for (int i = 0; i < cuantos; ++i)
            vistos[siguiente + i]->setGeometry(Margen + i * (ancho + Separacion), y, ancho, alto + sobra);
        siguiente += cuantos;
        y += alto + sobra + Separacion;
    }
}

bool GrupoBotones::eventFilter(QObject* vigilado, QEvent* evento)
{
    if (evento->type() == QEvent::LayoutRequest) {
        coloca();
        emit cambiado();
    }
    return QFrame::eventFilter(vigilado, evento);
}

void GrupoBotones::resizeEvent(QResizeEvent* evento)
{
    QFrame::resizeEvent(evento);
    coloca();
}

void GrupoBotones::changeEvent(QEvent* evento)
{
    QFrame::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange) {
        coloca();
        emit cambiado();
    }
}

void GrupoBotones::paintEvent(QPaintEvent*)
{
    QPainter pintor{this};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.setBrush(palette().color(backgroundRole()));
    pintor.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), Radio, Radio);
}

} // namespace kestrane
