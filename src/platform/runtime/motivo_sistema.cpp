#include "platform/runtime/motivo_sistema.h"

#include <QLatin1StringView>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

struct Motivo
{
    std::errc codigo;
    QStringView palabras;
};

constexpr Motivo Motivos[] = {
    {std::errc::no_such_file_or_directory, u"no existe"},
    {std::errc::is_a_directory, u"es una carpeta"},
    {std::errc::not_a_directory, u"una parte de la ruta no es una carpeta"},
    {std::errc::permission_denied, u"sin permiso"},
    {std::errc::operation_not_permitted, u"sin permiso"},
    {std::errc::no_space_on_device, u"no queda sitio en el disco"},
    {std::errc::read_only_file_system, u"el disco es de solo lectura"},
    {std::errc::filename_too_long, u"el nombre es demasiado largo"},
    {std::errc::file_exists, u"ya existe"},
    {std::errc::directory_not_empty, u"es una carpeta con contenido"},
    {std::errc::file_too_large, u"el fichero sería demasiado grande"},
    {std::errc::device_or_resource_busy, u"está en uso"},
    {std::errc::text_file_busy, u"está en uso"},
    {std::errc::broken_pipe, u"nadie lee la salida"},
    {std::errc::bad_file_descriptor, u"está cerrado"},
    {std::errc::io_error, u"el disco falla"},
    {std::errc::too_many_files_open, u"hay demasiados ficheros abiertos"},
    {std::errc::too_many_files_open_in_system, u"hay demasiados ficheros abiertos"},
    {std::errc::too_many_symbolic_link_levels, u"los enlaces de la ruta no acaban"},
    {std::errc::cross_device_link, u"está en otro disco"},
};

struct MotivoDeQt
{
    QLatin1StringView comienzo;
    QStringView palabras;
};

/// What Qt says in words of its own.
constexpr MotivoDeQt MotivosDeQt[] = {
    {"Filename refers to a directory"_L1, u"es una carpeta"},
    {"Existing file "_L1, u"sin permiso"},
    {"Unknown error"_L1, u"no se sabe por qué"},
};

} // namespace

QString motivoDe(const std::error_code& error)
{
    for (const Motivo& uno : Motivos) {
        if (error == uno.codigo)
            return uno.palabras.toString();
    }
    return u"el sistema dice \"%1\""_s.arg(QString::fromLocal8Bit(error.message()));
}

QString motivoDe(const QIODevice& dispositivo)
{
    return motivoDeTexto(dispositivo.errorString());
}

/// Qt keeps the system's text alone, in the machine's language: the code is the one that has this text.
QString motivoDeTexto(const QString& texto)
{
    for (const Motivo& uno : Motivos) {
        if (texto == qt_error_string(static_cast<int>(uno.codigo)))
            return uno.palabras.toString();
    }
    for (const MotivoDeQt& uno : MotivosDeQt) {
        if (texto.startsWith(uno.comienzo))
            return uno.palabras.toString();
    }
    return u"el sistema dice \"%1\""_s.arg(texto);
}

} // namespace kestrane
