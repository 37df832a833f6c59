#pragma once

#include "platform/suite/permisos_empleado.h"
#include "platform/suite/windows/aplicador_letra.h"
#include "platform/suite/windows/aspecto_ventanas.h"
#include "platform/suite/windows/escalador_ventanas.h"
#include "platform/suite/windows/paleta_colores.h"
#include "platform/suite/windows/traductor_captions.h"
#include "run_context/contexto_ejecucion.h"

#include <QPointer>

#include <vector>

namespace kestrane {

/// Dresses windows by the suite's objects. Theme, font setting and employee are those that the run context has at each call.
class AspectoDeSuite final : public AspectoVentanas
{
public:
    /// All three outlive the object. Rights are read through the context's connection to the shop.
    AspectoDeSuite(ContextoEjecucion& contexto, PermisosEmpleado& permisos, const TraductorCaptions& traductor);

    /// The main form and the two frames on it over whose corner windows are placed. Each may be missing, and may go before this
    /// object does.
    void ponPrincipal(QWidget* principal, QWidget* exterior, QWidget* interior);

    [[nodiscard]] QPoint esquinaPrincipal() const override;
    void TraducirForm(QWidget& ventana) override;
    void PintarForm(QWidget& ventana) override;
    [[nodiscard]] QString DarColorFondo() override;
    [[nodiscard]] QString DarColorResalte() override;
    [[nodiscard]] QString DarColorBoton() override;
    [[nodiscard]] QString DarColorPredefinido1() override;
    [[nodiscard]] QString DarColorPredefinido2() override;
    [[nodiscard]] QString DarColorPredefinido3() override;
    [[nodiscard]] QString DarColorPredefinido4() override;
    void AplicarLetra(QWidget& ventana) override;
    void EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) override;
    void AplicarPermisos(QWidget& ventana) override;

private:
    ContextoEjecucion& m_contexto;
    PermisosEmpleado& m_permisos;
    const TraductorCaptions& m_traductor;
    PaletaColores m_paleta;
    AplicadorLetra m_letra;
    EscaladorVentanas m_escalador;
    std::vector<QPointer<QWidget>> m_formas; ///< the main form, then its frames from the outside in
};

} // namespace kestrane
