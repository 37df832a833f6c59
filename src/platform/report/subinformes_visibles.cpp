#include "platform/report/subinformes_visibles.h"

#include "platform/report/ambito_fila.h"

#include <algorithm>

namespace kestrane::report {

namespace {

/// Rows of a report, from `desde` up to `hasta`.
struct Tramo
{
    qsizetype desde = 0;
    qsizetype hasta = 0;
};

class Buscador
{
public:
    Buscador(const InformeEnlazado& informe, const ConfiguracionRegional& regional, std::vector<DatosSubinforme>& hallados)
        : m_informe{informe}
        , m_regional{regional}
        , m_hallados{hallados}
    {
    }

    void busca()
    {
        const qsizetype filas = m_informe.filas().filas();
        const Tramo todas{0, filas};
        const Tramo primera{0, 1};
        const Tramo ultima{std::max<qsizetype>(filas, 1) - 1, std::max<qsizetype>(filas, 1)};
        busca(m_informe.cabeceraInforme(), primera);
        busca(m_informe.cabeceraPagina(), primera);
        for (int nivel = 1; nivel <= m_informe.niveles(); ++nivel)
            busca(m_informe.grupo(nivel).cabecera, todas);
        busca(m_informe.detalle(), todas);
        for (int nivel = m_informe.niveles(); nivel > 0; --nivel)
            busca(m_informe.grupo(nivel).pie, todas);
        busca(m_informe.pieInforme(), ultima);
        busca(m_informe.piePagina(), ultima);
    }

private:
    void busca(const SeccionEnlazada& seccion, const Tramo& filas)
    {
        for (const BandaEnlazada& banda : seccion) {
            for (const ElementoEnlazado& elemento : banda.elementos) {
                if (elemento.subinforme && seVe(banda, elemento, filas))
                    toma(elemento);
            }
        }
    }

    [[nodiscard]] bool seVe(const BandaEnlazada& banda, const ElementoEnlazado& elemento, const Tramo& filas) const
    {
        for (qsizetype fila = filas.desde; fila < filas.hasta; ++fila) {
            const AmbitoFila ambito{m_informe.filas(), {fila, 1, 1}};
            if (banda.mostrar.cierto(ambito, m_regional) && elemento.mostrar.cierto(ambito, m_regional))
                return true;
        }
        return false;
    }

    void toma(const ElementoEnlazado& elemento)
    {
        const InformeEnlazado& suyo = *elemento.subinforme;
        if (suyo.filas().filas() > 0)
            m_hallados.push_back({std::get<Subinforme>(*elemento.elemento).titulo, suyo.layout(), suyo.filas()});
        Buscador{suyo, m_regional, m_hallados}.busca();
    }

    const InformeEnlazado& m_informe;
    const ConfiguracionRegional& m_regional;
    std::vector<DatosSubinforme>& m_hallados;
};

} // namespace

std::vector<DatosSubinforme> subinformesVisibles(const InformeEnlazado& informe, const ConfiguracionRegional& regional)
{
    std::vector<DatosSubinforme> hallados;
    Buscador{informe, regional, hallados}.busca();
    return hallados;
}

} // namespace kestrane::report
