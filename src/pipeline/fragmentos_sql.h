#pragma once

#include "run_context/contexto_ejecucion.h"

#include <QString>

/// Pieces of statement text that hold a value of the run. Blanks and keywords around them stand in the builders' own texts.
namespace kestrane {

/// "#03/15/2024#", whatever the regional settings; the time is left out.
[[nodiscard]] QString diaSql(Fecha dia);
/// The period of the run: "#03/01/2024# and #03/31/2024#".
[[nodiscard]] QString entreFechas(const ContextoEjecucion& contexto);
/// What a store ends in: "'%Centro'", and "'%'" with no store chosen, which every row that has a store matches. The name is not
/// escaped: an apostrophe in it makes the statement a refused one.
[[nodiscard]] QString patronTienda(const ContextoEjecucion& contexto);

} // namespace kestrane
