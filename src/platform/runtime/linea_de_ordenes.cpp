#include "platform/runtime/linea_de_ordenes.h"

#include <algorithm>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QString sinGuiones(const QString& argumento)
{
    const auto* const primera = std::ranges::find_if(argumento, [](QChar signo) { return signo != u'-'; });
    return argumento.sliced(primera - argumento.begin());
}

/// The option as it was written.
QString escrita(const QString& nombre, const QStringList& argumentos)
{
    for (const QString& argumento : argumentos) {
        if (argumento.startsWith(u'-') && sinGuiones(argumento).section(u'=', 0, 0) == nombre)
            return argumento.section(u'=', 0, 0);
    }
    return u"--"_s + nombre;
}

QString faltaValor(const QString& opcion)
{
    return u"A %1 le falta su valor."_s.arg(opcion);
}

/// The parser names the option between apostrophes, in a sentence that is not Spanish.
QString faltaOSobraValor(const QString& error, const QStringList& argumentos)
{
    const QString opcion = error.section(u'\'', 1, 1);
    const auto llevaValor = [&](const QString& argumento) { return argumento.startsWith(opcion + u'='); };
    return std::ranges::any_of(argumentos, llevaValor) ? u"%1 no lleva valor."_s.arg(opcion) : faltaValor(opcion);
}

} // namespace

QString leeLinea(QCommandLineParser& lector, const QStringList& argumentos, const QStringList& admitenVacio)
{
    lector.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool entendida = lector.parse(argumentos);
    if (const QStringList desconocidas = lector.unknownOptionNames(); !desconocidas.isEmpty())
        return u"Opción desconocida: %1."_s.arg(escrita(desconocidas.constFirst(), argumentos));
    if (!entendida)
        return faltaOSobraValor(lector.errorText(), argumentos);
    for (const QString& nombre : lector.optionNames()) {
        if (!admitenVacio.contains(nombre) && lector.values(nombre).contains(QString{}))
            return faltaValor(escrita(nombre, argumentos));
    }
    return {};
}

} // namespace kestrane
