#pragma once

#include "platform/report/medidor_bandas.h"

namespace kestrane::report {

/// Reckons the room that bands take with all that must stand on the same page below them: headers of groups are never the last
/// thing on a page. `altoDeCuerpo` is the room for bands of a whole page.
class ReservaDeSitio
{
public:
    /// `numeros` has the page's number.
    ReservaDeSitio(const InformeEnlazado& informe, const MedidorBandas& medidor, const Contexto& numeros)
        : m_informe{informe}
        , m_medidor{medidor}
        , m_recorrido{informe}
        , m_numeros{numeros}
    {
    }

    /// For what stands at that step.
    [[nodiscard]] double para(const Paso& paso, double altoDeCuerpo) const;
    /// For the headers of the groups that begin at the row, from that level on.
    [[nodiscard]] double paraGrupos(int nivel, qsizetype fila, double altoDeCuerpo) const;
    /// For the bands of a row, up to one that begins a page. What goes on on the next page in any case counts with its least
    /// height.
    [[nodiscard]] double paraFila(qsizetype fila, double altoDeCuerpo) const;
    /// For the band at that step and its next neighbours that stand at the foot of the page.
    [[nodiscard]] double bloqueAlPie(const Paso& paso) const;

private:
    [[nodiscard]] double minimo(const BandaEnlazada& banda, qsizetype fila, double altoDeCuerpo) const;
    [[nodiscard]] Contexto contexto(qsizetype fila) const { return {fila, m_numeros.pagina, m_numeros.paginas}; }

    const InformeEnlazado& m_informe;
    const MedidorBandas& m_medidor;
    Recorrido m_recorrido;
    Contexto m_numeros;
};

} // namespace kestrane::report
