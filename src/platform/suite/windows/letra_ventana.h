#pragma once

#include <QWidget>

namespace kestrane {

/// The one family of letters of all windows, which is that of the reports.
inline constexpr QLatin1StringView FamiliaLetra{"DejaVu Sans"};

/// No setting goes beyond.
inline constexpr qint32 LetraMayor = 48;

/// What decides on the letters of a window: the operator's setting and the window's scale. Either may be given first and both
/// again; each control keeps how large its letters are against the window's.
class LetraVentana
{
public:
    explicit LetraVentana(QWidget& ventana) : m_ventana{ventana} {}

    /// The letters become `puntos` high, in the one family; bounded to what can be read and has room.
    void ponTamano(double puntos);
    /// The letters become `factor` times as high as without a scale.
    void ponEscala(double factor);

private:
    void mide();
    void aplica();
    [[nodiscard]] double puntosSinEscala() const;

    QWidget& m_ventana;
};

} // namespace kestrane
