#include "platform/report/export/fichero_provisional.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/fichero_destino.h"
#include "platform/runtime/motivo_sistema.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace kestrane::report {

using namespace Qt::StringLiterals;

std::filesystem::path comoRuta(const QString& nombre)
{
    return nombre.toStdU16String();
}

void noSePuedeEscribir(const QString& fichero, const QString& motivo)
{
    throw ErrorDeSalida{u"\"%1\": %2"_s.arg(fichero, motivo)};
}

CarpetaProvisional::CarpetaProvisional(const QString& fichero)
    : m_carpeta{QFileInfo{fichero}.absoluteDir().filePath(u".exportacion-XXXXXX"_s)}
{
    if (!m_carpeta.isValid())
        noSePuedeEscribir(fichero, motivoDeTexto(m_carpeta.errorString()));
}

void CarpetaProvisional::escribe(const QString& nombre, const QString& destino, const std::function<void(QFile&)>& escritura) const
{
    QFile fichero{ruta(nombre)};
    if (!fichero.open(QIODevice::WriteOnly))
        noSePuedeEscribir(destino, motivoDe(fichero));
    escritura(fichero);
    if (!fichero.flush()) {
        fichero.flush(); // a write that is cut short has no reason yet: that of the rest has
        noSePuedeEscribir(destino, motivoDe(fichero));
    }
    if (fsync(fichero.handle()) != 0)
        noSePuedeEscribir(destino, motivoDe(std::error_code{errno, std::generic_category()}));
}

void CarpetaProvisional::entrega(const QString& nombre, const QString& destino) const
{
    const QString lugar = destinoDeEscritura(destino);
    if (QFile::exists(lugar))
        QFile::setPermissions(ruta(nombre), QFile::permissions(lugar));
    std::error_code error;
    std::filesystem::rename(comoRuta(ruta(nombre)), comoRuta(lugar), error);
    if (error)
        noSePuedeEscribir(destino, motivoDe(error));
}

} // namespace kestrane::report
