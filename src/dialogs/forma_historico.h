#pragma once

#include "dialogs/eleccion_de_periodo.h"
#include "dialogs/eleccion_de_tienda.h"
#include "dialogs/forma_filtro.h"

namespace kestrane {

/// What the two dialogs of the histories share: the period, the boxes "Completo" and "Formato Ticket", and the store.
class FormaHistorico : public FormaFiltro
{
    Q_OBJECT

protected:
    FormaHistorico(const QString& objeto, const QString& titulo, const ServiciosDialogo& servicios);

    /// From here on the boxes set what `decision`, which outlives their presses, makes of them.
    void sirve(DecisionDeFiltro& decision);
    /// The first steps of the load, those of appearance up to the painting.
    void viste();
    /// The box "Completo" is there with the invoice module alone.
    void ensenaCompleto();

    [[nodiscard]] QFrame& fondo() { return *m_fondo; }
    [[nodiscard]] EleccionDePeriodo& periodo() { return *m_periodo; }
    [[nodiscard]] EleccionDeTienda& tienda() { return *m_tienda; }
    /// The two boxes side by side.
    [[nodiscard]] QLayout* casillas();

private:
    QFrame* m_fondo;
    EleccionDePeriodo* m_periodo;
    QCheckBox* m_completo;
    QCheckBox* m_formatoTicket;
    EleccionDeTienda* m_tienda;
};

} // namespace kestrane
