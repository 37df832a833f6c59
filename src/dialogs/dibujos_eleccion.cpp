#include "dialogs/dibujos_eleccion.h"

#include "dialogs/icono_dibujado.h"

#include <QPainterPath>

namespace kestrane {

namespace {

constexpr int Lado = 96;

/// Head and shoulders, `alto` points high, standing on `suelo` with its middle at `x`.
void persona(QPainter& pintor, qreal x, qreal suelo, qreal alto)
{
    const qreal radio = alto * 0.22;
    pintor.drawEllipse(QPointF{x, suelo - alto + radio}, radio, radio);
    QPainterPath hombros;
    const qreal ancho = alto * 0.36;
    const qreal cuello = suelo - alto * 0.46;
    hombros.moveTo(x - ancho, suelo);
    hombros.cubicTo(x - ancho, cuello, x + ancho, cuello, x + ancho, suelo);
    hombros.closeSubpath();
    pintor.drawPath(hombros);
}

void lineas(QPainter& pintor, int cuantas)
{
    for (int linea = 0; linea < cuantas; ++linea) {
        const qreal y = 20 + 14 * linea;
        pintor.drawLine(QPointF{18, y}, QPointF{54, y});
        pintor.drawLine(QPointF{64, y}, QPointF{78, y});
    }
}

void pinta(QPainter& pintor, DibujoDe que)
{
    switch (que) {
    case DibujoDe::UnEmpleado:
        return persona(pintor, Lado / 2.0, 82, 68);
    case DibujoDe::TodosLosEmpleados:
        persona(pintor, 20, 70, 42);
        persona(pintor, 76, 70, 42);
        return persona(pintor, Lado / 2.0, 82, 54);
    case DibujoDe::Detalle:
        return lineas(pintor, 5);
    case DibujoDe::Total:
        lineas(pintor, 2);
        pintor.drawLine(QPointF{18, 50}, QPointF{78, 50});
        pintor.drawRoundedRect(QRectF{44, 60, 34, 18}, 4, 4);
    }
}

} // namespace

QIcon dibujoDeEleccion(DibujoDe que, const QColor& color)
{
    return iconoDibujado(Lado, color, [que](QPainter& pintor) { pinta(pintor, que); });
}

} // namespace kestrane
