#pragma once

#include "platform/jet/enlazado.h"
#include "platform/jet/traductor.h"

#include <array>

namespace kestrane::jet {

/// What is written round one value.
struct Envoltura
{
    const char* antes = "";
    const char* despues = "";
};

/// How two texts are joined.
struct UnionDeTextos
{
    const char* antes = "";
    const char* entre = "";
    const char* despues = "";
};

/// When the collation of texts has to be written.
enum class Cotejo {
    Siempre,   ///< columns have none of their own
    SinColumna ///< only where no column, which has the right one, takes part
};

/// How an engine's SQL differs from the others' where a table can say it. One value for each engine; what it takes code to say
/// stands in that engine's renderer.
struct Dialecto
{
    char comilla = '"';
    const char* cotejo = "";
    Cotejo cotejoEscrito = Cotejo::SinColumna;
    std::array<Envoltura, 7> parametro; ///< round a mark, by TipoColumna
    const char* nulosPrimero = "";      ///< behind an ascending key that may be null
    const char* nulosUltimo = "";       ///< behind a descending one
    std::array<Envoltura, 4> parte;     ///< by ParteDeFecha
    std::array<Envoltura, 5> agregado;  ///< by FuncionAgregada
    Envoltura condicionComoValor;
    Envoltura verdadComoNumero{}; ///< round a column of the engine's own type of truths
    UnionDeTextos textosUnidos;
    Envoltura textoNoNulo;   ///< Null becomes the empty text
    Envoltura claveConCeros; ///< a row's number as text of fixed width
    Envoltura limite;
    Envoltura consultaReal{};      ///< round a whole number of a sub-query that a double is looked for in
    bool unionOcultaFilas = false; ///< a join in parentheses shows its tables' columns, but not their row numbers
};

[[nodiscard]] const Dialecto& dialectoDe(Motor motor);

} // namespace kestrane::jet
