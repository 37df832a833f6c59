#pragma once

#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/decision_productos_vendidos.h"
#include "platform/controls/tile_panel.h"

namespace kestrane {

/// frmProductosVendidos: an employee, then a supplier, each on a page of its own on which a press is the step to the next.
class FrmProductosVendidos final : public FormaFiltro
{
    Q_OBJECT

public:
    explicit FrmProductosVendidos(const ServiciosDialogo& servicios);

    void carga();

private:
    /// A page with a panel of buttons, and below it what leads away from it.
    struct Pagina
    {
        QFrame* marco = nullptr;
        TilePanel* panel = nullptr;
    };

    void monta();
    [[nodiscard]] Pagina pagina(const QString& objeto, const QString& leyenda, const QString& panel);
    void llena(const Pagina& pagina, const ArrayPanel& elementos);
    void ensena(const Pagina& una, const Pagina& otra);
    void acepta();

    DecisionProductosVendidos m_decision;
    QFrame* m_fondo;
    Pagina m_empleados;
    Pagina m_proveedores;
    QPushButton* m_aceptar = nullptr;
};

} // namespace kestrane
