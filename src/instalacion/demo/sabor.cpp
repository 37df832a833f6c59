#include "instalacion/demo/sabor.h"

namespace kestrane::demo {

const Sabor& sabor(TipoTienda tipo)
{
    static constexpr std::array<const Sabor*, TodosLosTipos.size()> tablas{
        &SaborPeluqueria, &SaborSpa,        &SaborEstetica,  &SaborClinicas,     &SaborTpv,
        &SaborPerfumeria, &SaborTallaColor, &SaborZapateria, &SaborSupermercado, &SaborPanaderia};
    return *tablas[static_cast<std::size_t>(tipo)];
}

} // namespace kestrane::demo
