#pragma once

#include "platform/suite/apariencia.h"

#include <QColor>
#include <QPoint>
#include <QWidget>

/// What a window needs to know and have done while it loads.
namespace kestrane {

/// Screen points that so many twips take: 1440 to the inch, 96 points to the inch.
constexpr double puntosDeTwips(double twips)
{
    return twips * 96 / 1440;
}

/// The suite's objects for the looks of windows, under the names of their operations, and the place of the main form. Whoever
/// provides them captures the connection and the theme.
class AspectoVentanas
{
public:
    virtual ~AspectoVentanas() = default;
    /// The left and top edges of the main form and of its two outer frames, added: screen points.
    [[nodiscard]] virtual QPoint esquinaPrincipal() const = 0;
    /// TraductorCaptions: puts the captions into the operator's language.
    virtual void TraducirForm(QWidget& ventana) = 0;
    /// PaletaColores: paints the controls in the theme.
    virtual void PintarForm(QWidget& ventana) = 0;
    /// PaletaColores: the theme's back colour for small windows. Not valid: the window keeps its own.
    [[nodiscard]] virtual QColor DarColorFondo() = 0;
    /// EscaladorVentanas: scales the controls from a source to a target size, both twips.
    virtual void EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) = 0;
};

/// As long as no suite dresses the windows: the captions as they are written, the system's colours, no scaling.
class AspectoNeutro final : public AspectoVentanas
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
    [[nodiscard]] QColor DarColorFondo() override { return {}; }
    void EscalarForm(QWidget&, TamanoVentana, TamanoVentana) override {}

private:
    const QWidget* m_principal;
};

} // namespace kestrane
