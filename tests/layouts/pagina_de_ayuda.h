#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace kestrane::prueba {

/// A heading of the help page and what is said below it, up to the next one.
struct Apartado
{
    int nivel = 0;
    QString ancla{};
    QString titulo{};
    QString texto{};
    QString capitulo{}; ///< anchor of the heading of level 2 above it, or its own
};

struct PaginaDeAyuda
{
    QString fallo; ///< why the page is no well-formed XML; empty when it is
    QString html;
    std::vector<Apartado> apartados;
    QStringList anclas;
    QStringList enlaces;
    QSet<QString> elementos;
    QSet<QString> atributos;
    QString estilos;
};

/// The help page of that file, read as XML.
[[nodiscard]] PaginaDeAyuda leeAyuda(const QString& fichero);

} // namespace kestrane::prueba
