#pragma once

#include "pipeline/forms/ventana_con_barra.h"
#include "pipeline/pantalla.h"

#include <chrono>
#include <functional>
#include <memory>

namespace kestrane {

/// A clock that only goes forward, whatever its zero.
using Cronometro = std::function<std::chrono::milliseconds()>;

/// The machine's.
[[nodiscard]] Cronometro cronometroDeMaquina();

/// The progress window, loaded. Its bar is a sign of life: it goes round as often as the builder has records.
class FrmParar final : public VentanaConBarra
{
    Q_OBJECT

public:
    FrmParar(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal, Cronometro cronometro);

    /// Shows it and comes back when it stands on the screen: the builder that follows serves no events.
    void muestraExpuesta();
    /// The bar's value changes at each call; painting costs far more, so that it happens at most every 40 ms.
    void IncrementaBarra();

private:
    void cambiaSinPintar(int valor);

    Cronometro m_cronometro;
    std::chrono::milliseconds m_pintada{};
};

/// frmParar as builders and the menu know it: one window, whoever shows it.
class ProgresoEnVentana final : public Progreso
{
public:
    /// All outlive the object; `principal` may be null.
    ProgresoEnVentana(const ContextoEjecucion& contexto, AspectoVentanas& aspecto, QWidget* principal = nullptr,
                      Cronometro cronometro = cronometroDeMaquina());

    void Muestra() override;
    void IncrementaBarra() override;
    void cerrar() override { m_ventana.reset(); }

    /// Null while it is not loaded.
    [[nodiscard]] FrmParar* ventana() const { return m_ventana.get(); }

private:
    const ContextoEjecucion& m_contexto;
    AspectoVentanas& m_aspecto;
    QWidget* m_principal;
    Cronometro m_cronometro;
    std::unique_ptr<FrmParar> m_ventana;
};

} // namespace kestrane
