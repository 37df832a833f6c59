#pragma once

#include "platform/report/informe_enlazado.h"

namespace kestrane::report {

/// The parts of a report in the order of reading. Page headers and footers stand outside of it, but for a sub-report's headings.
enum class Parte : quint8 { CabeceraInforme, Encabezados, AbreGrupos, CabeceraGrupo, Detalle, PieGrupo, PieInforme, Fin };

/// A band of the report, or the place where groups begin: small, so that a place can be kept for each page.
struct Paso
{
    Parte parte = Parte::CabeceraInforme;
    qint16 nivel = 0; ///< of the group
    int banda = 0;
    qsizetype fila = 0;

    friend bool operator==(const Paso&, const Paso&) = default;
};

/// Walks the bands of a report one by one.
class Recorrido
{
public:
    explicit Recorrido(const InformeEnlazado& informe) : m_informe{informe} {}

    [[nodiscard]] Paso primero() const;
    void avanza(Paso& paso) const;
    /// The section in which the step stands; none at AbreGrupos and Fin.
    [[nodiscard]] const SeccionEnlazada* seccion(const Paso& paso) const;
    [[nodiscard]] const BandaEnlazada& banda(const Paso& paso) const { return (*seccion(paso))[static_cast<size_t>(paso.banda)]; }
    /// The outermost level of the groups that begin at the row; one more than there are when none does.
    [[nodiscard]] int primerNivelQueEmpieza(qsizetype fila) const
    {
        return m_informe.niveles() - m_informe.filas().gruposQueEmpiezan(fila) + 1;
    }
    /// Whether a group that begins at the row, not at the first one, wants a page of its own.
    [[nodiscard]] bool empiezaPagina(qsizetype fila) const;
    /// How many levels of groups, from the outermost, go on from before the step.
    [[nodiscard]] int nivelesAbiertos(const Paso& paso) const;

private:
    void aLaSiguienteParte(Paso& paso) const;
    void trasCabecera(Paso& paso) const;
    void trasDetalle(Paso& paso) const;
    void trasPieGrupo(Paso& paso) const;
    void cierra(Paso& paso, int nivel) const;
    [[nodiscard]] bool esUltima(qsizetype fila) const { return fila + 1 >= m_informe.filas().filas(); }
    void normaliza(Paso& paso) const;

    const InformeEnlazado& m_informe;
};

} // namespace kestrane::report
