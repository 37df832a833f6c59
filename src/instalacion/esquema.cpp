#include "instalacion/esquema.h"

#include "instalacion/esquema/bonos.h"
#include "instalacion/esquema/caja.h"
#include "instalacion/esquema/informes.h"
#include "instalacion/esquema/opciones.h"
#include "instalacion/esquema/personas.h"
#include "instalacion/esquema/productos.h"
#include "instalacion/esquema/servicios.h"
#include "instalacion/esquema/ventas.h"

#include <algorithm>
#include <array>

namespace kestrane::instalacion {

using namespace Qt::StringLiterals;

namespace {

template<size_t... Tamanos>
constexpr auto une(const TablaEsquema (&... grupos)[Tamanos])
{
    std::array<TablaEsquema, (Tamanos + ...)> todas{};
    auto destino = todas.begin();
    ((destino = std::copy(std::begin(grupos), std::end(grupos), destino)), ...);
    return todas;
}

constexpr auto TablasDeTienda = une(tablas::DeVentas, tablas::DeCaja, tablas::DeBonos, tablas::DePersonas, tablas::DeProductos,
                                    tablas::DeServicios, tablas::DeOpciones);
constexpr BaseEsquema Tienda{"TiendaKestrane"_L1, TablasDeTienda};
constexpr BaseEsquema Listados{"ListKestrane"_L1, tablas::DeInformes};

} // namespace

const TablaEsquema* BaseEsquema::tabla(QStringView buscada) const
{
    const auto esta = [&](const TablaEsquema& tabla) { return buscada.compare(tabla.nombre, Qt::CaseInsensitive) == 0; };
    const auto hallada = std::ranges::find_if(tablas, esta);
    return hallada == tablas.end() ? nullptr : &*hallada;
}

const BaseEsquema& baseTienda()
{
    return Tienda;
}
const BaseEsquema& baseListados()
{
    return Listados;
}

} // namespace kestrane::instalacion
