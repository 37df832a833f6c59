#include "dialogs/dibujos_formato.h"

#include "dialogs/icono_dibujado.h"

#include <QPainterPath>

namespace kestrane {

namespace {

constexpr int Lado = 96;
constexpr int Lineas = 4;

/// With its corner folded.
QPainterPath folio(const QRectF& caja)
{
    constexpr qreal Doblez = 18;
    QPainterPath borde{caja.topLeft()};
    borde.lineTo(caja.right() - Doblez, caja.top());
    borde.lineTo(caja.right(), caja.top() + Doblez);
    borde.lineTo(caja.bottomRight());
    borde.lineTo(caja.bottomLeft());
    borde.closeSubpath();
    borde.moveTo(caja.right() - Doblez, caja.top());
    borde.lineTo(caja.right() - Doblez, caja.top() + Doblez);
    borde.lineTo(caja.right(), caja.top() + Doblez);
    return borde;
}

/// Torn off below.
QPainterPath tira(const QRectF& caja)
{
    constexpr int Dientes = 6;
    const qreal paso = caja.width() / Dientes;
    QPainterPath borde{caja.topLeft()};
    borde.lineTo(caja.topRight());
    borde.lineTo(caja.bottomRight());
    for (int diente = 0; diente < Dientes; ++diente) {
        const qreal x = caja.right() - diente * paso;
        borde.lineTo(x - paso / 2, caja.bottom() - 7);
        borde.lineTo(x - paso, caja.bottom());
    }
    borde.closeSubpath();
    return borde;
}

} // namespace

QIcon dibujoDeFormato(bool ticket, const QColor& color)
{
    return iconoDibujado(Lado, color, [ticket](QPainter& pintor) {
        const QRectF caja = ticket ? QRectF{28, 6, 40, 84} : QRectF{16, 6, 64, 84};
        pintor.drawPath(ticket ? tira(caja) : folio(caja));
        const qreal margen = ticket ? 8 : 12;
        for (int linea = 0; linea < Lineas; ++linea) {
            const qreal y = caja.top() + 30 + 12 * linea;
            pintor.drawLine(QPointF{caja.left() + margen, y}, QPointF{caja.right() - margen, y});
        }
    });
}

} // namespace kestrane
