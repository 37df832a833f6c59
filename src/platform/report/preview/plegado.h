#pragma once

#include <QString>

#include <vector>

namespace kestrane::report {

/// A text without case and accents, and where each of its characters came from.
struct TextoPlegado
{
    QString texto;
    std::vector<int> origen; ///< for each character its place in the text as it was; one more at the end: that text's length
};

[[nodiscard]] TextoPlegado pliega(const QString& texto);

/// A stretch of a text: characters `desde` to before `hasta`.
struct Trecho
{
    int desde = 0;
    int hasta = 0;

    friend bool operator==(const Trecho&, const Trecho&) = default;
};

/// Where `buscado`, which is folded already, stands in `texto`: stretches that do not overlap. Nothing is found nowhere.
[[nodiscard]] std::vector<Trecho> encuentra(const QString& buscado, const QString& texto);
/// The same in a text that is folded already; stretches are of the text as it was.
[[nodiscard]] std::vector<Trecho> encuentra(const QString& buscado, const TextoPlegado& plegado);

} // namespace kestrane::report
