#pragma once

#include "platform/report/medida_estilo.h"

#include <QString>

#include <vector>

namespace kestrane::report {

/// A line of text and how wide it is, in millimetres.
struct Renglon
{
    QString texto;
    double ancho = 0;

    friend bool operator==(const Renglon&, const Renglon&) = default;
};

/// Breaks a text into lines no wider than `ancho`: at line breaks, between words, and within a word that is wider than a line. Each
/// line has at least one character. An empty text has no line.
[[nodiscard]] std::vector<Renglon> parteEnRenglones(const MedidaEstilo& medida, const QString& texto, double ancho);

/// The text as one line, cut with "…" when it is wider than `ancho`. Line breaks and tabs count as blanks.
[[nodiscard]] Renglon cortaRenglon(const MedidaEstilo& medida, const QString& texto, double ancho);

} // namespace kestrane::report
