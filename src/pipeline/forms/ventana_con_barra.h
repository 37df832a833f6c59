#pragma once

#include "platform/suite/windows/aspecto_ventanas.h"
#include "run_context/contexto_ejecucion.h"

#include <QDialog>
#include <QProgressBar>

namespace kestrane {

/// What the two small windows of the output road share: the label "Generando Reporte", the bar ProgressBar1 from 0 to 100, and the
/// way in which they load. Made anew each time, since loading scales it.
class VentanaConBarra : public QDialog
{
    Q_OBJECT

public:
    /// Loads the window: places it over the main form, translates, paints and scales it to the sizes of the run context.
    VentanaConBarra(const QString& nombre, const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal);

    [[nodiscard]] QProgressBar& barra() { return *m_barra; }

protected:
    /// A label below the bar that nobody sees.
    void anadeRotuloOculto(const QString& texto);
    /// Enter and Escape do nothing: there is nothing to choose here.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void viste(AspectoVentanas& aspecto);
    void escala(const ContextoEjecucion& contexto, AspectoVentanas& aspecto);

    QProgressBar* m_barra;
};

} // namespace kestrane
