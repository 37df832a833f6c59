#pragma once

#include "platform/report/copia_filas.h"
#include "platform/report/cortes_de_grupos.h"
#include "platform/report/filas_informe.h"
#include "platform/report/pasada_agregados.h"

namespace kestrane::report {

/// The rows of a statement, sorted and cut as a layout asks, with its aggregates. One pass over the rows; memory does not grow with
/// them but for a byte each.
class FilasAgrupadas : public FilasInforme
{
public:
    /// ErrorEjecucion for a key or aggregate over a column that is not there, or over a value that is no number.
    FilasAgrupadas(const Layout& layout, const CopiaFilas& copia, const ConfiguracionRegional& regional);
    ~FilasAgrupadas() override;

    [[nodiscard]] const QStringList& columnas() const override { return m_columnas; }
    [[nodiscard]] qsizetype filas() const override { return m_filas.filas(); }
    [[nodiscard]] Valor valor(qsizetype fila, int columna) const override { return m_filas.valor(fila, columna); }
    [[nodiscard]] int gruposQueEmpiezan(qsizetype fila) const override { return m_cortes.empiezan(fila); }
    [[nodiscard]] Valor agregado(qsizetype fila, int indice) const override;

private:
    QStringList m_columnas;
    FilasPorSitio m_filas;
    CortesDeGrupos m_cortes;
    std::vector<LugarAgregado> m_lugares;              ///< of each of Layout::agregados
    std::vector<std::optional<FilasPorSitio>> m_sumas; ///< of the report, then of each level: a row for each group
    std::optional<FilasPorSitio> m_corrientes;         ///< running values: a row for each row
};

} // namespace kestrane::report
