#pragma once

#include "instalacion/demo/venta.h"

#include <array>

namespace kestrane::demo {

/// Works out the tax amounts of lines in quarters. What rounding leaves over is carried to the next lines of the same rate, so that
/// the taxes of a day add up although a loaf's own tax cannot be told in quarters.
class Fisco
{
public:
    /// Fills the tax amounts of a line from its gross amount and rate. With `recargo` the second amount too, which shops pay that
    /// buy to sell again.
    void grava(Linea& linea, bool recargo);
    /// Turns a line of plain price into one with the tax on top: unit price and discount without tax, the amount with it.
    void gravaAparte(Linea& linea, bool recargo);

private:
    std::array<double, 22> m_resto{};
};

} // namespace kestrane::demo
