#pragma once

#include "platform/database/bloque_bytes.h"
#include "platform/runtime/valor.h"

#include <QStringView>

#include <memory>
#include <vector>

namespace kestrane::database {

class FicheroFilas;

/// How a field lies in a row.
enum class TipoCelda : quint8 { Nulo, Falso, Verdadero, Entero16, Entero32, Doble, Dia, DiaHora, Utf8, Utf16 };

/// A field as it lies in the store, undecoded: good until the store changes or the reader moves on.
struct Celda
{
    TipoCelda tipo = TipoCelda::Nulo;
    const char* datos = nullptr; ///< the number's bytes, not aligned, or the text
    qsizetype bytes = 0;         ///< of `datos`

    [[nodiscard]] qint16 entero16() const { return lee<qint16>(); }
    [[nodiscard]] qint32 entero32() const { return lee<qint32>(); }
    [[nodiscard]] double doble() const { return lee<double>(); }
    [[nodiscard]] Fecha fecha() const;
    [[nodiscard]] QString texto() const;
    [[nodiscard]] Valor valor() const;

private:
    template<class T>
    [[nodiscard]] T lee() const
    {
        T valor;
        std::memcpy(&valor, datos, sizeof valor);
        return valor;
    }
};

class AlmacenFilas;

/// A walk over the rows of a store, from the first to the last. The store may grow meanwhile.
class LectorFilas
{
public:
    LectorFilas();
    explicit LectorFilas(const AlmacenFilas& almacen);
    ~LectorFilas();
    LectorFilas(LectorFilas&&) noexcept;
    LectorFilas& operator=(LectorFilas&&) noexcept;

    /// Before the first row of `almacen`.
    void empieza(const AlmacenFilas& almacen);
    /// Moves to the next row; false past the last.
    bool siguiente();
    /// Rows walked so far, the current one included.
    [[nodiscard]] qsizetype fila() const { return m_fila; }
    /// A field of the current row.
    [[nodiscard]] Celda celda(int columna) const;
    [[nodiscard]] Valor valor(int columna) const { return celda(columna).valor(); }

    /// The whole current row as packed bytes, for AlmacenFilas::copiaFila.
    [[nodiscard]] const char* empaquetada() const;

    /// A place between two rows, for coming back to it.
    struct Sitio
    {
        qsizetype fila = 0; ///< rows before it
        qsizetype enMemoria = 0;
        qsizetype enFichero = 0;
    };
    /// Behind the current row.
    [[nodiscard]] Sitio sitio() const { return {m_fila, m_siguiente, m_enFichero}; }
    /// Goes on behind a place of the same store; there is no current row until `siguiente`.
    void vuelve(const Sitio& sitio);

private:
    const AlmacenFilas* m_almacen = nullptr;
    qsizetype m_fila = 0;
    qsizetype m_inicio = 0;    ///< of the current row in the store's memory
    qsizetype m_siguiente = 0; ///< of the next row
    qsizetype m_enFichero = 0; ///< of the next row in the store's file
    BloqueBytes m_leida;       ///< the current row, when it comes from the file
    bool m_esDeFichero = false;
    mutable std::vector<quint32> m_posiciones; ///< of the fields walked over so far
    mutable int m_conocidas = 0;
};

/// The rows of a result, packed one behind the other, forward only; past `limite` bytes the rest goes to a temporary file.
///
/// Engines write a row with empiezaFila, one pon... per column, terminaFila. Texts are kept in the encoding in which the engine
/// gave them. A store has a reader of its own; others may walk it besides (LectorFilas).
class AlmacenFilas
{
public:
    static constexpr qsizetype LimitePorDefecto = qsizetype{4} * 1024 * 1024;

    explicit AlmacenFilas(int columnas, qsizetype limite = LimitePorDefecto);
    ~AlmacenFilas();
    AlmacenFilas(AlmacenFilas&&) noexcept;
    AlmacenFilas& operator=(AlmacenFilas&&) noexcept;

    // The engine's side.
    void empiezaFila();
    void ponNulo() { ponTipo(TipoCelda::Nulo); }
    void ponLogico(bool valor) { ponTipo(valor ? TipoCelda::Verdadero : TipoCelda::Falso); }
    void ponEntero16(qint16 valor) { ponNumero(TipoCelda::Entero16, valor); }
    void ponEntero32(qint32 valor) { ponNumero(TipoCelda::Entero32, valor); }
    void ponDoble(double valor) { ponNumero(TipoCelda::Doble, valor); }
    void ponFecha(Fecha valor);
    void ponTextoUtf8(const char* texto, qsizetype bytes);
    void ponTexto(QStringView texto);
    /// Keeps a UTF-16 text as UTF-8: half the room, and what the embedded engine takes.
    void ponTextoComoUtf8(QStringView texto);
    void ponValor(const Valor& valor);
    /// The field as it lies in this or another store.
    void ponCelda(const Celda& celda);
    void terminaFila();
    /// Adds a row of a store with as many columns, as LectorFilas::empaquetada gives it.
    void copiaFila(const char* empaquetada);
    /// Takes back what was written of a row since empiezaFila; harmless between rows.
    void abandonaFila();

    [[nodiscard]] int columnas() const { return m_columnas; }
    [[nodiscard]] qsizetype filas() const { return m_filas; }
    /// What the rows take, in memory and in the file.
    [[nodiscard]] qsizetype bytes() const;
    [[nodiscard]] bool usaFichero() const { return m_fichero != nullptr; }
    /// No rows; memory up to a few kilobytes is kept for the next ones.
    void vacia();

    // The store's own reader.
    /// Moves to the next row; false past the last.
    bool siguiente() { return m_lector.siguiente(); }
    /// Back before the first row.
    void alPrincipio() { m_lector.empieza(*this); }
    /// A field of the row that `siguiente` moved to.
    [[nodiscard]] Valor valor(int columna) const { return m_lector.valor(columna); }
    [[nodiscard]] Celda celda(int columna) const { return m_lector.celda(columna); }

private:
    friend class LectorFilas;

    void ponTipo(TipoCelda tipo) { *m_memoria.anade(1) = static_cast<char>(tipo); }
    template<class T>
    void ponNumero(TipoCelda tipo, T valor)
    {
        char* const destino = m_memoria.anade(1 + qsizetype{sizeof valor});
        *destino = static_cast<char>(tipo);
        std::memcpy(destino + 1, &valor, sizeof valor);
    }
    void ponBytes(TipoCelda tipo, const void* datos, qsizetype bytes);
    void pasaAlFichero();

    int m_columnas;
    qsizetype m_limite;
    qsizetype m_filas = 0;
    qsizetype m_filasEnMemoria = 0;
    qsizetype m_inicioFila = 0;
    BloqueBytes m_memoria;
    std::unique_ptr<FicheroFilas> m_fichero;
    LectorFilas m_lector;
};

} // namespace kestrane::database
