#include "platform/report/export/recorrido_tabla.h"

#include "platform/report/acumulador.h"

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype FilasPorAviso = 256;

/// Totals of all levels at once: place 0 is the report, n the group n - 1.
class Recorrido
{
public:
    Recorrido(const TablaInforme& tabla, DestinoTabla& destino)
        : m_tabla{tabla}
        , m_destino{destino}
        , m_conTotales{tabla.conTotales()}
        , m_totales(niveles(), vacios())
        , m_titulos(niveles())
    {
    }

    void fila(qsizetype indice)
    {
        const int empiezan = m_tabla.gruposQueEmpiezan(indice);
        if (indice > 0)
            cierra(m_tabla.grupos() - empiezan);
        for (int grupo = m_tabla.grupos() - empiezan; grupo < m_tabla.grupos(); ++grupo)
            abre(grupo, indice);
        std::vector<Valor> valores = m_tabla.valores(indice);
        suma(valores);
        m_tabla.oculta(indice, valores);
        m_destino.fila(valores);
    }

    void termina()
    {
        if (m_tabla.filas() > 0)
            cierra(0);
        if (m_conTotales)
            m_destino.totales(-1, u"Total"_s, valoresDe(0));
    }

private:
    struct Total
    {
        size_t columna;
        Acumulador acumulador;
    };
    using Totales = std::vector<Total>; ///< of the columns that have one

    [[nodiscard]] size_t niveles() const { return static_cast<size_t>(m_tabla.grupos()) + 1; }

    [[nodiscard]] Totales vacios() const
    {
        Totales totales;
        for (size_t columna = 0; columna < m_tabla.columnas().size(); ++columna) {
            if (const auto& funcion = m_tabla.columnas()[columna].total)
                totales.push_back({.columna = columna, .acumulador = Acumulador{*funcion}});
        }
        return totales;
    }

    void abre(int grupo, qsizetype fila)
    {
        const size_t nivel = static_cast<size_t>(grupo) + 1;
        m_totales[nivel] = vacios();
        m_titulos[nivel] = m_tabla.tituloDeGrupo(grupo, fila);
        m_destino.empiezaGrupo(grupo, m_titulos[nivel]);
    }

    /// The groups from the innermost out to `hasta`.
    void cierra(int hasta)
    {
        for (int grupo = m_tabla.grupos() - 1; m_conTotales && grupo >= hasta; --grupo) {
            const size_t nivel = static_cast<size_t>(grupo) + 1;
            m_destino.totales(grupo, u"Total "_s + m_titulos[nivel], valoresDe(nivel));
        }
    }

    void suma(const std::vector<Valor>& valores)
    {
        for (Totales& totales : m_totales) {
            for (Total& total : totales)
                total.acumulador.anade(valores[total.columna], m_tabla.regional());
        }
    }

    [[nodiscard]] std::vector<Valor> valoresDe(size_t nivel) const
    {
        std::vector<Valor> valores(m_tabla.columnas().size());
        for (const Total& total : m_totales[nivel])
            valores[total.columna] = total.acumulador.valor();
        return valores;
    }

    const TablaInforme& m_tabla;
    DestinoTabla& m_destino;
    bool m_conTotales;
    std::vector<Totales> m_totales;
    std::vector<QString> m_titulos;
};

} // namespace

bool recorre(const TablaInforme& tabla, DestinoTabla& destino, const AvanceExportacion& avance)
{
    Recorrido recorrido{tabla, destino};
    for (qsizetype fila = 0; fila < tabla.filas(); ++fila) {
        if (fila % FilasPorAviso == 0 && !sigue(avance, fila, tabla.filas()))
            return false;
        recorrido.fila(fila);
    }
    recorrido.termina();
    return sigue(avance, 1, 1);
}

} // namespace kestrane::report
