#pragma once

#include "apoyo/motor_anotado.h"
#include "cash/tienda_de_caja.h"
#include "listings/puesto_envuelto.h"

namespace kestrane::prueba {

/// The statements that a builder has the engine of a shop run, told from those that a test expected.
class SentenciasEnviadas
{
public:
    /// The context of `tienda` (flavour, period, store ..) is the one the builder works in.
    explicit SentenciasEnviadas(TiendaDeCaja& tienda) : m_puesto{tienda.tienda, anotaEn(m_anotaciones)}
    {
        ContextoEjecucion& contexto = m_puesto.contexto;
        contexto.TipoPrograma = tienda.contexto.TipoPrograma;
        contexto.FechaDesde = tienda.contexto.FechaDesde;
        contexto.FechaHasta = tienda.contexto.FechaHasta;
        contexto.TiendaSeleccionada = tienda.contexto.TiendaSeleccionada;
        contexto.MultiTienda = tienda.contexto.MultiTienda;
        contexto.CajaCompleta = tienda.contexto.CajaCompleta;
    }

    /// What reaches the shop although each of `conocidas` was asked twice before in the very same text: during a report such a
    /// statement is answered without the engine.
    QStringList ademasDe(const QStringList& conocidas, Constructor constructor)
    {
        const auto ambito = m_puesto.contexto.ConexionTienda.EmpiezaInforme();
        for (const QString& sentencia : conocidas + conocidas) {
            Recordset filas;
            filas.Open(sentencia, m_puesto.contexto.ConexionTienda);
        }
        return durante(constructor);
    }
    /// All that reaches the shop during a report.
    QStringList deUnInforme(Constructor constructor)
    {
        const auto ambito = m_puesto.contexto.ConexionTienda.EmpiezaInforme();
        return durante(constructor);
    }

private:
    QStringList durante(Constructor constructor)
    {
        m_anotaciones.clear();
        constructor(m_puesto.listados);
        return m_anotaciones.filter(QStringLiteral("TiendaKestrane: "));
    }

    QStringList m_anotaciones;
    PuestoEnvuelto m_puesto;
};

} // namespace kestrane::prueba
