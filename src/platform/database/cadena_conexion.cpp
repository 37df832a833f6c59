#include "platform/database/cadena_conexion.h"

#include "platform/runtime/error_ejecucion.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::database {

namespace {

bool esNombreSimple(const QString& nombre)
{
    const auto prohibido = [](QChar c) { return c < u' ' || QStringView{u"/\\:*?\"<>|{}"}.contains(c); };
    return !nombre.isEmpty() && nombre != u".." && nombre != u"." && std::none_of(nombre.begin(), nombre.end(), prohibido);
}

/// False for what it does not know; blanks alone are nothing.
bool leeParte(QStringView parte, DestinoConexion& destino)
{
    const qsizetype igual = parte.indexOf(u'=');
    if (igual < 0)
        return parte.trimmed().isEmpty();
    const QString clave = parte.first(igual).trimmed().toString().toLower();
    const QString valor = parte.sliced(igual + 1).trimmed().toString();
    if (clave == u"dsn")
        destino.dsn = valor;
    else if (clave == u"uid" || clave == u"user")
        destino.usuario = valor;
    else if (clave == u"pwd" || clave == u"password")
        destino.clave = valor;
    else
        return false;
    return true;
}

} // namespace

DestinoConexion leeCadena(const QString& cadena, const QString& usuario, const QString& clave)
{
    DestinoConexion destino;
    const auto partes = QStringView{cadena}.split(u';');
    const bool conocidas = std::all_of(partes.begin(), partes.end(), [&](QStringView parte) { return leeParte(parte, destino); });
    if (!conocidas || !esNombreSimple(destino.dsn))
        throw ErrorEjecucion(
            ErrorEjecucion::ConexionImposible,
            // Without what stands behind the name: it may be a password.
            u"La cadena de conexión \"%1\" no se entiende. Escríbala como \"dsn=NOMBRE\", con \";uid=USUARIO;pwd=CLAVE\" detrás si hacen falta."_s
                .arg(partes.size() > 1 ? partes.first().toString() + u";…"_s : cadena));
    if (!usuario.isEmpty())
        destino.usuario = usuario;
    if (!clave.isEmpty())
        destino.clave = clave;
    return destino;
}

} // namespace kestrane::database
