#pragma once

#include "run_context/contexto_ejecucion.h"

#include <QString>
#include <QStringView>

/// The statements that add the lines of a family up by employee. Each gives rows of `total`, gross euros, and `codEmpleado`,
/// ascending by employee. They are three near-copies; no blank of them is there by chance.
namespace kestrane {

/// What a family's statement tests: the kinds of line, and all that stands between them and the stores.
struct Condicion
{
    QStringView tipos;
    QStringView resto;
};

struct SumaPorEmpleado
{
    Condicion vendido;
    Condicion devuelto;
    Condicion anulado;
};

namespace sumas {
extern const SumaPorEmpleado Productos;
extern const SumaPorEmpleado Servicios; ///< returns: shared ones and money paid into deposits too
extern const SumaPorEmpleado IngresosEnDeposito;
extern const SumaPorEmpleado Packs;
extern const SumaPorEmpleado PacksSpa;
} // namespace sumas

/// The lines sold in the period, in the chosen store.
[[nodiscard]] QString sentenciaVendido(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma);
/// The lines returned: the number of a return is compared with the number of the sale that its lines belong to.
[[nodiscard]] QString sentenciaDevuelto(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma);
/// The lines of annulled sales; the store counts only where there are several and one is chosen.
[[nodiscard]] QString sentenciaAnulado(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma);

} // namespace kestrane
