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

void leeParte(QStringView parte, DestinoConexion& destino)
{
    const qsizetype igual = parte.indexOf(u'=');
    if (igual < 0)
        return;
    const QString clave = parte.first(igual).trimmed().toString().toLower();
    const QString valor = parte.sliced(igual + 1).trimmed().toString();
    if (clave == u"dsn")
        destino.dsn = valor;
    else if (clave == u"uid" || clave == u"user")
        destino.usuario = valor;
    else if (clave == u"pwd" || clave == u"password")
        destino.clave = valor;
}

} // namespace

DestinoConexion leeCadena(const QString& cadena, const QString& usuario, const QString& clave)
{
    DestinoConexion destino;
    for (const QStringView parte : QStringView{cadena}.split(u';'))
        leeParte(parte, destino);
    if (!esNombreSimple(destino.dsn))
        throw ErrorEjecucion(
            ErrorEjecucion::ConexionImposible,
            u"La cadena de conexión \"%1\" no nombra un origen de datos. Escríbala como \"dsn=NOMBRE\"."_s.arg(cadena));
    if (!usuario.isEmpty())
        destino.usuario = usuario;
    if (!clave.isEmpty())
        destino.clave = clave;
    return destino;
}

} // namespace kestrane::database
