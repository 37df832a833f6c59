#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// A column of a table on its way to become texts.
struct ColumnaTabla
{
    const ElementoXml* xml = nullptr;
    double x = 0;
    double ancho = 0;
    FormatoValor formato;

    [[nodiscard]] bool tieneTotal() const { return xml->atributo(u"total") != nullptr; }
    /// That of the layout, else to the right for amounts, else the style's.
    [[nodiscard]] Horizontal alineacion(const Estilo& estilo) const;
    /// `estilo` with that alignment.
    [[nodiscard]] Estilo alineado(Estilo estilo) const;
    /// Its box in a row of that height, a little narrower than the column so that neighbours do not touch.
    [[nodiscard]] QRectF caja(double alto) const;
};

/// The columns of `tabla` side by side on `ancho` millimetres; those of width "*" share what is left. Error when they do not fit.
[[nodiscard]] std::vector<ColumnaTabla> columnasDe(const ElementoXml& tabla, double ancho);

} // namespace kestrane::report
