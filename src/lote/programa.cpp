#include "lote/programa.h"

#include "lote/consola_sql.h"
#include "lote/escritor_informes.h"
#include "lote/informe_de_lote.h"
#include "lote/opciones.h"
#include "lote/peticion_imposible.h"
#include "platform/database/entorno_datos.h"

#include <QFile>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

void di(QIODevice& errores, const QString& frase)
{
    errores.write("listados-lote: " + frase.toUtf8() + '\n');
}

QString fraseDe(const ErrorEjecucion& error)
{
    return u"error %1: %2"_s.arg(error.numero()).arg(error.descripcion());
}

bool ejecutaFichero(ConsolaSql& consola, const QString& nombre, QIODevice& errores)
{
    QFile fichero{nombre};
    if (!fichero.open(QIODevice::ReadOnly)) {
        di(errores, u"no se puede leer \"%1\" (%2)."_s.arg(nombre, fichero.errorString()));
        return false;
    }
    const int fallidas = consola.ejecutaLineas(fichero);
    if (fallidas > 0)
        di(errores, u"%1 sentencias han terminado en error; sus líneas lo dicen."_s.arg(fallidas));
    return fallidas == 0;
}

bool ejecutaSentencia(ConsolaSql& consola, const QString& sentencia, QIODevice& errores)
{
    const std::optional<ErrorEjecucion> error = consola.ejecuta(sentencia);
    if (error)
        di(errores, fraseDe(*error));
    return !error;
}

bool ejecutaSql(const Opciones& opciones, EntornoDatos& datos, const EntornoDeLote& entorno)
{
    QIODevice& errores = entorno.errores;
    Conexion conexion{datos};
    conexion.Open(u"dsn="_s + opciones.dsn);
    ConsolaSql consola{conexion, opciones.escribir ? ConsolaSql::Permiso::Escritura : ConsolaSql::Permiso::SoloLectura,
                       entorno.salida};
    const bool bien = opciones.trabajo == Opciones::Trabajo::Sql ? ejecutaSentencia(consola, opciones.texto, errores)
                                                                 : ejecutaFichero(consola, opciones.texto, errores);
    conexion.Close();
    return bien;
}

database::OpcionesDatos datosDe(const Opciones& opciones)
{
    database::OpcionesDatos datos;
    datos.carpeta = opciones.carpeta;
    datos.regional = opciones.regional;
    return datos;
}

int escribe(QIODevice& salida, QByteArray texto)
{
    vuelca(texto, salida);
    return SalidaBien;
}

int trabaja(const Opciones& opciones, const EntornoDeLote& entorno)
{
    switch (opciones.trabajo) {
    case Opciones::Trabajo::Ayuda:
        return escribe(entorno.salida, opciones.texto.toUtf8());
    case Opciones::Trabajo::Lista:
        return escribe(entorno.salida, listaDeInformes());
    case Opciones::Trabajo::Informe:
        return ejecutaInforme(opciones, datosDe(opciones), entorno);
    case Opciones::Trabajo::Sql:
    case Opciones::Trabajo::SqlFichero:
        break;
    }
    EntornoDatos datos{datosDe(opciones)};
    return ejecutaSql(opciones, datos, entorno) ? SalidaBien : SalidaError;
}

} // namespace

int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores,
                    DestinoErrores destino)
{
    const auto opciones = leeOpciones(argumentos, carpetaPrograma);
    if (!opciones) {
        di(errores, opciones.error().mensaje + u" Con --ayuda se ven las opciones."_s);
        return SalidaUso;
    }
    try {
        return trabaja(opciones.valor(), {carpetaPrograma, salida, errores, destino == DestinoErrores::Terminal});
    } catch (const PeticionImposible& error) {
        di(errores, error.mensaje());
        return SalidaUso;
    } catch (const ErrorEjecucion& error) {
        di(errores, fraseDe(error));
    } catch (const ErrorDeSalida& error) {
        di(errores, u"no se puede escribir el resultado (%1)."_s.arg(QString::fromUtf8(error.what())));
    }
    return SalidaError;
}

} // namespace kestrane::lote
