#pragma once

#include "platform/runtime/resultado.h"

#include <QList>
#include <QString>

/// Translation files in Qt Linguist's XML, as far as captions need it: contexts, sources, translations and their state.
namespace kestrane::ts {

struct Mensaje
{
    QString fuente;
    QString traduccion;
    QString estado = QStringLiteral("unfinished"); ///< "unfinished", "vanished", "obsolete", or empty when it is done

    friend bool operator==(const Mensaje&, const Mensaje&) = default;
};

struct Contexto
{
    QString nombre;
    QList<Mensaje> mensajes;

    friend bool operator==(const Contexto&, const Contexto&) = default;
};

struct Fichero
{
    QString idioma; ///< "en", "ca"; may be empty
    QList<Contexto> contextos;

    friend bool operator==(const Fichero&, const Fichero&) = default;

    /// Adds the sources that the context does not have yet, to be translated; those that it has stay as they are.
    void anade(const QString& contexto, const QStringList& fuentes);
};

/// The file of that name, without messages when there is none. The failure is a Spanish sentence.
[[nodiscard]] Resultado<Fichero, QString> lee(const QString& nombre);
/// Writes all of it or nothing; an empty text, or why not, as a Spanish sentence.
[[nodiscard]] QString escribe(const Fichero& fichero, const QString& nombre);

} // namespace kestrane::ts
