#pragma once

#include "corpus/limites.h"
#include "corpus/tienda_corpus.h"

namespace kestrane::prueba {

/// Where the front end draws the line through the sizes of a form.
struct Frontera
{
    int mayor = 0;       ///< the largest size that it lets pass
    Respuesta respuesta; ///< what came of that one
    std::string rechazo; ///< what was said of the next
};

/// Seeks it by halving. A size counts as refused when the statement ends in a refusal of the front end, which points into the text:
/// an error of the engine, which does not, counts as let pass.
[[nodiscard]] Frontera fronteraDe(const FormaDeSentencia& forma, TiendaCorpus& tienda);

/// The answer to one size of a form.
[[nodiscard]] Respuesta respuestaDe(const FormaDeSentencia& forma, int tamano, TiendaCorpus& tienda);

/// Whether a statement was refused by the front end.
[[nodiscard]] bool seRehusa(const Respuesta& respuesta);

} // namespace kestrane::prueba
