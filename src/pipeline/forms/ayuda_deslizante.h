#pragma once

#include "platform/controls/help_page_viewer.h"

#include <QPointer>
#include <QTimer>

namespace kestrane {

/// The help panel of the menu, which slides in from the lower edge and out again: the control Open1 and the timer tmrAyuda.
class AyudaDeslizante final : public QObject
{
    Q_OBJECT

public:
    /// Both belong to `ventana` (the form): the panel, and what it rises to (`tope`: its lower edge).
    AyudaDeslizante(QWidget* ventana, const QWidget* tope);

    /// Puts the panel just out of sight, at the right.
    void ColocarAyuda();
    /// Shows the page at `ruta`, sliding in from the lower edge, each time anew.
    void abre(const QString& ruta);
    /// Slides out.
    void cierra();
    /// The form has another size: what stands still stands there anew.
    void acomoda();

    /// Whether the panel stands in the form, or is on its way there.
    [[nodiscard]] bool dentro() const { return m_haciaDentro; }

private:
    void avanza();
    void ponArriba(double arriba);
    void ponAlto();
    [[nodiscard]] double destino() const;
    [[nodiscard]] double altoDeVentana() const;
    [[nodiscard]] double topeDentro() const;

    QWidget* m_ventana;
    const QWidget* m_tope;
    HelpPageViewer* m_panel;
    QTimer* m_temporizador;
    bool m_haciaDentro = false;
    QPointer<QWidget> m_focoAntes;
    double m_arriba = 0; ///< of the panel: twips, so that steps of less than a point add up
};

} // namespace kestrane
