#include "platform/database/plan_sentencia.h"

#include "platform/database/sentencias_fila.h"

namespace kestrane::database {

PlanSentencia::PlanSentencia(jet::Traduccion traduccion, const jet::Tabla* tabla)
    : m_traduccion{std::move(traduccion)}
    , m_tabla{tabla}
    , m_indice{m_traduccion.columnas}
{
    for (const jet::Parametro& parametro : m_traduccion.parametros)
        m_parametros.push_back(parametro.tipo);
    if (!esConsulta())
        return;
    for (const jet::ColumnaResultado& columna : m_traduccion.columnas)
        m_resultado.push_back(columna.tipo);
    if (m_traduccion.conClave)
        m_resultado.push_back(m_parametros.back());
    if (tieneIdentidad())
        m_resultado.push_back(tipoDeIdentidad(*m_tabla));
}

int PlanSentencia::columnaIdentidad() const
{
    return tieneIdentidad() ? columnas() + (m_traduccion.conClave ? 1 : 0) : -1;
}

qsizetype PlanSentencia::bytes() const
{
    constexpr qsizetype PorColumna = 100;
    constexpr qsizetype PorPlan = 2000;
    return PorPlan + m_traduccion.sql.size() * 4 +
           PorColumna * static_cast<qsizetype>(m_traduccion.columnas.size() + m_traduccion.parametros.size());
}

std::unique_ptr<SentenciaMotor> PlanSentencia::prepara(MotorBase& motor) const
{
    return motor.prepara(m_traduccion.sql, m_parametros, m_resultado);
}

Cursor& PlanSentencia::toma(MotorBase& motor, qsizetype limite)
{
    if (m_libres.empty()) {
        m_cursores.push_back(std::make_unique<Cursor>(prepara(motor), static_cast<int>(m_resultado.size()), limite));
        m_libres.reserve(m_cursores.size());
        return *m_cursores.back();
    }
    Cursor& cursor = *m_libres.back();
    m_libres.pop_back();
    return cursor;
}

void PlanSentencia::devuelve(Cursor& cursor) noexcept
{
    cursor.suelta();
    m_libres.push_back(&cursor); // room was made when the cursor was
}

SentenciaMotor& PlanSentencia::ejecutable(MotorBase& motor)
{
    if (!m_ejecutable)
        m_ejecutable = prepara(motor);
    return *m_ejecutable;
}

} // namespace kestrane::database
