#pragma once

#include "platform/suite/apariencia.h"

#include <QPoint>
#include <QString>
#include <QWidget>

/// What a window needs to know and have done while it loads.
namespace kestrane {

/// Screen points that so many twips take: 1440 to the inch, 96 points to the inch.
constexpr double puntosDeTwips(double twips)
{
    return twips * 96 / 1440;
}

constexpr double twipsDePuntos(double puntos)
{
    return puntos * 1440 / 96;
}

/// The suite's objects for the looks of windows, under the names of their operations, and the place of the main form. Whoever
/// provides them captures the connection, the run's theme and font setting, and the terminal's employee. Colours are decimal texts
/// (color_decimal.h); an empty one lets a window keep its own.
class AspectoVentanas
{
public:
    virtual ~AspectoVentanas() = default;
    /// The left and top edges of the main form and of its two outer frames, added: screen points.
    [[nodiscard]] virtual QPoint esquinaPrincipal() const = 0;
    /// TraductorCaptions: puts the captions into the operator's language.
    virtual void TraducirForm(QWidget& ventana) = 0;
    /// PaletaColores: paints the controls in the theme of now.
    virtual void PintarForm(QWidget& ventana) = 0;
    /// The theme's back colour for small windows.
    [[nodiscard]] virtual QString DarColorFondo() = 0;
    /// The theme's back colour for what is marked: texts stay readable on it.
    [[nodiscard]] virtual QString DarColorResalte() = 0;
    /// The colour of the button cmdListados.
    [[nodiscard]] virtual QString DarColorBoton() = 0;
    /// The four colours that panels of employees and sections take in turn.
    [[nodiscard]] virtual QString DarColorPredefinido1() = 0;
    [[nodiscard]] virtual QString DarColorPredefinido2() = 0;
    [[nodiscard]] virtual QString DarColorPredefinido3() = 0;
    [[nodiscard]] virtual QString DarColorPredefinido4() = 0;
    /// AplicadorLetra: sets the fonts of the window by the run's font setting.
    virtual void AplicarLetra(QWidget& ventana) = 0;
    /// EscaladorVentanas: scales the window and its controls from a source to a target size, both twips.
    virtual void EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) = 0;
    /// PermisosEmpleado: hides and disables what the employee has no right to use.
    virtual void AplicarPermisos(QWidget& ventana) = 0;
};

/// Where the small windows that come up during a report are placed: screen points.
[[nodiscard]] inline QPoint esquinaDeVentanaPequena(const AspectoVentanas& aspecto)
{
    constexpr double Izquierda = 50; // twips, as the next
    constexpr double Arriba = 330;
    return aspecto.esquinaPrincipal() + QPointF{puntosDeTwips(Izquierda), puntosDeTwips(Arriba)}.toPoint();
}

/// As long as no suite dresses the windows: the captions as they are written, the system's colours, no scaling, all rights.
class AspectoNeutro : public AspectoVentanas
{
public:
    /// Windows are placed over `principal`, which outlives the object, or in the screen's corner when there is none.
    explicit AspectoNeutro(const QWidget* principal = nullptr) : m_principal{principal} {}

    [[nodiscard]] QPoint esquinaPrincipal() const override
    {
        return m_principal ? m_principal->frameGeometry().topLeft() : QPoint{};
    }
    void TraducirForm(QWidget&) override {}
    void PintarForm(QWidget&) override {}
    [[nodiscard]] QString DarColorFondo() override { return {}; }
    [[nodiscard]] QString DarColorResalte() override { return {}; }
    [[nodiscard]] QString DarColorBoton() override { return {}; }
    [[nodiscard]] QString DarColorPredefinido1() override { return {}; }
    [[nodiscard]] QString DarColorPredefinido2() override { return {}; }
    [[nodiscard]] QString DarColorPredefinido3() override { return {}; }
    [[nodiscard]] QString DarColorPredefinido4() override { return {}; }
    void AplicarLetra(QWidget&) override {}
    void EscalarForm(QWidget&, TamanoVentana, TamanoVentana) override {}
    void AplicarPermisos(QWidget&) override {}

private:
    const QWidget* m_principal;
};

} // namespace kestrane
