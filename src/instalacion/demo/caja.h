#pragma once

#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// The drawer of a store beside its sales: opening cash, expenses, withdrawals, remarks of the desk.
class Caja
{
public:
    Caja(Negocio& negocio, Azar azar);

    /// One store's day; `efectivo` is what came into the drawer.
    void cierraDia(const Turno& turno, Dinero efectivo);

private:
    Dinero gasta(const Turno& turno);
    void retira(const Turno& turno, Dinero enCaja);
    void observa(const Turno& turno);

    Negocio& m_negocio;
    Azar m_azar;
};

} // namespace kestrane::demo
