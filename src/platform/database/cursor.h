#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/enlace.h"
#include "platform/database/motor.h"

#include <exception>
#include <memory>
#include <span>

namespace kestrane::database {

struct EtiquetaCursor;

/// An open query: the engine's statement, the rows read from it so far and the place in them. Rows come from the engine one by one
/// as they are asked for, or all at once; either way they are those of the moment of execution.
///
/// A row that cannot be read ends it for good: from then on whatever asks for rows meets that error again, so that no result is
/// taken for a shorter one.
class Cursor : private Enlace<EtiquetaCursor>
{
public:
    using Anillo = Enlace<EtiquetaCursor>;

    /// `columnas` with hidden ones; `limite` in bytes of memory.
    Cursor(std::unique_ptr<SentenciaMotor> sentencia, int columnas, qsizetype limite);

    /// Runs the statement; while rows remain in the engine the cursor stands in the ring `aMedias`.
    void ejecuta(std::span<const Ligado> parametros, Anillo& aMedias);
    /// Takes rows that were read before, whole, instead of running anything.
    void recuerda(std::shared_ptr<const AlmacenFilas> filas);

    /// True when there are at least that many rows, read as far as needed.
    [[nodiscard]] bool hay(qsizetype filas);
    /// Reads all rows that remain and ends the engine's cursor.
    void completa();
    /// The same on behalf of somebody else: an error waits for the next one who asks for rows.
    void completaCallando() noexcept;
    /// True when all rows were read, none of them bad.
    [[nodiscard]] bool completo() const { return m_completo && !m_error; }
    [[nodiscard]] qsizetype leidas() const { return filas().filas(); }

    /// Steps to the next row, reading all that remain when it is not read yet. False past the last.
    [[nodiscard]] bool avanza();
    [[nodiscard]] const LectorFilas& lector() const { return m_lector; }
    [[nodiscard]] const AlmacenFilas& filas() const { return m_recordadas ? *m_recordadas : m_filas; }

    /// How often the program had written to the database when the rows were asked for.
    [[nodiscard]] quint64 escrituras() const { return m_escrituras; }
    void anotaEscrituras(quint64 escrituras) { m_escrituras = escrituras; }

    /// Makes the rows shared, so that they may outlive the use of the cursor. All must have been read.
    [[nodiscard]] std::shared_ptr<const AlmacenFilas> comparte();
    /// Ends the engine's cursor and drops the rows: ready for the next use.
    void suelta() noexcept;

    /// The cursor that a ring's link belongs to.
    [[nodiscard]] static Cursor& de(Anillo& enlace) { return static_cast<Cursor&>(enlace); }

private:
    [[nodiscard]] bool leeUna();
    void exigeSano() const;
    void termina() noexcept;

    std::unique_ptr<SentenciaMotor> m_sentencia;
    AlmacenFilas m_filas;
    std::shared_ptr<const AlmacenFilas> m_recordadas;
    LectorFilas m_lector;
    qsizetype m_limite;
    bool m_completo = true; ///< the engine holds no more rows
    std::exception_ptr m_error;
    quint64 m_escrituras = 0;
};

} // namespace kestrane::database
