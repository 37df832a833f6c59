#pragma once

#include "platform/report/layout/layout.h"
#include "platform/runtime/valor.h"

#include <QByteArray>

#include <vector>

namespace kestrane::report {

enum class Sentido { Ascendente, Descendente };

/// Appends bytes that sort as an `order by` on the value does: Null first, numbers, dates, texts by the Spanish rules; the other
/// way round when descending. Equal values have equal bytes.
void anadeClave(QByteArray& destino, const Valor& valor, Sentido sentido);

/// The keys of a row, from its columns.
class ClavesFila
{
public:
    ClavesFila() = default;
    /// For sorting: the groups' keys, of those that sort, then the layout's.
    [[nodiscard]] static ClavesFila deOrden(const Layout& layout, const QStringList& columnas);
    /// For cutting: each group's key.
    [[nodiscard]] static ClavesFila deGrupos(const Layout& layout, const QStringList& columnas);

    [[nodiscard]] size_t cuantas() const { return m_claves.size(); }
    [[nodiscard]] bool vacias() const { return m_claves.empty(); }
    /// Appends the key of that index.
    void anade(QByteArray& destino, size_t clave, const AmbitoExpresion& fila, const ConfiguracionRegional& regional) const;
    /// All of them one behind the other.
    void anadeTodas(QByteArray& destino, const AmbitoExpresion& fila, const ConfiguracionRegional& regional) const;

private:
    struct Clave
    {
        ExpresionEnlazada por;
        Sentido sentido = Sentido::Ascendente;
    };
    void pon(const Expresion& por, bool descendente, const QStringList& columnas);

    std::vector<Clave> m_claves;
};

} // namespace kestrane::report
