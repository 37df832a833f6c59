#include "platform/runtime/fichero_destino.h"

#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFileInfo>

#include <filesystem>

namespace kestrane {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr int MaximoEnlaces = 40; // the system's own

fs::path comoRuta(const QString& nombre)
{
    return nombre.toStdU16String();
}

} // namespace

QString sigueEnlaces(const QString& nombre)
{
    fs::path ruta = comoRuta(nombre);
    std::error_code error;
    for (int enlace = 0; enlace < MaximoEnlaces && fs::is_symlink(fs::symlink_status(ruta, error)); ++enlace) {
        const fs::path siguiente = fs::read_symlink(ruta, error);
        if (error)
            break;
        ruta = siguiente.is_absolute() ? siguiente : ruta.parent_path() / siguiente;
    }
    return QString::fromStdU16String(ruta.u16string());
}

QString estorboEn(const QString& fichero)
{
    std::error_code error;
    const fs::file_status estado = fs::status(comoRuta(fichero), error);
    if (estado.type() == fs::file_type::not_found) // whoever writes it hears of a folder that is missing
        return {};
    if (error)
        return motivoDe(error);
    if (estado.type() == fs::file_type::directory)
        return u"es una carpeta"_s;
    if (estado.type() != fs::file_type::regular)
        return u"no es un fichero"_s;
    return QFileInfo{fichero}.isWritable() ? QString{} : u"sin permiso"_s;
}

QString destinoDeEscritura(const QString& nombre)
{
    QString destino = sigueEnlaces(nombre);
    const QString estorbo = estorboEn(destino);
    if (!estorbo.isEmpty())
        throw ErrorDeSalida{u"\"%1\": %2"_s.arg(nombre, estorbo)};
    return destino;
}

} // namespace kestrane
