#pragma once

#include "run_context/elemento_panel.h"

#include <vector>

namespace kestrane {

/// An array of panel elements with bounds 0 to an upper one, unallocated until `reserva`: reading it before, or past its bounds, is
/// error 9.
class ArrayPanel
{
public:
    [[nodiscard]] bool reservado() const { return !m_elementos.empty(); }
    /// Allocates the bounds 0 to `limiteSuperior` (0 or more), all elements blank.
    void reserva(int limiteSuperior);
    /// Error 9 while unallocated.
    [[nodiscard]] int limiteSuperior() const;
    [[nodiscard]] ElementoPanel& operator[](int indice);
    [[nodiscard]] const ElementoPanel& operator[](int indice) const;

    friend bool operator==(const ArrayPanel&, const ArrayPanel&) = default;

private:
    void exige(int indice) const;

    std::vector<ElementoPanel> m_elementos;
};

} // namespace kestrane
