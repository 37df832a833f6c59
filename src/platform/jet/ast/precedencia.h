#pragma once

#include "platform/jet/ast/expresion.h"
#include "platform/jet/token.h"

#include <array>
#include <optional>

namespace kestrane::jet::ast {

/// How tightly an operator holds its operands, from the loosest to the tightest.
enum class Precedencia {
    O,
    Y,
    No,
    Comparacion, ///< with LIKE, IN, BETWEEN and IS
    Union,
    Suma,
    Resto,
    DivisionEntera,
    Producto,
    Signo,
    Primaria,
};

/// The next tighter level: what the right operand of an operator that groups from the left must have.
[[nodiscard]] constexpr Precedencia masFuerte(Precedencia precedencia)
{
    return static_cast<Precedencia>(static_cast<int>(precedencia) + 1);
}

struct FilaDeOperador
{
    OperadorBinario operador;
    ClaseToken token;
    Precedencia precedencia;
};

/// All operators between two operands, in the order of OperadorBinario.
inline constexpr std::array OperadoresBinarios = {
    FilaDeOperador{OperadorBinario::O, ClaseToken::Or, Precedencia::O},
    FilaDeOperador{OperadorBinario::Y, ClaseToken::And, Precedencia::Y},
    FilaDeOperador{OperadorBinario::Igual, ClaseToken::Igual, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::Distinto, ClaseToken::Distinto, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::Menor, ClaseToken::Menor, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::MenorIgual, ClaseToken::MenorIgual, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::Mayor, ClaseToken::Mayor, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::MayorIgual, ClaseToken::MayorIgual, Precedencia::Comparacion},
    FilaDeOperador{OperadorBinario::Une, ClaseToken::Ampersand, Precedencia::Union},
    FilaDeOperador{OperadorBinario::Suma, ClaseToken::Mas, Precedencia::Suma},
    FilaDeOperador{OperadorBinario::Resta, ClaseToken::Menos, Precedencia::Suma},
    FilaDeOperador{OperadorBinario::Resto, ClaseToken::Mod, Precedencia::Resto},
    FilaDeOperador{OperadorBinario::DivisionEntera, ClaseToken::BarraInversa, Precedencia::DivisionEntera},
    FilaDeOperador{OperadorBinario::Producto, ClaseToken::Asterisco, Precedencia::Producto},
    FilaDeOperador{OperadorBinario::Division, ClaseToken::Barra, Precedencia::Producto},
};

[[nodiscard]] constexpr const FilaDeOperador& filaDe(OperadorBinario operador)
{
    return OperadoresBinarios[static_cast<size_t>(operador)];
}

[[nodiscard]] constexpr const FilaDeOperador* filaDe(ClaseToken token)
{
    for (const FilaDeOperador& fila : OperadoresBinarios)
        if (fila.token == token)
            return &fila;
    return nullptr;
}

/// The precedence of a whole expression: that of its outermost operator.
[[nodiscard]] Precedencia precedenciaDe(const Expresion& expresion);

} // namespace kestrane::jet::ast
