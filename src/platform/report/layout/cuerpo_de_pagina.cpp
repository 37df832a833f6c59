#include "platform/report/layout/cuerpo_de_pagina.h"

namespace kestrane::report {

double altoDeCuerpo(const Layout& layout)
{
    const Pagina& pagina = layout.pagina;
    const double largo = pagina.esRollo() ? pagina.largoMaximo : pagina.tamano.height();
    double alto = largo - pagina.margenes.top() - pagina.margenes.bottom();
    for (const Seccion* seccion : {&layout.cabeceraPagina, &layout.piePagina}) {
        for (const Banda& banda : *seccion)
            alto -= banda.mostrar.vacia() ? banda.alto : 0;
    }
    return alto;
}

} // namespace kestrane::report
