#include "instalacion/demo/sucesos.h"

#include <array>

namespace kestrane::demo {

namespace {

/// Times in a thousand tickets, by trade: salon, general goods, goods in sizes, food.
struct Frecuencia
{
    Suceso suceso; // its own place in the list
    std::array<int, 4> porMil;
};

constexpr Frecuencia frecuencias[] = {
    {Suceso::IngresoDeposito, {9, 4, 5, 8}}, {Suceso::Deuda, {14, 5, 7, 3}},         {Suceso::VentaBono, {17, 10, 0, 0}},
    {Suceso::VentaBonoPack, {5, 12, 0, 0}},  {Suceso::VentaPack, {9, 3, 4, 2}},      {Suceso::VentaPackSpa, {10, 0, 0, 0}},
    {Suceso::Albaran, {0, 8, 6, 5}},         {Suceso::GastoDeVale, {0, 60, 60, 60}}, {Suceso::Devolucion, {6, 14, 24, 4}},
    {Suceso::Descuento, {60, 50, 75, 12}},   {Suceso::Dividido, {24, 18, 22, 9}},    {Suceso::Compartida, {17, 6, 6, 2}},
    {Suceso::Observacion, {26, 4, 6, 1}},    {Suceso::Arreglo, {0, 0, 30, 0}},       {Suceso::ComoVenta, {1, 4, 6, 1}},
    {Suceso::SinLineas, {1, 1, 1, 1}},       {Suceso::Anulada, {9, 9, 9, 7}},        {Suceso::Encargo, {1, 1, 1, 1}},
    {Suceso::SinFicha, {1, 1, 1, 1}},        {Suceso::SinTienda, {1, 1, 1, 1}},
};

static_assert(std::size(frecuencias) == static_cast<std::size_t>(Suceso::Cuantos));

} // namespace

Sucesos::Sucesos(Oficio oficio)
{
    m_cadencias.reserve(std::size(frecuencias));
    for (const Frecuencia& una : frecuencias)
        m_cadencias.emplace_back(una.porMil[static_cast<std::size_t>(oficio)]);
}

} // namespace kestrane::demo
