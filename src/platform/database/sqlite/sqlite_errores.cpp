#include "platform/database/sqlite/sqlite_errores.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace kestrane::database::sqlite {

namespace {

using Categoria = ErrorMotor::Categoria;

struct Caso
{
    int codigo; ///< primary result code
    Categoria categoria;
    const char16_t* frase; ///< %1 the file, %2 the engine's own text; nullptr: the engine's text alone
};

constexpr Caso Casos[] = {
    {SQLITE_BUSY, Categoria::Ocupada,
     u"La base de datos \"%1\" está bloqueada por otro programa. Espere a que termine o ciérrelo, y repita la operación."},
    {SQLITE_PROTOCOL, Categoria::Ocupada,
     u"La base de datos \"%1\" está bloqueada por otro programa. Espere a que termine o ciérrelo, y repita la operación."},
    {SQLITE_LOCKED, Categoria::Ocupada,
     u"La base de datos \"%1\" está bloqueada por otra operación de este programa. Repita la operación."},
    {SQLITE_READONLY, Categoria::SoloLectura,
     u"No se puede escribir en la base de datos \"%1\": el fichero o su carpeta son de solo lectura. Dé al usuario permiso de "
     u"escritura en los dos."},
    {SQLITE_PERM, Categoria::SoloLectura, u"No hay permiso para usar la base de datos \"%1\". Dé al usuario acceso al fichero."},
    {SQLITE_AUTH, Categoria::SoloLectura, u"No hay permiso para usar la base de datos \"%1\". Dé al usuario acceso al fichero."},
    {SQLITE_CANTOPEN, Categoria::SoloLectura,
     u"No se puede abrir la base de datos \"%1\". Compruebe que el fichero existe y que el usuario puede leerlo y escribir en su "
     u"carpeta."},
    {SQLITE_FULL, Categoria::SinSitio,
     u"No queda sitio en el disco para la base de datos \"%1\". Libere espacio y repita la operación."},
    {SQLITE_NOMEM, Categoria::SinSitio, u"No queda memoria para trabajar con la base de datos \"%1\". Cierre otros programas."},
    {SQLITE_NOTADB, Categoria::Danada,
     u"El fichero \"%1\" no es una base de datos. Póngalo de nuevo desde una copia de seguridad."},
    {SQLITE_CORRUPT, Categoria::Danada, u"La base de datos \"%1\" está dañada (%2). Restáurela desde una copia de seguridad."},
    {SQLITE_IOERR, Categoria::ConexionPerdida,
     u"Error del disco al usar la base de datos \"%1\" (%2). Compruebe que el disco o la red están disponibles."},
    {SQLITE_CONSTRAINT, Categoria::Restriccion, u"La base de datos no admite la fila: %2."},
    {SQLITE_MISMATCH, Categoria::Restriccion, u"La base de datos no admite la fila: %2."},
};

const Caso* casoDe(int codigo)
{
    for (const Caso& caso : Casos) {
        if (caso.codigo == (codigo & 0xff))
            return &caso;
    }
    return nullptr;
}

QString ruta(const QString& fichero)
{
    return QDir::toNativeSeparators(fichero);
}

} // namespace

ErrorMotor errorDe(sqlite3* base, int codigo, const QString& fichero, ErrorEjecucion::Numero numero)
{
    QString propio = QString::fromUtf8(base ? sqlite3_errmsg(base) : sqlite3_errstr(codigo));
    if (propio.endsWith(u'.'))
        propio.chop(1); // it stands inside a sentence
    if (codigo == SQLITE_READONLY_DBMOVED)
        return {Categoria::ConexionPerdida, numero,
                u"El fichero \"%1\" ya no está en su sitio. Abra el programa de nuevo."_s.arg(ruta(fichero))};
    const Caso* const caso = casoDe(codigo);
    if (!caso)
        return {Categoria::Sentencia, numero, u"La base de datos rechaza la sentencia: %1."_s.arg(propio)};
    return {caso->categoria, numero, QString::fromUtf16(caso->frase).replace(u"%1"_s, ruta(fichero)).replace(u"%2"_s, propio)};
}

ErrorMotor ficheroQueFalta(const QString& fichero)
{
    const QFileInfo datos{fichero};
    return {Categoria::SoloLectura, ErrorEjecucion::ConexionImposible,
            u"No existe la base de datos \"%1\" en la carpeta \"%2\". Copie allí el fichero %3 o defina el origen de datos ODBC "
            u"\"%1\"."_s.arg(datos.completeBaseName(), ruta(datos.absolutePath()), datos.fileName())};
}

} // namespace kestrane::database::sqlite
