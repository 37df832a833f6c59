#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/cursor.h"
#include "platform/runtime/configuracion_regional.h"

#include <QString>

#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace kestrane::database {

/// An announcement that, for each row of a recordset, one statement will be sent: head, the row's key, tail. Keeps the keys to come
/// and the answers that were read ahead.
class Anticipacion
{
public:
    /// The rows from the current one of `cabeceras` on, which must be read whole; `columna` of them is the key.
    Anticipacion(const void* duenio, const Cursor& cabeceras, int columna, QString cabeza, QString cola,
                 const ConfiguracionRegional& regional);

    [[nodiscard]] bool esDe(const void* duenio) const { return m_duenio == duenio; }
    /// The key of a statement that was announced.
    [[nodiscard]] std::optional<QStringView> clave(QStringView sentencia) const;
    [[nodiscard]] QString sentencia(QStringView clave) const { return m_cabeza + clave.toString() + m_cola; }

    /// The answer read ahead for a key; nullptr when there is none.
    [[nodiscard]] std::shared_ptr<const AlmacenFilas> servida(QStringView clave) const;
    /// The keys that come next, `clave` in front, each once, at most `maximo`. Less than two when there is nothing to read ahead or
    /// the key is not one of the next.
    [[nodiscard]] std::vector<QString> siguientes(QStringView clave, int maximo);
    /// What was read ahead takes the place of what was before.
    void guarda(const std::vector<QString>& claves, std::vector<std::shared_ptr<const AlmacenFilas>> filas);
    /// The keys given last are to be sent one by one.
    void fallo(size_t claves);
    void olvida();
    /// What the answers read ahead take.
    [[nodiscard]] qsizetype bytes() const { return m_bytes; }

private:
    struct Hash
    {
        using is_transparent = void;
        size_t operator()(QStringView texto) const { return qHash(texto); }
    };
    struct Iguales
    {
        using is_transparent = void;
        bool operator()(QStringView a, QStringView b) const { return a == b; }
    };

    void rellena(size_t maximo);

    const void* m_duenio;
    QString m_cabeza;
    QString m_cola;
    const ConfiguracionRegional& m_regional;
    LectorFilas m_lector;
    int m_columna;
    std::deque<QString> m_proximas; ///< keys of the rows to come, each once, as far as they were looked at
    size_t m_deUnaEnUna = 0;
    std::unordered_map<QString, std::shared_ptr<const AlmacenFilas>, Hash, Iguales> m_servidas;
    qsizetype m_bytes = 0;
};

} // namespace kestrane::database
