#pragma once

#include "platform/runtime/valor.h"

namespace kestrane::database {

class Recordset;

/// A field of the current row of a recordset: read as a Valor, or assigned. Used on the spot, not kept.
class Campo
{
public:
    Campo(Recordset& filas, int columna) : m_filas{filas}, m_columna{columna} {}
    Campo(const Campo&) = default;

    /// The value, of the class of the column's type (YESNO a flag, LONG a 32-bit number ..). Error 3021 without a current row.
    [[nodiscard]] Valor valor() const;
    operator Valor() const { return valor(); }

    /// Converts by the column's type and the regional settings and keeps it for Update. Error 13 or 6 when it cannot be converted,
    /// -2147217900 for a Null or a text that the column does not take.
    Campo& operator=(const Valor& valor);
    // NOLINTNEXTLINE(cert-oop54-cpp): written to itself it is written too
    Campo& operator=(const Campo& otro) { return *this = otro.valor(); }

    // The readers of Valor.
    [[nodiscard]] bool esNulo() const { return valor().esNulo(); }
    [[nodiscard]] bool logico() const { return valor().logico(); }
    [[nodiscard]] qint16 entero16() const { return valor().entero16(); }
    [[nodiscard]] qint32 entero32() const { return valor().entero32(); }
    [[nodiscard]] double doble() const { return valor().doble(); }
    [[nodiscard]] Fecha fecha() const { return valor().fecha(); }
    [[nodiscard]] QString texto() const { return valor().texto(); }

private:
    Recordset& m_filas;
    int m_columna;
};

} // namespace kestrane::database
