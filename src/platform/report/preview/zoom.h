#pragma once

namespace kestrane::report {

/// How large pages stand on the screen: fitted to the window, or a percentage of their size on paper.
struct Zoom
{
    enum class Modo { Ancho, Pagina, Porcentaje };

    static constexpr double Minimo = 10;
    static constexpr double Maximo = 500;

    Modo modo = Modo::Ancho;
    double porcentaje = 100; ///< in the mode Porcentaje

    friend bool operator==(const Zoom&, const Zoom&) = default;
};

/// The next of the usual percentages above `porcentaje`; the greatest at the end.
[[nodiscard]] double zoomSiguiente(double porcentaje);
/// The next below.
[[nodiscard]] double zoomAnterior(double porcentaje);
/// `porcentaje` kept within what is possible.
[[nodiscard]] double zoomAcotado(double porcentaje);

} // namespace kestrane::report
