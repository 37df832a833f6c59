#pragma once

#include <QRect>
#include <QSize>

#include <functional>
#include <span>
#include <vector>

namespace kestrane {

/// A card that wants a place: in how many columns at most it may show what it holds, and how high it is then.
struct Tarjeta
{
    int columnas = 1; ///< at most; 0: it is empty and gets no place
    std::function<int(int ancho, int columnas)> alto;
};

/// Where a card stands, and in how many columns it shows what it holds.
struct SitioTarjeta
{
    QRect caja;
    int columnas = 1;

    friend bool operator==(const SitioTarjeta&, const SitioTarjeta&) = default;
};

struct MedidasReparto
{
    int anchoColumna = 160; ///< the least
    int separacion = 10;
    double estira = 2; ///< at most so many times its height a card becomes to fill what is left
};

/// Lays cards over `lugar`: columns of equal width, each card over one or several of them, in the order given from the upper left
/// corner, and so that little is left over. Cards are stretched until no gap shows between them. What does not fit stands below the
/// lower edge: whoever asked can scroll.
[[nodiscard]] std::vector<SitioTarjeta> reparteTarjetas(std::span<const Tarjeta> tarjetas, QSize lugar,
                                                        const MedidasReparto& medidas);

} // namespace kestrane
