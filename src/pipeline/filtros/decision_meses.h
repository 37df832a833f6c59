#pragma once

#include "pipeline/filtros/decision_de_filtro.h"
#include "platform/runtime/reloj.h"

namespace kestrane {

/// What frmMeses sets: a month and a year, each with a button back and one forward, and whether the cash is complete.
///
/// The buttons forward hide when they reach the month or the year of today, and come back with the next step back. Nothing else
/// bounds the choice: both stand there at the load, so that one press reaches what is still to come. The year never follows when
/// the month goes round.
class DecisionMeses final : public DecisionDeFiltro
{
public:
    /// Both outlive the object. The names of the months are those of the context's regional settings.
    DecisionMeses(ContextoEjecucion& contexto, const Reloj& reloj) : DecisionDeFiltro{contexto}, m_reloj{reloj} {}

    /// The month and year of today, not accepted, not complete. The store chosen before stays.
    void carga();
    /// Both at once; `mes` is 1 to 12. The buttons stay as they are.
    void pon(int mes, int anio);
    void mesAnterior();
    void mesSiguiente();
    void anioAnterior();
    void anioSiguiente();
    /// Stores month and year and accepts the dialog; error 6 for a year past 32767.
    void acepta();

    [[nodiscard]] int mes() const { return m_mes; } ///< 1 to 12
    [[nodiscard]] int anio() const { return m_anio; }
    [[nodiscard]] QString nombreDelMes() const;
    [[nodiscard]] bool seVeMesSiguiente() const { return m_seVeMesSiguiente; }
    [[nodiscard]] bool seVeAnioSiguiente() const { return m_seVeAnioSiguiente; }

private:
    const Reloj& m_reloj;
    int m_mes = 1;
    int m_anio = 0;
    bool m_seVeMesSiguiente = true;
    bool m_seVeAnioSiguiente = true;
};

} // namespace kestrane
