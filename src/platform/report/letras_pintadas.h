#pragma once

#include "platform/report/medida_estilo.h"

#include <QPainter>
#include <QRawFont>

#include <vector>

namespace kestrane::report {

/// The letters of a style on one device: their glyphs looked up once, their places from the widths that the page was composed with.
class LetrasPintadas
{
public:
    /// `porMilimetro` is how many of the painter's units a millimetre takes.
    LetrasPintadas(const Estilo& estilo, double porMilimetro);

    [[nodiscard]] const QColor& color() const { return m_color; }
    /// Adds a text to those that the next `pinta` paints, its base line beginning at `base` in the painter's units. False, and
    /// nothing added, when the text needs shaping.
    [[nodiscard]] bool anade(const QString& texto, QPointF base);
    [[nodiscard]] bool hayPendientes() const { return !m_glifos.empty(); }
    /// Paints what was added.
    void pinta(QPainter& pintor);
    /// Paints a text that needs shaping: right to left, joined letters, signs that the font does not have.
    void pintaFormado(QPainter& pintor, const QString& texto, QPointF base) const;

private:
    Estilo m_estilo;
    QColor m_color;
    MedidaEstilo m_medida;
    double m_porMilimetro;
    QRawFont m_cruda;
    std::array<quint32, LetrasSencillas> m_indices{}; ///< of the glyphs
    std::array<double, LetrasSencillas> m_avances{};
    std::vector<quint32> m_glifos;
    std::vector<QPointF> m_lugares;
};

} // namespace kestrane::report
