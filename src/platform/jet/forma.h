#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

#include <span>
#include <vector>

namespace kestrane::jet {

/// A literal of a statement as it stands in the text. Signs are not part of a number.
struct Literal
{
    enum class Clase : quint8 { Entero, Doble, Texto, Fecha };

    Clase clase = Clase::Entero;
    double numero = 0; ///< of Entero (whole, within 32 bits) and Doble
    kestrane::Fecha fecha;
    QStringView texto; ///< of Texto, doubled quotes undone; points into the statement or into the extractor's own buffer
};

/// Strips the literals of a statement in one pass: two statements that differ only in their literals have one shape.
///
/// The shape is the text with each literal replaced by one mark that tells its class, so statements of one shape have one parse and
/// one translation. Literals come in the order of the text: the same number and order as the lexer finds them. The object keeps its
/// buffers between calls: extracting allocates nothing once they have grown.
class ExtractorDeForma
{
public:
    /// False when the text has no shape (a literal without its end, an invalid date or number): the lexer then tells why.
    [[nodiscard]] bool extrae(QStringView sentencia);

    /// Of the last successful call; hold until the next one (and `literales` as long as the statement's text).
    [[nodiscard]] QStringView forma() const { return m_forma; }
    [[nodiscard]] size_t hash() const { return m_hash; }
    [[nodiscard]] std::span<const Literal> literales() const { return m_literales; }

private:
    QString m_forma;
    size_t m_hash = 0;
    std::vector<Literal> m_literales;
    std::vector<QString> m_textosConComillas;
};

} // namespace kestrane::jet
