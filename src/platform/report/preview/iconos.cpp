#include "platform/report/preview/iconos.h"

#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <array>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr double Rejilla = 24;

/// Each picture on a grid of 24 by 24: "M x y" moves, "L x y" draws, "R x y w h" is a frame, "O x y r" a circle, "A x y r from
/// sweep" an arc in degrees.
constexpr std::array<QStringView, 16> Trazos{
    u"R 3 4 18 16 M 9 4 L 9 20",
    u"M 17 6 L 11 12 L 17 18 M 7 6 L 7 18",
    u"M 15 5 L 8 12 L 15 19",
    u"M 9 5 L 16 12 L 9 19",
    u"M 7 6 L 13 12 L 7 18 M 17 6 L 17 18",
    u"M 5 12 L 19 12",
    u"M 5 12 L 19 12 M 12 5 L 12 19",
    u"M 4 4 L 4 20 M 20 4 L 20 20 M 7 12 L 17 12 M 10 9 L 7 12 L 10 15 M 14 9 L 17 12 L 14 15",
    u"R 6 3 12 18 M 12 7 L 12 17 M 9.5 9.5 L 12 7 L 14.5 9.5 M 9.5 14.5 L 12 17 L 14.5 14.5",
    u"O 10.5 10.5 6 M 15 15 L 20.5 20.5",
    u"M 7 9 L 7 3 L 17 3 L 17 9 M 7 17 L 4 17 L 4 9 L 20 9 L 20 17 L 17 17 R 7 14 10 7",
    u"M 12 3 L 12 14 M 7.5 9.5 L 12 14 L 16.5 9.5 M 4 15 L 4 20 L 20 20 L 20 15",
    u"A 12 12 7.5 40 300 M 18 3.5 L 18 8 L 13.5 8",
    u"M 6 6 L 18 18 M 18 6 L 6 18",
    u"M 5 15 L 12 8 L 19 15",
    u"M 5 9 L 12 16 L 19 9",
};

/// Reads the strokes of one picture.
class LectorTrazos
{
public:
    explicit LectorTrazos(QStringView trazos) : m_piezas{trazos.split(u' ')} {}

    QPainterPath camino()
    {
        while (m_lugar < m_piezas.size())
            anade(m_piezas[m_lugar++].front());
        return m_camino;
    }

private:
    double numero() { return m_piezas[m_lugar++].toDouble(); }
    QPointF punto()
    {
        const double x = numero();
        return {x, numero()};
    }
    void anade(QChar orden)
    {
        const QPointF lugar = punto();
        if (orden == u'M')
            m_camino.moveTo(lugar);
        else if (orden == u'L')
            m_camino.lineTo(lugar);
        else if (orden == u'R')
            anadeMarco(lugar);
        else
            anadeArco(lugar, orden == u'A');
    }
    void anadeMarco(QPointF esquina)
    {
        const QPointF tamano = punto();
        m_camino.addRoundedRect(QRectF{esquina, QSizeF{tamano.x(), tamano.y()}}, 1.5, 1.5);
    }
    void anadeArco(QPointF centro, bool abierto)
    {
        const double radio = numero();
        if (!abierto)
            return m_camino.addEllipse(centro, radio, radio);
        const QRectF caja{centro.x() - radio, centro.y() - radio, 2 * radio, 2 * radio};
        const QPointF angulos = punto();
        m_camino.arcMoveTo(caja, angulos.x());
        m_camino.arcTo(caja, angulos.x(), angulos.y());
    }

    QList<QStringView> m_piezas;
    qsizetype m_lugar = 0;
    QPainterPath m_camino;
};

QPixmap dibujo(Icono cual, const QColor& color, int lado)
{
    QPixmap lienzo{lado, lado};
    lienzo.fill(Qt::transparent);
    QPainter pintor{&lienzo};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.scale(lado / Rejilla, lado / Rejilla);
    pintor.setPen(QPen{color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    pintor.drawPath(LectorTrazos{Trazos.at(int(cual))}.camino());
    return lienzo;
}

} // namespace

QIcon icono(Icono cual, const QColor& color)
{
    QColor apagado = color;
    apagado.setAlphaF(0.35F);
    QIcon icono;
    for (const int lado : {24, 36, 48, 72}) {
        icono.addPixmap(dibujo(cual, color, lado));
        icono.addPixmap(dibujo(cual, apagado, lado), QIcon::Disabled);
    }
    return icono;
}

} // namespace kestrane::report
