#pragma once

#include "platform/report/layout/expresion.h"
#include "platform/report/layout/vocabulario.h"

#include <QByteArray>

#include <vector>

namespace kestrane::report {

struct AtributoXml
{
    QString nombre;
    QString valor;
};

/// An element of a layout file whose names and values are known to be those of the vocabulary.
struct ElementoXml
{
    QString nombre;
    const TipoElemento* tipo = nullptr;
    LugarLayout lugar;
    std::vector<AtributoXml> atributos = {};
    QString texto = {}; ///< blanks at both ends left out
    std::vector<ElementoXml> hijos = {};

    /// The value of an attribute, null when it is not written.
    [[nodiscard]] const QString* atributo(QStringView cual) const;
    /// The one child of that name, null when there is none. Error when there are two.
    [[nodiscard]] const ElementoXml* unico(QStringView cual) const;
};

/// Reads a file whose root is `raiz`. ErrorEjecucion LayoutIncorrecto with file, line, what was found and what was expected.
[[nodiscard]] ElementoXml leeArbol(const QByteArray& xml, const QString& fichero, QStringView raiz);

} // namespace kestrane::report
