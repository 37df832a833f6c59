#pragma once

#include "platform/controls/tile_panel.h"
#include "run_context/contexto_ejecucion.h"

#include <QLabel>

namespace kestrane {

/// The controls PanelTiendas and lblInfoTienda of a dialog: the stores of the server, and the one that reports are limited to.
class EleccionDeTienda final : public QWidget
{
    Q_OBJECT

public:
    /// The context outlives it.
    EleccionDeTienda(ContextoEjecucion& contexto, QWidget* padre);

    /// Configures the panel by the colours of two frames, gives it all stores and shows it; away from the server nothing is shown.
    void CargarTiendas(const QWidget& marcoDeBotones, const QWidget& marcoDeFondo);

    [[nodiscard]] TilePanel& panel() { return *m_panel; }

    /// It yields to what stands beside it: a layout would insist on the height that it would like to have.
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

signals:
    /// A store was pressed and is chosen.
    void elegida();

private:
    void ensenaElegida();

    ContextoEjecucion& m_contexto;
    QLabel* m_info;
    TilePanel* m_panel;
};

} // namespace kestrane
