#pragma once

#include "platform/report/layout/layout.h"
#include "platform/report/letras_sencillas.h"

#include <QFont>
#include <QStringView>

#include <array>

namespace kestrane::report {

inline constexpr double MilimetrosPorPunto = 25.4 / 72;

/// How large a font is made to be measured: far above any grid of pixels.
inline constexpr int CuerpoDeMedida = 1000;

/// The font of a style, `pixeles` high, free of the hints that fit it to a screen's pixels.
[[nodiscard]] QFont letraDe(const Estilo& estilo, int pixeles);

/// What the letters of a style measure in millimetres, the same for every device.
class MedidaEstilo
{
public:
    explicit MedidaEstilo(const Estilo& estilo);

    [[nodiscard]] double ascendente() const { return m_ascendente; }
    [[nodiscard]] double altoRenglon() const { return m_altoRenglon; }
    /// True when letters stand one behind the other and the font has them all.
    [[nodiscard]] bool sencillo(QStringView texto) const;
    /// Of a text without line breaks.
    [[nodiscard]] double ancho(QStringView texto) const;
    /// Of one character of a text that is `sencillo`.
    [[nodiscard]] double avance(QChar letra) const
    {
        const int lugar = letraSencilla(letra.unicode());
        return lugar < 0 ? 0 : static_cast<double>(m_avances[static_cast<size_t>(lugar)]);
    }

    /// For texts that need shaping: the font that they are measured with, and how many of its units a millimetre takes.
    [[nodiscard]] const QFont& letra() const { return m_letra; }
    [[nodiscard]] double unidadesPorMilimetro() const { return m_unidades; }

private:
    QFont m_letra;
    double m_unidades;
    double m_ascendente = 0;
    double m_altoRenglon = 0;
    std::array<float, LetrasSencillas> m_avances{}; ///< less than 0: not in the font
};

} // namespace kestrane::report
