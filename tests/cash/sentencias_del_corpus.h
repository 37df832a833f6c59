#pragma once

#include "corpus/corpus.h"

#include <QStringList>

#include <stdexcept>

namespace kestrane::prueba {

/// The text of the corpus statement of that name.
inline QString textoDelCorpus(const std::string& area, const QString& nombre)
{
    for (const SentenciaCorpus& sentencia : sentenciasDe(area)) {
        if (sentencia.nombre == nombre)
            return sentencia.texto;
    }
    throw std::runtime_error{"the corpus has no " + area + ": " + nombre.toStdString()};
}

/// The texts on the shop whose name ends in `variante`.
inline QStringList textosDelCorpus(const std::string& area, const QString& variante)
{
    QStringList textos;
    for (const SentenciaCorpus& sentencia : sentenciasDe(area)) {
        if (sentencia.base == SentenciaCorpus::Base::Tienda && sentencia.nombre.endsWith(variante))
            textos += sentencia.texto;
    }
    return textos;
}

} // namespace kestrane::prueba
