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
    [[nodiscard]] Dinero retira(const Turno& turno, Dinero sobra);
    void observa(const Turno& turno);
    [[nodiscard]] int quienGasta(const Turno& turno);

    Negocio& m_negocio;
    Azar m_azar;
    std::vector<Dinero> m_cajones; // what each store has in its drawer
    int m_gastos = 0;
    int m_retiradas = 0;
};

} // namespace kestrane::demo
