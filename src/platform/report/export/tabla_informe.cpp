#include "platform/report/export/tabla_informe.h"

#include "platform/runtime/conversiones.h"

#include <algorithm>

namespace kestrane::report {

namespace {

/// A row seen by the layout's expressions. A table has one page.
class AmbitoFila final : public AmbitoExpresion
{
public:
    AmbitoFila(const FilasInforme& filas, qsizetype fila) : m_filas{filas}, m_fila{fila} {}

    [[nodiscard]] Valor columna(int indice) const override { return m_filas.valor(m_fila, indice); }
    [[nodiscard]] Valor agregado(int indice) const override { return m_filas.agregado(m_fila, indice); }
    [[nodiscard]] int pagina() const override { return 1; }
    [[nodiscard]] int paginas() const override { return 1; }
    [[nodiscard]] qsizetype fila() const override { return m_fila + 1; }

private:
    const FilasInforme& m_filas;
    qsizetype m_fila;
};

ColumnaTabla comoTabla(const ColumnaDatos& columna)
{
    ColumnaTabla tabla{.titulo = columna.titulo,
                       .formato = columna.formato,
                       .horizontal = columna.horizontal,
                       .ancho = columna.ancho,
                       .total = {}};
    if (columna.conTotal)
        tabla.total = columna.total;
    return tabla;
}

} // namespace

TablaInforme::TablaInforme(const FuenteTabla& fuente) : m_fuente{fuente}
{
    m_fuente.layout.columnas.empty() ? tomaColumnasDeLaSentencia() : tomaColumnas();
    for (const Grupo& grupo : m_fuente.layout.grupos)
        m_titulos.emplace_back(grupo.titulo.vacia() ? grupo.por : grupo.titulo, m_fuente.filas.columnas());
}

void TablaInforme::tomaColumnas()
{
    for (const ColumnaDatos& columna : m_fuente.layout.columnas) {
        m_columnas.push_back(comoTabla(columna));
        m_expresiones.emplace_back(columna.valor, m_fuente.filas.columnas());
        m_condiciones.emplace_back(columna.mostrar, m_fuente.filas.columnas());
    }
}

void TablaInforme::tomaColumnasDeLaSentencia()
{
    for (const QString& nombre : m_fuente.filas.columnas())
        m_columnas.push_back({.titulo = nombre, .formato = {}, .total = {}});
}

bool TablaInforme::conTotales() const
{
    return std::ranges::any_of(m_columnas, [](const ColumnaTabla& columna) { return columna.total.has_value(); });
}

std::vector<Valor> TablaInforme::valores(qsizetype fila) const
{
    std::vector<Valor> todos;
    todos.reserve(m_columnas.size());
    const AmbitoFila ambito{m_fuente.filas, fila};
    for (const ExpresionEnlazada& expresion : m_expresiones)
        todos.push_back(expresion.vacia() ? Valor{} : expresion.valor(ambito, m_fuente.regional));
    if (m_expresiones.empty()) {
        for (int columna = 0; columna < static_cast<int>(m_columnas.size()); ++columna)
            todos.push_back(m_fuente.filas.valor(fila, columna));
    }
    return todos;
}

void TablaInforme::oculta(qsizetype fila, std::vector<Valor>& valores) const
{
    const AmbitoFila ambito{m_fuente.filas, fila};
    for (size_t columna = 0; columna < m_condiciones.size(); ++columna) {
        if (!m_condiciones[columna].cierto(ambito, m_fuente.regional))
            valores[columna] = Valor{};
    }
}

QString TablaInforme::escrito(const Valor& valor, size_t columna) const
{
    return escribeValor(valor, m_columnas[columna].formato, m_fuente.regional);
}

QString TablaInforme::tituloDeGrupo(int grupo, qsizetype fila) const
{
    const AmbitoFila ambito{m_fuente.filas, fila};
    return aTexto(m_titulos[static_cast<size_t>(grupo)].valor(ambito, m_fuente.regional), m_fuente.regional);
}

} // namespace kestrane::report
