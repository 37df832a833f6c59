#pragma once

#include "instalacion/demo/azar.h"
#include "instalacion/demo/sabor.h"

#include <vector>

namespace kestrane::demo {

/// What happens now and then at the counter, beside plain sales.
enum class Suceso {
    IngresoDeposito,
    Deuda,
    VentaBono,
    VentaBonoPack,
    VentaPack,
    VentaPackSpa,
    Albaran,
    GastoDeVale,
    Devolucion,
    Descuento,
    Dividido,
    Compartida,
    Observacion,
    Arreglo,
    ComoVenta, // a return rung up as a sale of negative units
    SinLineas,
    Anulada,
    Encargo,   // a large order that is taken away on account
    SinFicha,  // a sale to a client whose card was removed
    SinTienda, // a sale that lost the name of its store
    Cuantos
};

/// Which of them comes next, for one store.
class Sucesos
{
public:
    explicit Sucesos(Oficio oficio);

    [[nodiscard]] bool toca(Suceso suceso, Azar& azar) { return cadencia(suceso).toca(azar); }
    void fuerza(Suceso suceso) { cadencia(suceso).fuerza(); }
    /// It could not happen after all: it stays due.
    void aplaza(Suceso suceso) { cadencia(suceso).devuelve(); }

private:
    Cadencia& cadencia(Suceso suceso) { return m_cadencias[static_cast<std::size_t>(suceso)]; }

    std::vector<Cadencia> m_cadencias;
};

} // namespace kestrane::demo
