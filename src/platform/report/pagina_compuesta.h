#pragma once

#include "platform/report/layout/layout.h"

#include <QImage>
#include <QLineF>
#include <QPointF>

/// A page ready to be painted: every text broken into lines and placed. Lengths are millimetres from the page's corner.
namespace kestrane::report {

/// A line of text whose style is PaginaCompuesta::estilos[estilo].
struct TextoCompuesto
{
    QPointF base; ///< where its base line begins, alignment reckoned in
    double ancho = 0;
    QString texto;
    int estilo = 0;
    bool sigue = false; ///< the text that was painted before it goes on here: it was broken over lines
};

struct TrazoCompuesto
{
    QLineF linea;
    double grosor = 0.2;
    QColor color;
};

struct MarcoCompuesto
{
    QRectF caja;
    double grosor = 0; ///< 0: no line
    QColor color;
    QColor relleno; ///< not valid: none
};

struct ImagenCompuesta
{
    QRectF caja;
    QImage imagen;
};

/// Bars, each a filled rectangle.
struct BarrasCompuestas
{
    std::vector<QRectF> barras;
    QColor color = Qt::black;
};

using Primitiva = std::variant<TextoCompuesto, TrazoCompuesto, MarcoCompuesto, ImagenCompuesta, BarrasCompuestas>;

struct PaginaCompuesta
{
    QSizeF tamano;
    std::vector<Primitiva> primitivas; ///< in the order of painting
    std::shared_ptr<const std::vector<Estilo>> estilos;
};

} // namespace kestrane::report
