#pragma once

#include "pipeline/forms/ventana_con_barra.h"
#include "pipeline/salida_de_report.h"

#include <QPointer>
#include <QTimer>

#include <functional>

namespace kestrane {

/// What beats time for frmEsperar.
class FuenteDeTics
{
public:
    virtual ~FuenteDeTics() = default;
    /// Calls `tic` from the event loop again and again until `para`; `ventana` is the one that waits.
    virtual void empieza(QWidget& ventana, const std::function<void()>& tic) = 0;
    virtual void para() = 0;
};

/// The timer tmr_barra, a child of the window: a tick every 50 milliseconds.
class TicsDeReloj final : public FuenteDeTics
{
public:
    void empieza(QWidget& ventana, const std::function<void()>& tic) override;
    void para() override;

private:
    QPointer<QTimer> m_temporizador; ///< the window's, and gone with it
};

/// The timed window: it closes itself at the hundredth tick.
class FrmEsperar final : public VentanaConBarra
{
    Q_OBJECT

public:
    /// Loads the window and starts the ticks. `tics` outlives it.
    FrmEsperar(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal, FuenteDeTics& tics);
    ~FrmEsperar() override;

protected:
    /// Nobody closes it but itself: Alt+F4 would cut the wait short.
    void closeEvent(QCloseEvent* evento) override;

private:
    void avanza();

    bool m_cumplida = false; ///< all ticks are done
    FuenteDeTics& m_tics;
};

/// frmEsperar, shown modally each time anew.
class EsperaEnVentana final : public Espera
{
public:
    /// All outlive the object; `principal` may be null.
    EsperaEnVentana(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, FuenteDeTics& tics, QWidget* principal = nullptr)
        : m_contexto{contexto}
        , m_aspecto{aspecto}
        , m_tics{tics}
        , m_principal{principal}
    {
    }
    void Muestra() override;

private:
    const ContextoEjecucion& m_contexto;
    AspectoVentanas& m_aspecto;
    FuenteDeTics& m_tics;
    QWidget* m_principal;
};

} // namespace kestrane
