#pragma once

#include "platform/jet/tipos.h"
#include "platform/runtime/valor.h"

#include <span>
#include <vector>

namespace kestrane::database {

/// The values assigned to the columns of one row of a table, until they are written. Keeps its memory from row to row.
class Edicion
{
public:
    explicit Edicion(const jet::Tabla& tabla) : m_valores(tabla.columnas.size()), m_estado(tabla.columnas.size()) {}

    /// Forgets all.
    void vacia();
    /// The value, converted already, of a column of the table.
    void pon(int columna, Valor valor);
    /// The value assigned last, written or not; nullptr when there is none.
    [[nodiscard]] const Valor* valor(int columna) const;
    /// Columns assigned since the row was begun or last written, in that order.
    [[nodiscard]] std::span<const int> porEscribir() const { return m_porEscribir; }
    [[nodiscard]] bool pendiente() const { return !m_porEscribir.empty(); }
    /// What was assigned is in the database now: it can still be read.
    void escrita();

private:
    enum class Estado : quint8 { Vacio, PorEscribir, Escrito };

    std::vector<Valor> m_valores;
    std::vector<Estado> m_estado;
    std::vector<int> m_porEscribir;
    std::vector<int> m_escritas;
};

} // namespace kestrane::database
