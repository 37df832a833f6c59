#pragma once

#include "apoyo/motor_anotado.h"
#include "listings/puesto_envuelto.h"

namespace kestrane::prueba {

/// A shop whose engine tells what it is asked.
///
/// During a report a statement that was asked twice before, in the very same text, is answered without the engine: of texts that
/// are known to the last blank nothing reaches it.
class TiendaEscuchada
{
public:
    /// What `accion` has the engine of the shop run in a report before which `conocidas` were asked.
    template<class Accion>
    [[nodiscard]] QStringList enviadas(const QStringList& conocidas, Accion accion)
    {
        const auto ambito = puesto.contexto.ConexionTienda.EmpiezaInforme();
        for (const QString& sentencia : conocidas) {
            lee(sentencia);
            lee(sentencia);
        }
        m_anotaciones.clear();
        accion(puesto.listados);
        return m_anotaciones.filter(QStringLiteral("TiendaKestrane: "));
    }

    /// What the engines were asked and given since the last call of `enviadas` began to count, or since the start.
    [[nodiscard]] const QStringList& anotaciones() const { return m_anotaciones; }
    void olvida() { m_anotaciones.clear(); }

    TiendaDePrueba tienda;

private:
    void lee(const QString& sentencia)
    {
        Recordset filas;
        filas.Open(sentencia, puesto.contexto.ConexionTienda);
        while (!filas.Eof())
            filas.MoveNext();
    }

    QStringList m_anotaciones;

public:
    PuestoEnvuelto puesto{tienda, anotaEn(m_anotaciones)};
};

} // namespace kestrane::prueba
