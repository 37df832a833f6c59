#pragma once

#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace kestrane {

/// What `pinta` draws on a square of `lado` points, in lines of that colour: sharp on a dense screen too.
template<class Pinta>
[[nodiscard]] QIcon iconoDibujado(int lado, const QColor& color, Pinta&& pinta)
{
    constexpr int Densidad = 2;
    constexpr qreal Grosor = 3;
    QPixmap dibujo{lado * Densidad, lado * Densidad};
    dibujo.setDevicePixelRatio(Densidad);
    dibujo.fill(Qt::transparent);
    QPainter pintor{&dibujo};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen{color, Grosor, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    pinta(pintor);
    pintor.end();
    return QIcon{dibujo};
}

} // namespace kestrane
