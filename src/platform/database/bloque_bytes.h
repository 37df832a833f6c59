#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace kestrane::database {

/// Bytes that grow at the end. Emptying keeps the memory, so that what is filled again and again allocates once.
class BloqueBytes
{
public:
    BloqueBytes() = default;
    BloqueBytes(BloqueBytes&& otro) noexcept
        : m_datos{std::move(otro.m_datos)}
        , m_tamano{std::exchange(otro.m_tamano, 0)}
        , m_capacidad{std::exchange(otro.m_capacidad, 0)}
    {
    }
    BloqueBytes& operator=(BloqueBytes&& otro) noexcept
    {
        m_datos = std::move(otro.m_datos);
        m_tamano = std::exchange(otro.m_tamano, 0);
        m_capacidad = std::exchange(otro.m_capacidad, 0);
        return *this;
    }

    [[nodiscard]] const char* datos() const { return m_datos.get(); }
    [[nodiscard]] char* datos() { return m_datos.get(); }
    [[nodiscard]] qsizetype tamano() const { return m_tamano; }
    [[nodiscard]] qsizetype capacidad() const { return m_capacidad; }

    /// Room for `bytes` more at the end, counted in; the caller writes them all.
    [[nodiscard]] char* anade(qsizetype bytes)
    {
        reserva(m_tamano + bytes);
        char* const destino = m_datos.get() + m_tamano;
        m_tamano += bytes;
        return destino;
    }
    void copia(const void* origen, qsizetype bytes)
    {
        if (bytes > 0)
            std::memcpy(anade(bytes), origen, static_cast<size_t>(bytes));
    }
    /// Makes the block shorter, never longer.
    void recorta(qsizetype tamano) { m_tamano = tamano; }
    void reserva(qsizetype bytes)
    {
        if (bytes > m_capacidad)
            crece(bytes);
    }
    void sueltaMemoria() { *this = BloqueBytes{}; }

private:
    void crece(qsizetype bytes)
    {
        m_capacidad = std::max<qsizetype>(bytes, std::max<qsizetype>(256, m_capacidad * 2));
        auto nuevo = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(m_capacidad));
        if (m_tamano > 0)
            std::memcpy(nuevo.get(), m_datos.get(), static_cast<size_t>(m_tamano));
        m_datos = std::move(nuevo);
    }

    std::unique_ptr<char[]> m_datos;
    qsizetype m_tamano = 0;
    qsizetype m_capacidad = 0;
};

} // namespace kestrane::database
