#pragma once

#include <QString>

#include <vector>

namespace kestrane::prueba {

/// A word as another program finds it on paper; edges in points from the page's left.
struct Palabra
{
    QString texto;
    double izquierda = 0;
    double derecha = 0;
};
using PaginaLeida = std::vector<Palabra>;

/// The words of a PDF in the order in which they were painted. A file that cannot be read is a failure of the test.
[[nodiscard]] std::vector<PaginaLeida> leePapel(const QString& pdf);

} // namespace kestrane::prueba
