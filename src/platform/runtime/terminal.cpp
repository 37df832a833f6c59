#include "platform/runtime/terminal.h"

#include <QFileDevice>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace kestrane {

bool esTerminal(std::FILE* fichero)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(fichero)) != 0;
#else
    return isatty(fileno(fichero)) != 0;
#endif
}

bool esTerminal(const QIODevice& salida)
{
    const auto* const fichero = qobject_cast<const QFileDevice*>(&salida);
    if (fichero == nullptr || fichero->handle() < 0)
        return false;
#ifdef Q_OS_WIN
    return _isatty(fichero->handle()) != 0;
#else
    return isatty(fichero->handle()) != 0;
#endif
}

bool estaAbierto(std::FILE* fichero)
{
#ifdef Q_OS_WIN
    return _fileno(fichero) >= 0;
#else
    return fcntl(fileno(fichero), F_GETFD) != -1;
#endif
}

DestinoErrores destinoErrores(std::FILE* errores, std::FILE* salida)
{
    if (!esTerminal(errores))
        return DestinoErrores::Fichero;
    return esTerminal(salida) ? DestinoErrores::TerminalConResultados : DestinoErrores::Terminal;
}

void rehusaTuberiasRotas()
{
#ifndef Q_OS_WIN
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
#endif
}

} // namespace kestrane
