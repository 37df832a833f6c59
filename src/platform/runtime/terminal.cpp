#include "platform/runtime/terminal.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <io.h>
#else
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

} // namespace kestrane
