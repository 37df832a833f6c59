#pragma once

#include "platform/report/export/exportacion.h"
#include "platform/report/preview/estilo_vista.h"
#include "platform/report/preview/zoom.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>

namespace kestrane::report {

/// The preview's controls: panel, pages, zoom, search, print, export, lay out again.
class BarraVista final : public QToolBar
{
    Q_OBJECT

public:
    explicit BarraVista(QWidget* padre = nullptr);

    /// `actual` counts from 0, -1 for none; the number of pages reads "..." until it is final.
    void ponPagina(int actual, int paginas, bool completa);
    void ponZoom(Zoom zoom, double porcentaje);
    void ponPanel(bool visible) { m_panel->setChecked(visible); }
    void permiteImprimir(bool posible) { m_imprimir->setEnabled(posible); }
    /// The menu of formats, with the first of them marked.
    void abreExportar();
    /// The keyboard into the field with the page's number.
    void editaPagina();

signals:
    void panelPedido(bool visible);
    void primera();
    void anterior();
    void siguiente();
    void ultima();
    void paginaPedida(int pagina); ///< from 0
    void aleja();
    void acerca();
    void zoomPedido(kestrane::report::Zoom zoom);
    void buscar();
    void imprimir();
    void exportar(kestrane::report::FormatoExportacion formato);
    void actualizar();

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    QToolButton* anade(Icono cual, const QString& objeto, const QString& nombre);
    void anadeSalidas();
    void anadePaginas();
    void anadeZoom();
    void anadeTrabajos();
    [[nodiscard]] QMenu* menuZoom();
    [[nodiscard]] QMenu* menuExportar();
    void alEscribirPagina();
    void ponLetreros(bool visibles);

    QToolButton* m_panel;
    QToolButton* m_primera = nullptr;
    QToolButton* m_anterior = nullptr;
    QToolButton* m_siguiente = nullptr;
    QToolButton* m_ultima = nullptr;
    QLineEdit* m_pagina = nullptr;
    QLabel* m_total = nullptr;
    QToolButton* m_zoom = nullptr;
    QToolButton* m_ancho = nullptr;
    QToolButton* m_entera = nullptr;
    QToolButton* m_exportar = nullptr;
    QToolButton* m_imprimir = nullptr;
    QString m_numero; ///< of the current page, as it stands in the field
};

} // namespace kestrane::report
