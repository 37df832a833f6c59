#pragma once

#include "instalacion/demo/venta.h"

#include <deque>

namespace kestrane::demo {

/// Discount vouchers that returns leave in the shops that sell goods.
class Vales
{
public:
    /// One for a sale that was brought back.
    void emite(const Venta& venta, Fecha fecha, Dinero importe);
    /// Spends one of the same client in the same store that is worth no more than the sale (people unknown bring the slip of
    /// paper); false when there is none.
    bool gasta(const Venta& venta);
    void escribe(Destino& destino) const;

private:
    struct Vale
    {
        int factura = 0;
        int tienda = 0;
        int cliente = 0;
        Fecha desde;
        Dinero importe;
        int aplicado = 0; // 0: not spent
    };

    std::vector<Vale> m_vales;
    std::deque<std::size_t> m_pendientes;
};

} // namespace kestrane::demo
