#pragma once

#include <QString>

#include <span>

/// The words of layout files as data: the reader checks a file against these tables, and layouts/informe.xsd says the same.
namespace kestrane::report {

/// A kind of attribute value.
struct ClaseValor
{
    QStringView nombre;
    QStringView patron; ///< regular expression over the whole value, in what XML Schema and PCRE have in common; empty: anything
    QStringView ayuda;  ///< what is expected, for an error: "se esperaba " and this
};

enum class Presencia { Optativo, Obligatorio };

struct AtributoVocabulario
{
    QStringView nombre;
    const ClaseValor* clase = nullptr;
    Presencia presencia = Presencia::Optativo;
};

/// An element that may stand within another. The same name may be of another kind elsewhere (`bandas`).
struct HijoVocabulario
{
    QStringView nombre;
    QStringView tipo;
};

enum class TextoPropio { No, Si };

/// A kind of element.
struct TipoElemento
{
    QStringView tipo;
    std::span<const AtributoVocabulario> atributos;
    std::span<const HijoVocabulario> hijos;
    TextoPropio texto = TextoPropio::No; ///< whether it holds text of its own
};

[[nodiscard]] std::span<const ClaseValor> clasesDeValor();
[[nodiscard]] std::span<const TipoElemento> tiposDeElemento();
/// The elements with which a file may begin.
[[nodiscard]] std::span<const HijoVocabulario> raices();

/// The kind called `tipo`, which exists.
[[nodiscard]] const TipoElemento& tipoDeElemento(QStringView tipo);
/// Whether `valor` is one of `clase`.
[[nodiscard]] bool vale(const ClaseValor& clase, const QString& valor);

} // namespace kestrane::report
