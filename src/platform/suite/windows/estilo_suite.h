#pragma once

#include <QProxyStyle>

namespace kestrane {

/// How the controls of all windows are painted: flat, rounded, with a ring around the one that has the keyboard. Every colour comes
/// from the control's own palette, so that a window may give one control a colour and another theme leaves nothing behind. Beyond
/// the usual meanings: Dark is a border that tells what a control is, Mid one that adorns, Link the focus ring, LinkVisited the
/// accent and BrightText the text on it.
class EstiloSuite final : public QProxyStyle
{
    Q_OBJECT

public:
    EstiloSuite();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                       const QWidget* control) const override;
    void drawControl(ControlElement elemento, const QStyleOption* opcion, QPainter* pintor, const QWidget* control) const override;
    void drawComplexControl(ComplexControl complejo, const QStyleOptionComplex* opcion, QPainter* pintor,
                            const QWidget* control) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl complejo, const QStyleOptionComplex* opcion, SubControl parte,
                                       const QWidget* control) const override;
    [[nodiscard]] QRect subElementRect(SubElement parte, const QStyleOption* opcion, const QWidget* control) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType tipo, const QStyleOption* opcion, const QSize& contenido,
                                         const QWidget* control) const override;
    [[nodiscard]] int pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* control) const override;
};

/// Gives the program this style, once.
void ponEstiloSuite();

} // namespace kestrane
