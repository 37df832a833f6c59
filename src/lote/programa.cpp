#include "lote/programa.h"

#include "lote/consola_sql.h"
#include "lote/informe_de_lote.h"
#include "lote/opciones.h"
#include "lote/peticion_imposible.h"
#include "platform/database/entorno_datos.h"
#include "platform/runtime/avisos_vivos.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/motivo_sistema.h"

#include <QFile>

namespace kestrane::lote {

using namespace Qt::StringLiterals;

namespace {

QString fraseDe(const ErrorEjecucion& error)
{
    return u"error %1: %2"_s.arg(error.numero()).arg(error.descripcion());
}

bool ejecutaFichero(ConsolaSql& consola, const QString& nombre, Avisos& avisos)
{
    QFile fichero{nombre};
    const bool abierto = fichero.open(QIODevice::ReadOnly);
    const int fallidas = abierto ? consola.ejecutaLineas(fichero) : 0;
    if (!abierto || fichero.error() != QFileDevice::NoError) {
        avisos.di(u"no se puede leer \"%1\" (%2)."_s.arg(nombre, motivoDe(fichero)));
        return false;
    }
    if (fallidas > 0)
        avisos.di(u"%1 sentencias han terminado en error; sus líneas lo dicen."_s.arg(fallidas));
    return fallidas == 0;
}

bool ejecutaSentencia(ConsolaSql& consola, const QString& sentencia, Avisos& avisos)
{
    const std::optional<ErrorEjecucion> error = consola.ejecuta(sentencia);
    if (error)
        avisos.di(fraseDe(*error));
    return !error;
}

bool ejecutaSql(const Opciones& opciones, EntornoDatos& datos, const EntornoDeLote& entorno)
{
    Avisos& avisos = entorno.avisos;
    avisos.empieza(u"Ejecutando sentencias"_s);
    Conexion conexion{datos};
    conexion.Open(u"dsn="_s + opciones.dsn);
    ConsolaSql consola{conexion, opciones.escribir ? ConsolaSql::Permiso::Escritura : ConsolaSql::Permiso::SoloLectura,
                       entorno.salida, avisos};
    const bool bien = opciones.trabajo == Opciones::Trabajo::Sql ? ejecutaSentencia(consola, opciones.texto, avisos)
                                                                 : ejecutaFichero(consola, opciones.texto, avisos);
    conexion.Close();
    datos.termina();
    return bien;
}

database::OpcionesDatos datosDe(const Opciones& opciones)
{
    database::OpcionesDatos datos;
    datos.carpeta = opciones.carpeta;
    datos.regional = opciones.regional;
    return datos;
}

int escribe(QIODevice& salida, const QByteArray& texto)
{
    escribeTodo(salida, texto);
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

int trabajaYDi(const Opciones& opciones, const EntornoDeLote& entorno)
{
    try {
        return trabaja(opciones, entorno);
    } catch (const PeticionImposible& error) {
        entorno.avisos.di(error.mensaje());
        return SalidaUso;
    } catch (const ErrorEjecucion& error) {
        entorno.avisos.di(fraseDe(error));
    } catch (const ErrorDeSalida& error) {
        entorno.avisos.di(u"no se puede escribir el resultado (%1)."_s.arg(error.motivo()));
    }
    return SalidaError;
}

} // namespace

bool necesitaPintar(const QStringList& argumentos)
{
    const auto opciones = leeOpciones(argumentos, {});
    return opciones && opciones.valor().trabajo == Opciones::Trabajo::Informe && pinta(opciones.valor().informe.formato);
}

int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores,
                    DestinoErrores destino)
{
    AvisosVivos vivos{u"listados-lote"_s, errores, destino};
    const auto opciones = leeOpciones(argumentos, carpetaPrograma);
    if (!opciones) {
        vivos.avisos().di(opciones.error().mensaje + u" Con --ayuda se ven las opciones."_s);
        return SalidaUso;
    }
    return trabajaYDi(opciones.valor(), {carpetaPrograma, salida, vivos.avisos()});
}

} // namespace kestrane::lote
