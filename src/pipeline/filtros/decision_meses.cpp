#include "pipeline/filtros/decision_meses.h"

#include "platform/runtime/conversiones.h"

namespace kestrane {

namespace {

constexpr int Diciembre = 12;

} // namespace

void DecisionMeses::carga()
{
    completa(false);
    m_anio = m_reloj.hoy().anio();
    m_mes = m_reloj.hoy().mes();
    sale();
    m_seVeMesSiguiente = m_seVeAnioSiguiente = true;
}

void DecisionMeses::pon(int mes, int anio)
{
    m_mes = mes;
    m_anio = anio;
}

void DecisionMeses::mesAnterior()
{
    m_mes = m_mes == 1 ? Diciembre : m_mes - 1;
    m_seVeMesSiguiente = true;
}

void DecisionMeses::mesSiguiente()
{
    m_mes = m_mes == Diciembre ? 1 : m_mes + 1;
    if (m_mes == m_reloj.hoy().mes()) // in whatever year
        m_seVeMesSiguiente = false;
}

void DecisionMeses::anioAnterior()
{
    --m_anio;
    m_seVeAnioSiguiente = true;
}

void DecisionMeses::anioSiguiente()
{
    ++m_anio;
    if (m_anio == m_reloj.hoy().anio())
        m_seVeAnioSiguiente = false;
}

void DecisionMeses::acepta()
{
    contexto().filtros.mes = aEntero16(m_mes);
    contexto().filtros.anio = aEntero16(m_anio);
    contexto().FiltroAceptado = true;
}

QString DecisionMeses::nombreDelMes() const
{
    return contexto().ConexionTienda.entorno().regional().meses.at(static_cast<size_t>(m_mes) - 1);
}

} // namespace kestrane
