#include "platform/controls/boton_menu.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <limits>

namespace kestrane {

namespace {

constexpr int MargenLateral = 10;
constexpr int MargenVertical = 5;
constexpr int AnchoHabitual = 22; ///< in letters of the font
constexpr Qt::Alignment Alineado = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int PesoDeLado = 3; ///< a button beside the way is that much farther than one straight ahead

QPoint direccion(int tecla)
{
    switch (tecla) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// How far `hasta` lies from `desde` that way; nothing when it lies elsewhere.
std::optional<int> lejania(const QPoint& desde, const QPoint& hasta, const QPoint& via)
{
    const QPoint paso = hasta - desde;
    const int adelante = QPoint::dotProduct(paso, via);
    if (adelante <= 0)
        return std::nullopt;
    const int deLado = std::abs(paso.x() * via.y()) + std::abs(paso.y() * via.x());
    return adelante + PesoDeLado * deLado;
}

} // namespace

bool estaTapado(const QWidget& control)
{
    const QWidget* const ventana = control.window();
    const QPoint centro = control.mapTo(ventana, control.rect().center());
    const QWidget* const arriba = ventana->childAt(centro);
    return arriba && arriba != &control && !control.isAncestorOf(arriba);
}

int vecino(const QRect& desde, const QList<QRect>& candidatos, int tecla)
{
    int elegido = -1;
    int menor = std::numeric_limits<int>::max();
    for (int i = 0; i < candidatos.size(); ++i) {
        const auto lejos = lejania(desde.center(), candidatos[i].center(), direccion(tecla));
        if (lejos && *lejos < menor) {
            menor = *lejos;
            elegido = i;
        }
    }
    return elegido;
}

BotonMenu::BotonMenu(const QString& objeto, const QString& leyenda, QWidget* padre) : QPushButton{leyenda, padre}
{
    setObjectName(objeto);
    setAutoDefault(false); // a style may paint a default button in colours of its own
    QSizePolicy medidas{QSizePolicy::Expanding, QSizePolicy::Expanding};
    medidas.setHeightForWidth(true);
    setSizePolicy(medidas);
}

QRect BotonMenu::cajaDeTexto(const QRect& marco) const
{
    return marco.adjusted(MargenLateral, MargenVertical, -MargenLateral, -MargenVertical);
}

QSize BotonMenu::sizeHint() const
{
    const int ancho = fontMetrics().averageCharWidth() * AnchoHabitual + 2 * MargenLateral;
    return {ancho, heightForWidth(ancho)};
}

QSize BotonMenu::minimumSizeHint() const
{
    int ancho = 0;
    for (const QString& palabra : text().split(u' '))
        ancho = std::max(ancho, fontMetrics().horizontalAdvance(palabra));
    return {std::max(LadoTactil, ancho + 2 * MargenLateral), LadoTactil};
}

int BotonMenu::heightForWidth(int ancho) const
{
    const QRect sitio{0, 0, std::max(1, ancho - 2 * MargenLateral), 10000};
    const int alto = fontMetrics().boundingRect(sitio, static_cast<int>(Alineado) | Qt::TextWordWrap, text()).height();
    return std::max(LadoTactil, alto + 2 * MargenVertical);
}

void BotonMenu::paintEvent(QPaintEvent*)
{
    QStylePainter pintor{this};
    QStyleOptionButton opcion;
    initStyleOption(&opcion);
    opcion.text.clear();
    pintor.drawControl(QStyle::CE_PushButton, opcion);
    pintor.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    pintor.drawText(cajaDeTexto(rect()), static_cast<int>(Alineado) | Qt::TextWordWrap, text());
}

void BotonMenu::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        click();
    else if (direccion(evento->key()).isNull())
        QPushButton::keyPressEvent(evento);
    else
        salta(evento->key());
}

void BotonMenu::salta(int tecla)
{
    QList<BotonMenu*> otros;
    QList<QRect> cajas;
    for (BotonMenu* const otro : window()->findChildren<BotonMenu*>()) {
        if (otro == this || !otro->isVisible() || !otro->isEnabled() || estaTapado(*otro))
            continue;
        otros += otro;
        cajas += QRect{otro->mapTo(window(), QPoint{}), otro->size()};
    }
    const int cual = vecino(QRect{mapTo(window(), QPoint{}), size()}, cajas, tecla);
    if (cual >= 0)
        otros[cual]->setFocus(Qt::TabFocusReason);
}

} // namespace kestrane
