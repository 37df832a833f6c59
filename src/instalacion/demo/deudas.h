#pragma once

#include "instalacion/demo/negocio.h"

#include <map>

namespace kestrane::demo {

/// Sales that were left unpaid in part or whole, and how they are paid later.
class Deudas
{
public:
    Deudas(Negocio& negocio, Azar azar);

    /// A sale of which half or all stays open (all when it was taken on account, and that is never paid). It must have a client.
    /// Returns what stays open.
    Dinero apunta(const Venta& venta);
    /// The same of a sale that was annulled: the debt is settled, and nobody has paid it.
    void apuntaAnulada(const Venta& venta);
    /// The payments that come in on a day. Returns the cash among them.
    Dinero cobra(const Turno& turno);
    /// The table of debts, as it stands.
    void escribe() const;

private:
    struct Deuda
    {
        int numero = 0;
        int factura = 0;
        int cliente = 0;
        int empleado = 0;
        int numeroTienda = 0;
        Dinero importe;
        Dinero pagado;
        Fecha fecha;
        QString tienda;
        bool anulada = false;
        bool aCuenta = false; // a large order: paid by and by
    };
    struct Plazo
    {
        std::size_t deuda = 0;
        Dinero importe;
    };

    Deuda& nueva(const Venta& venta, Dinero importe);
    void programa(std::size_t cual);
    void anticipa(const Turno& turno);
    [[nodiscard]] Dinero pagaParte(const Turno& turno);
    Dinero paga(const Plazo& plazo, const Turno& turno);

    Negocio& m_negocio;
    Azar m_azar;
    int m_pagos = 0;
    std::vector<Deuda> m_deudas;
    std::vector<std::multimap<Fecha, Plazo>> m_plazos; // by store
};

} // namespace kestrane::demo
