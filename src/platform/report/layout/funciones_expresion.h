#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

#include <span>

namespace kestrane::report {

/// The arguments of a call: each is reckoned when it is asked for, so that `si` leaves alone what it does not choose.
class Argumentos
{
public:
    virtual ~Argumentos() = default;
    [[nodiscard]] virtual int cuantos() const = 0;
    [[nodiscard]] virtual Valor valor(int indice) const = 0;
    [[nodiscard]] virtual const ConfiguracionRegional& regional() const = 0;
};

struct FuncionExpresion
{
    QStringView nombre;
    int minimo = 1; ///< arguments
    int maximo = 1;
    Valor (*evalua)(const Argumentos&) = nullptr;
};

/// All functions of the language, aggregates excepted, which the rows give.
[[nodiscard]] std::span<const FuncionExpresion> funciones();
/// Case ignored; null for an unknown name.
[[nodiscard]] const FuncionExpresion* funcionDe(QStringView nombre);

} // namespace kestrane::report
