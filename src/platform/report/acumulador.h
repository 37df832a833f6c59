#pragma once

#include "platform/report/layout/expresion.h"

namespace kestrane::report {

/// One aggregate while rows go by. Null does not count; numbers are added up as doubles in the order of the rows.
class Acumulador
{
public:
    explicit Acumulador(FuncionAgregado funcion) : m_funcion{funcion} {}

    /// ErrorEjecucion TiposNoCoinciden for a text that is no number where numbers are added up.
    void anade(const Valor& valor, const ConfiguracionRegional& regional);
    /// A sum and a count of nothing are 0, all else of nothing is Null.
    [[nodiscard]] Valor valor() const;
    void vacia();

private:
    FuncionAgregado m_funcion;
    double m_suma = 0;
    qint32 m_cuantos = 0;
    Valor m_extremo; ///< the least or greatest so far
};

/// Less than, equal to or greater than 0 as `a` sorts before, with or behind `b`.
[[nodiscard]] int comparaValores(const Valor& a, const Valor& b);

} // namespace kestrane::report
