#pragma once

#include "instalacion/demo/negocio.h"

#include <optional>
#include <vector>

namespace kestrane::demo {

/// The appointment book: visits that were booked, clients who did not come, cancelled appointments, and the weeks to come.
class Agenda
{
public:
    Agenda(Negocio& negocio, Azar azar);

    /// A store's day begins; `tienda` must outlive it.
    void abreDia(const QString& tienda, Fecha fecha);
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

    /// Time of an employee that is taken, in seconds since midnight.
    struct Hueco
    {
        int empleado = 0;
        int desde = 0;
        int hasta = 0;
    };

    void reserva(const Tienda& tienda, Fecha fecha, int citas);
    void escribe(const Cita& cita);
    [[nodiscard]] std::optional<Cita> nueva(int numeroTienda, const Turnantes& turno);
    [[nodiscard]] bool libre(int empleado, int desde, int minutos) const;
    [[nodiscard]] int hueco(int empleado, int limite, int minutos) const;

    Negocio& m_negocio;
    Azar m_azar;
    const QString* m_tienda = nullptr;
    Fecha m_fecha;
    std::vector<Hueco> m_ocupado; // of the day
    int m_citas = 0;
};

} // namespace kestrane::demo
