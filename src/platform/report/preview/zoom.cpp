#include "platform/report/preview/zoom.h"

#include <algorithm>
#include <array>

namespace kestrane::report {

namespace {

constexpr std::array Escalones{10., 25., 33., 50., 67., 75., 90., 100., 110., 125., 150., 175., 200., 250., 300., 400., 500.};
constexpr double CasiIgual = 0.5; ///< a percentage this near to a step counts as standing on it

} // namespace

double zoomSiguiente(double porcentaje)
{
    const auto* siguiente = std::upper_bound(Escalones.begin(), Escalones.end(), porcentaje + CasiIgual);
    return siguiente == Escalones.end() ? Escalones.back() : *siguiente;
}

double zoomAnterior(double porcentaje)
{
    const auto* siguiente = std::lower_bound(Escalones.begin(), Escalones.end(), porcentaje - CasiIgual);
    return siguiente == Escalones.begin() ? Escalones.front() : *(siguiente - 1);
}

double zoomAcotado(double porcentaje)
{
    return std::clamp(porcentaje, Zoom::Minimo, Zoom::Maximo);
}

} // namespace kestrane::report
