#pragma once

#include "platform/database/plan_sentencia.h"

#include <QString>

#include <list>
#include <memory>
#include <unordered_map>

namespace kestrane::database {

/// The plans of the statement shapes that a connection has met, the ones used longest ago dropped past a bound of number and bytes.
/// Plans in use stay, whatever the bound.
class CacheFormas
{
public:
    CacheFormas(int maximo, qsizetype bytesMaximos) : m_maximo{maximo}, m_bytesMaximos{bytesMaximos} {}

    /// The plan of a shape, nullptr when there is none. `hash` is the shape's.
    [[nodiscard]] PlanSentencia* busca(QStringView forma, size_t hash);
    /// Keeps a plan; it holds until a later `inserta`, or longer while in use.
    PlanSentencia& inserta(QStringView forma, size_t hash, std::unique_ptr<PlanSentencia> plan);

    [[nodiscard]] int cuantas() const { return static_cast<int>(m_entradas.size()); }
    [[nodiscard]] qsizetype bytes() const { return m_bytes; }

private:
    struct Entrada
    {
        QString forma;
        size_t hash = 0;
        std::unique_ptr<PlanSentencia> plan;
        qsizetype bytes = 0;
    };
    using Entradas = std::list<Entrada>;
    struct HashDado
    {
        size_t operator()(size_t hash) const { return hash; }
    };

    void recorta();
    void olvida(Entradas::iterator entrada);

    int m_maximo;
    qsizetype m_bytesMaximos;
    qsizetype m_bytes = 0;
    Entradas m_entradas; ///< used last in front
    std::unordered_multimap<size_t, Entradas::iterator, HashDado> m_porHash;
};

} // namespace kestrane::database
