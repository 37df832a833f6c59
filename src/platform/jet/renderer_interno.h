#pragma once

#include "platform/jet/renderer.h"

namespace kestrane::jet {

/// The precedence of a node as it is written; a conversion that an engine writes as a call holds at least as tightly.
[[nodiscard]] PrecedenciaSql precedenciaDe(const enlazado::Expresion& e);

template<class Lista, class Escribe>
void Renderer::conComas(const Lista& lista, Escribe escribe)
{
    bool primero = true;
    for (const auto& elemento : lista) {
        if (!primero)
            pon(", ");
        primero = false;
        escribe(elemento);
    }
}

} // namespace kestrane::jet
