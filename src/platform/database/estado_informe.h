#pragma once

#include "platform/database/anticipacion.h"
#include "platform/database/respuestas.h"

#include <memory>
#include <vector>

namespace kestrane::database {

/// What a connection knows while a report is built, so that it need not ask the database.
class EstadoInforme
{
public:
    /// One half of the bytes is for answers that are remembered, the other for those read ahead.
    explicit EstadoInforme(qsizetype bytesMaximos) : m_bytesAdelantados{bytesMaximos / 2}, m_respuestas{bytesMaximos / 2} {}

    void empieza() { ++m_ambitos; }
    void termina();
    [[nodiscard]] bool activo() const { return m_ambitos > 0; }

    /// Forgets what was read if the program has written to the database since; `escrituras` counts its writes.
    void alDia(quint64 escrituras);
    void vacia();

    [[nodiscard]] Respuestas& respuestas() { return m_respuestas; }
    void anuncia(std::unique_ptr<Anticipacion> anticipacion) { m_anticipaciones.push_back(std::move(anticipacion)); }
    /// The recordset that an announcement belongs to closes.
    void retira(const void* duenio);
    [[nodiscard]] const std::vector<std::unique_ptr<Anticipacion>>& anticipaciones() const { return m_anticipaciones; }
    /// What the next answers read ahead may take.
    [[nodiscard]] qsizetype bytesParaAdelantar() const;

private:
    qsizetype m_bytesAdelantados;
    int m_ambitos = 0;
    quint64 m_escrituras = 0;
    Respuestas m_respuestas;
    std::vector<std::unique_ptr<Anticipacion>> m_anticipaciones;
};

} // namespace kestrane::database
