#pragma once

#include "platform/jet/renderer.h"

namespace kestrane::jet {

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
