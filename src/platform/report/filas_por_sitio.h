#pragma once

#include "platform/database/almacen_filas.h"

#include <memory>
#include <vector>

namespace kestrane::report {

/// Packed rows read by their place, from 0. One behind the other is fast; elsewhere it goes back to the nearest place that it
/// remembers and walks on from there.
class FilasPorSitio
{
public:
    explicit FilasPorSitio(std::shared_ptr<const database::AlmacenFilas> filas);

    [[nodiscard]] qsizetype filas() const { return m_filas->filas(); }
    /// A field, undecoded; good until another row is read.
    [[nodiscard]] database::Celda celda(qsizetype fila, int columna) const;
    [[nodiscard]] Valor valor(qsizetype fila, int columna) const { return celda(fila, columna).valor(); }

private:
    void situa(qsizetype fila) const;

    std::shared_ptr<const database::AlmacenFilas> m_filas;
    mutable database::LectorFilas m_lector;
    mutable std::vector<database::LectorFilas::Sitio> m_sitios; ///< before every n-th row, as far as it was walked
};

} // namespace kestrane::report
