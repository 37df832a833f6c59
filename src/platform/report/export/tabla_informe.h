#pragma once

#include "platform/report/filas_informe.h"

#include <optional>
#include <vector>

namespace kestrane::report {

/// What a table is made from; all outlive it.
struct FuenteTabla
{
    const Layout& layout;
    const FilasInforme& filas;
    const ConfiguracionRegional& regional;
    QString titulo = {}; ///< in place of the layout's
};

/// A column as it is shown.
struct ColumnaTabla
{
    QString titulo;
    FormatoValor formato;
    Horizontal horizontal = Horizontal::Izquierda;
    double ancho = 20; ///< millimetres
    std::optional<FuncionAgregado> total;

    /// A count is a whole number, whatever it counts.
    [[nodiscard]] FormatoValor formatoTotal() const
    {
        return total == FuncionAgregado::Cuenta ? FormatoValor{.formato = Formato::Entero} : formato;
    }
};

/// The rows of a report as data: the layout's columns, or those of its statement when it names none. What spreadsheets, CSV and
/// HTML show.
class TablaInforme
{
public:
    /// ErrorEjecucion LayoutIncorrecto when a column or a group asks for what the statement does not give.
    explicit TablaInforme(const FuenteTabla& fuente);

    [[nodiscard]] const QString& titulo() const { return m_fuente.titulo.isEmpty() ? m_fuente.layout.titulo : m_fuente.titulo; }
    [[nodiscard]] const Pagina& pagina() const { return m_fuente.layout.pagina; }
    [[nodiscard]] const ConfiguracionRegional& regional() const { return m_fuente.regional; }
    [[nodiscard]] const std::vector<ColumnaTabla>& columnas() const { return m_columnas; }
    [[nodiscard]] bool conTotales() const;

    [[nodiscard]] qsizetype filas() const { return m_fuente.filas.filas(); }
    /// What totals are reckoned from: also what does not show.
    [[nodiscard]] std::vector<Valor> valores(qsizetype fila) const;
    /// Makes Null of the values of a row that its columns do not show.
    void oculta(qsizetype fila, std::vector<Valor>& valores) const;
    /// A value of a column as it stands on paper.
    [[nodiscard]] QString escrito(const Valor& valor, size_t columna) const;

    [[nodiscard]] int grupos() const { return static_cast<int>(m_titulos.size()); }
    /// How many groups, counted from the innermost, begin with the row.
    [[nodiscard]] int gruposQueEmpiezan(qsizetype fila) const { return m_fuente.filas.gruposQueEmpiezan(fila); }
    /// What names the group of a row; a group without a title is named by its key. `grupo` counts from the outermost, 0.
    [[nodiscard]] QString tituloDeGrupo(int grupo, qsizetype fila) const;

private:
    void tomaColumnas();
    void tomaColumnasDeLaSentencia();

    FuenteTabla m_fuente;
    std::vector<ColumnaTabla> m_columnas;
    std::vector<ExpresionEnlazada> m_expresiones; ///< beside m_columnas; empty: the statement's columns as they come
    std::vector<ExpresionEnlazada> m_condiciones; ///< of showing, beside m_expresiones
    std::vector<ExpresionEnlazada> m_titulos;     ///< of the groups
};

} // namespace kestrane::report
