#pragma once

#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// The appointment book: visits that were booked, clients who did not come, cancelled appointments, and the weeks to come.
class Agenda
{
public:
    Agenda(Negocio& negocio, Azar azar);

    /// A sale whose client may have booked it.
    void atendida(const Venta& venta);
    /// Those of the day who did not come, and what was cancelled.
    void cierraDia(const Turno& turno, int tickets);
    /// Appointments after today.
    void futuras(const Tienda& tienda);

private:
    struct Cita
    {
        int cliente = 0;
        int empleado = 0;
        int servicio = 0; // code, 0: only a text
        Fecha fecha;
        int segundos = 0; // since midnight
        bool anulada = false;
        const QString& tienda;
    };

    void escribe(const Cita& cita);
    [[nodiscard]] Cita nueva(int numeroTienda, const QString& tienda, Fecha fecha);

    Negocio& m_negocio;
    Azar m_azar;
};

} // namespace kestrane::demo
