#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

/// Reading one literal at a place in the text. The lexer and the extractor of shapes both read through these, so that they find
/// the same literals.
namespace kestrane::jet {

/// A number: digits with an optional fraction and an exponent that counts only when a digit follows it.
struct NumeroLeido
{
    const char16_t* fin = nullptr; ///< behind its last character
    double valor = 0;
    bool entero = false; ///< whole, written without point or exponent, within 32 bits
    bool valido = false; ///< false when no double is that large
};
[[nodiscard]] NumeroLeido leeNumero(const char16_t* desde, const char16_t* fin);

/// A text between apostrophes.
struct TextoLeido
{
    const char16_t* fin = nullptr; ///< behind the closing apostrophe, nullptr when there is none
    QStringView contenido;         ///< between the apostrophes, as written
    bool comillasDobladas = false;
};
[[nodiscard]] TextoLeido leeTexto(const char16_t* desde, const char16_t* fin);
/// What a text says: each apostrophe that stands twice between its apostrophes is one.
[[nodiscard]] QString sinComillasDobladas(QStringView contenido);

/// "#mm/dd/yyyy#" or "#mm/dd/yyyy hh:mm[:ss]#", blanks tolerated.
struct FechaLeida
{
    const char16_t* fin = nullptr; ///< behind the closing mark, nullptr when there is none
    Fecha valor;
    bool valida = false;
};
[[nodiscard]] FechaLeida leeFecha(const char16_t* desde, const char16_t* fin);

} // namespace kestrane::jet
