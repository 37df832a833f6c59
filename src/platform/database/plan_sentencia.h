#pragma once

#include "platform/database/cursor.h"
#include "platform/database/indice_columnas.h"
#include "platform/database/motor.h"
#include "platform/jet/traductor.h"

#include <memory>
#include <vector>

namespace kestrane::database {

/// All that statements of one shape share: the translation, how its result is found by name, and prepared statements that wait for
/// the next use. Several of a shape may be open at once.
class PlanSentencia
{
public:
    /// `tabla` is the one behind a translation that can be edited, else nullptr; it lives as long as the engine.
    PlanSentencia(jet::Traduccion traduccion, const jet::Tabla* tabla);
    PlanSentencia(const PlanSentencia&) = delete;
    PlanSentencia& operator=(const PlanSentencia&) = delete;

    [[nodiscard]] const jet::Traduccion& traduccion() const { return m_traduccion; }
    [[nodiscard]] bool esConsulta() const { return m_traduccion.clase == jet::Traduccion::Clase::Consulta; }
    [[nodiscard]] const jet::Tabla* tabla() const { return m_tabla; }
    [[nodiscard]] int columna(QStringView nombre) const { return m_indice.busca(nombre); }
    [[nodiscard]] int columnas() const { return static_cast<int>(m_traduccion.columnas.size()); }
    /// Position of the hidden key and of the hidden identity in the rows, -1 without one.
    [[nodiscard]] int columnaClave() const { return m_traduccion.conClave ? columnas() : -1; }
    [[nodiscard]] int columnaIdentidad() const;
    /// What the translation takes, roughly, for the cache's bound.
    [[nodiscard]] qsizetype bytes() const;

    /// A cursor that nobody uses, prepared when there is none left; `limite` in bytes. Goes back by `devuelve`.
    [[nodiscard]] Cursor& toma(MotorBase& motor, qsizetype limite);
    void devuelve(Cursor& cursor) noexcept;
    /// For statements without a result.
    [[nodiscard]] SentenciaMotor& ejecutable(MotorBase& motor);

    [[nodiscard]] bool enUso() const { return m_usos > 0; }
    void usa() { ++m_usos; }
    void deja() { --m_usos; }

private:
    [[nodiscard]] bool tieneIdentidad() const { return m_tabla && !m_tabla->identidad.isEmpty(); }
    [[nodiscard]] std::unique_ptr<SentenciaMotor> prepara(MotorBase& motor) const;

    jet::Traduccion m_traduccion;
    const jet::Tabla* m_tabla;
    IndiceColumnas m_indice;
    std::vector<jet::TipoColumna> m_parametros;
    std::vector<jet::TipoColumna> m_resultado;
    std::vector<std::unique_ptr<Cursor>> m_cursores; ///< all that were made
    std::vector<Cursor*> m_libres;
    std::unique_ptr<SentenciaMotor> m_ejecutable;
    int m_usos = 0;
};

} // namespace kestrane::database
