#pragma once

#include "platform/controls/calendario.h"
#include "platform/runtime/reloj.h"

namespace kestrane {

/// The controls cld_Desde and cld_Hasta of a dialog, and beside them the periods that are asked for every day, which only set the
/// two dates.
class EleccionDePeriodo final : public QWidget
{
    Q_OBJECT

public:
    /// The clock outlives it.
    EleccionDePeriodo(const Reloj& reloj, QWidget* padre);

    /// Both on today.
    void carga();
    /// In a window lower (twips) than the usual one the calendars get a height of their own.
    void ajustaAlto(double altoVentana);

    [[nodiscard]] Fecha desde() const { return m_desde->fecha(); }
    [[nodiscard]] Fecha hasta() const { return m_hasta->fecha(); }

private:
    [[nodiscard]] QWidget* calendarios();
    [[nodiscard]] QWidget* periodosRapidos();

    const Reloj& m_reloj;
    Calendario* m_desde = nullptr;
    Calendario* m_hasta = nullptr;
};

} // namespace kestrane
