#pragma once

#include <QFont>
#include <QTextLayout>

#include <utility>
#include <vector>

namespace kestrane::report {

/// Where the characters of a line of text stand, whichever way it is read. Places are parts of its width: 0 is its left end.
class FormaTexto
{
public:
    FormaTexto(const QString& texto, const QFont& letra);

    /// What the characters `desde` to before `hasta` take, from left to right: one stretch, or several where the reading turns
    /// among them.
    [[nodiscard]] std::vector<std::pair<double, double>> franjas(int desde, int hasta) const;
    /// The place between two characters that is nearest.
    [[nodiscard]] int caracterEn(double parte) const;

private:
    [[nodiscard]] double borde(int caracter, QTextLine::Edge cual) const;
    [[nodiscard]] double enPartes(double x) const;

    QTextLayout m_forma;
    double m_ancho = 0;
    bool m_haciaAtras = false; ///< some of it is read from right to left
};

} // namespace kestrane::report
