#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace kestrane {

/// Reads `argumentos` (the program's name first) with the options of `lector`, which may be written with one dash or two. Returns a
/// Spanish sentence on the first thing that makes no sense, "" when there is none: an option that `lector` does not have, one
/// without its value or with one that it does not take. An empty value is none, except for the options `admitenVacio`.
[[nodiscard]] QString leeLinea(QCommandLineParser& lector, const QStringList& argumentos, const QStringList& admitenVacio = {});

} // namespace kestrane
