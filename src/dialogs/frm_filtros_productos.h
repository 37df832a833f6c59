#pragma once

#include "dialogs/forma_filtro.h"
#include "pipeline/filtros/decision_filtros_productos.h"
#include "platform/controls/tile_panel.h"

#include <QRadioButton>

#include <map>

namespace kestrane {

/// frmFiltrosProductos: first one of four ways to choose the products of a listing, then their order.
class FrmFiltrosProductos final : public FormaFiltro
{
    Q_OBJECT

public:
    explicit FrmFiltrosProductos(const ServiciosDialogo& servicios);

    void carga();

protected:
    /// The first time: with those under their minimum alone the first page is passed over.
    void showEvent(QShowEvent* evento) override;

private:
    /// A block of the first page.
    struct Bloque
    {
        QFrame* marco = nullptr;
        TilePanel* panel = nullptr; ///< null in the block of classes
        QPushButton* aceptar = nullptr;
    };

    void monta();
    [[nodiscard]] QFrame* filtros();
    [[nodiscard]] QFrame* ordenes();
    [[nodiscard]] QFrame* bloque(BloqueProductos cual, const QString& panel, const QString& aceptar);
    void llenaConPanel(BloqueProductos cual, const QString& objeto);
    void llenaConClases();

    void cargarPaneles();
    void cargarPanel(BloqueProductos cual, const ArrayPanel& elementos);
    void elegido(BloqueProductos cual);
    void desmarcaClases();
    void acepta(BloqueProductos cual);
    void mostrarPanelOrden();

    DecisionFiltrosProductos m_decision;
    ArrayPanel m_proveedores;
    ArrayPanel m_secciones;
    QFrame* m_frFiltros = nullptr;
    QFrame* m_frOrden = nullptr;
    std::map<BloqueProductos, Bloque> m_bloques;
    QList<QRadioButton*> m_clases;
    bool m_alFrente = false; ///< it has come to the front before
};

} // namespace kestrane
