#include "platform/report/export/fichero_provisional.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

std::filesystem::path comoRuta(const QString& nombre)
{
    return nombre.toStdU16String();
}

} // namespace

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

void CarpetaProvisional::entrega(const QString& nombre, const QString& destino) const
{
    std::error_code error;
    std::filesystem::rename(comoRuta(ruta(nombre)), comoRuta(destino), error);
    if (error)
        noSePuedeEscribir(destino, motivoDe(error));
}

} // namespace kestrane::report
