#pragma once

#include "platform/database/bloque_bytes.h"
#include "platform/database/motor.h"
#include "platform/database/sqlite/sqlite_fecha.h"
#include "platform/database/sqlite/sqlite_recursos.h"

#include <array>

namespace kestrane::database::sqlite {

class SqliteMotor;

/// Values bound to a prepared statement. Texts go in as UTF-8 from a buffer of its own, dates as their stored text.
class Ligaduras
{
public:
    explicit Ligaduras(sqlite3_stmt* sentencia) : m_sentencia{sentencia} {}

    /// All marks at once. What is bound holds until the next call.
    void liga(std::span<const Ligado> valores);
    /// The fields of the store's current row, the first to the first mark. They must hold until the statement has run.
    void liga(const AlmacenFilas& filas);

private:
    void reserva(qsizetype unidades, size_t fechas);
    void ligaUno(int marca, const Ligado& valor);
    void ligaCelda(int marca, const Celda& celda);
    void ligaTexto(int marca, QStringView texto);
    void ligaFecha(int marca, Fecha fecha);

    sqlite3_stmt* m_sentencia;
    BloqueBytes m_textos;
    std::vector<std::array<char, AnchoFecha>> m_fechas;
};

/// A prepared statement of the embedded engine. The engine's cursor ends, and its lock with it, as soon as the last row was read.
class SqliteSentencia final : public SentenciaMotor
{
public:
    /// `motor` outlives it.
    SqliteSentencia(SqliteMotor& motor, Preparada sentencia, std::span<const jet::TipoColumna> resultado);

    void ejecuta(std::span<const Ligado> parametros) override;
    [[nodiscard]] bool siguiente(AlmacenFilas& destino) override;
    [[nodiscard]] qint64 afectadas() const override { return m_afectadas; }
    void reinicia() noexcept override;

private:
    enum class Estado { Quieta, FilaPorLeer, FilaLeida };

    void avanza();
    void copiaFila(AlmacenFilas& destino);
    void copiaCampo(AlmacenFilas& destino, int columna, jet::TipoColumna tipo);
    [[nodiscard]] double numero(int columna) const;
    void copiaEntero(AlmacenFilas& destino, int columna, jet::TipoColumna tipo);
    void copiaFecha(AlmacenFilas& destino, int columna);
    [[noreturn]] void ilegible(int columna, const char* esperado) const;

    SqliteMotor& m_motor;
    Preparada m_sentencia;
    Ligaduras m_ligaduras;
    std::vector<jet::TipoColumna> m_resultado;
    Estado m_estado = Estado::Quieta;
    qint64 m_afectadas = 0;
};

} // namespace kestrane::database::sqlite
