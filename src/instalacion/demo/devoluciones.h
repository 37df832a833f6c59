#pragma once

#include "instalacion/demo/bonos.h"
#include "instalacion/demo/negocio.h"

#include <deque>

namespace kestrane::demo {

/// Discount vouchers that returns leave in the shops that sell goods.
class Vales
{
public:
    void emite(int factura, Fecha fecha, Dinero importe);
    /// Spends one that is worth no more than the sale; false when there is none.
    bool gasta(const Venta& venta);
    void escribe(Destino& destino) const;

private:
    struct Vale
    {
        int factura = 0;
        Fecha desde;
        Dinero importe;
        int aplicado = 0; // 0: not spent
    };

    std::vector<Vale> m_vales;
    std::vector<std::size_t> m_pendientes;
};

/// Goods and services brought back: the last sales of each store are remembered for it.
class Devoluciones
{
public:
    Devoluciones(Negocio& negocio, Bonos& bonos, Vales& vales, Azar azar);

    /// A sale that may be brought back one day.
    void apunta(const Venta& venta);
    /// One return at a time of the day, in seconds; false when there is nothing to return. `efectivo` falls by the cash paid out.
    bool devuelve(const Turno& turno, int segundos, Dinero& efectivo);

    /// The stock that comes back, line by line, of the last return.
    [[nodiscard]] const std::vector<Linea>& lineasDevueltas() const { return m_devueltas; }
    [[nodiscard]] const Venta& ventaDevuelta() const { return m_venta; }

private:
    [[nodiscard]] bool eligeLineas();
    void escribe(const Turno& turno, int segundos, FormaPago pago, Dinero total);

    Negocio& m_negocio;
    Bonos& m_bonos;
    Vales& m_vales;
    Azar m_azar;
    std::vector<std::deque<Venta>> m_recientes; // by store
    Venta m_venta;
    std::vector<Linea> m_devueltas;
};

} // namespace kestrane::demo
