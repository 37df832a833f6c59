#include "pipeline/forms/zona_menu.h"

#include "platform/controls/boton_menu.h"

#include <QPainter>
#include <QPainterPath>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal LadoDibujo = 22;
constexpr qreal Grosor = 1.8;

/// A window within a larger one.
void dibujaTamano(QPainter& pintor, const QRectF& caja)
{
    pintor.drawRoundedRect(caja.adjusted(1, 3, -1, -3), 2, 2);
    pintor.drawRoundedRect(QRectF{caja.left() + 1, caja.center().y(), caja.width() / 2, caja.height() / 2 - 3}, 2, 2);
}

void escribe(QPainter& pintor, const QRectF& caja, const QString& texto)
{
    QFont letra = pintor.font();
    letra.setPixelSize(static_cast<int>(caja.height() * 0.85));
    letra.setBold(true);
    pintor.setFont(letra);
    pintor.drawText(caja.adjusted(-6, 0, 6, 0), Qt::AlignCenter, texto);
}

void dibujaLetra(QPainter& pintor, const QRectF& caja)
{
    escribe(pintor, caja, u"Aa"_s);
}

void dibujaPregunta(QPainter& pintor, const QRectF& caja)
{
    escribe(pintor, caja, u"?"_s);
}

/// A circle, one half of it filled.
void dibujaColores(QPainter& pintor, const QRectF& caja)
{
    const QRectF circulo = caja.adjusted(2, 2, -2, -2);
    pintor.drawEllipse(circulo);
    pintor.setBrush(pintor.pen().color());
    pintor.drawChord(circulo, 90 * 16, 180 * 16);
}

using Dibujo = void (*)(QPainter&, const QRectF&);
constexpr std::pair<QStringView, Dibujo> Dibujos[] = {
    {u"fr_Zoom1", dibujaTamano},
    {u"fr_Zoom2", dibujaLetra},
    {u"fr_Zoom3", dibujaColores},
    {u"cmd_Ayuda", dibujaPregunta},
};

} // namespace

ZonaMenu::ZonaMenu(const QString& objeto, const QString& nombre, QWidget* padre) : QToolButton{padre}
{
    setObjectName(objeto);
    setToolTip(nombre);
    setAccessibleName(nombre);
    setFixedSize(LadoTactil, LadoTactil);
    setFocusPolicy(Qt::StrongFocus);
    setAutoRaise(true);
}

void ZonaMenu::paintEvent(QPaintEvent* evento)
{
    QToolButton::paintEvent(evento);
    QPainter pintor{this};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen{palette().color(foregroundRole()), Grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    QRectF caja{0, 0, LadoDibujo, LadoDibujo};
    caja.moveCenter(QRectF{rect()}.center());
    for (const auto& [nombre, dibuja] : Dibujos) {
        if (nombre == objectName())
            dibuja(pintor, caja);
    }
}

} // namespace kestrane
