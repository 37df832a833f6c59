#include "platform/runtime/ruta.h"

#include <QDir>

namespace kestrane {

namespace {

/// Qt opens paths with "/" on every system.
QString conBarras(QString ruta)
{
    return ruta.replace(u'\\', u'/');
}

} // namespace

QString rutaDeMaquina(const QString& ruta, const QString& carpeta)
{
    if (ruta.isEmpty() || carpeta.isEmpty())
        return conBarras(ruta);
    return QDir{conBarras(carpeta)}.filePath(conBarras(ruta));
}

} // namespace kestrane
