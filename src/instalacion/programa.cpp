#include "instalacion/programa.h"

#include "instalacion/demo/generador.h"
#include "instalacion/obra.h"
#include "instalacion/opciones.h"
#include "platform/database/odbc/odbc_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>
#include <QIODevice>
#include <QSysInfo>

#include <vector>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

using Obras = std::vector<std::unique_ptr<Obra>>;

void escribe(QIODevice& donde, const QString& linea)
{
    donde.write(linea.toUtf8() + '\n');
}

std::unique_ptr<Obra> enCarpeta(const BaseEsquema& base, const Opciones& opciones)
{
    return obraEnFichero(base, QDir{opciones.carpeta}.filePath(QString{base.dsn} + u".db"_s));
}

/// The reports database stands where the programs look for it: on the server when the machine defines its data source.
std::unique_ptr<Obra> obraDeListados(const Opciones& opciones)
{
    const BaseEsquema& base = baseListados();
    const bool enServidor = !opciones.dsnListados.isEmpty() || database::odbc::defineDsn(QString{base.dsn});
    if (opciones.motor == jet::Motor::Sqlite || !enServidor)
        return enCarpeta(base, opciones);
    return obraEnServidor(base, opciones.dsnListados.isEmpty() ? QString{base.dsn} : opciones.dsnListados, opciones.motor);
}

Obras obrasDe(const Opciones& opciones)
{
    Obras obras;
    const bool enFichero = opciones.motor == jet::Motor::Sqlite;
    obras.push_back(enFichero ? enCarpeta(baseTienda(), opciones) : obraEnServidor(baseTienda(), opciones.dsn, opciones.motor));
    obras.push_back(obraDeListados(opciones));
    return obras;
}

void exigeSitio(const Obras& obras, const Opciones& opciones)
{
    if (opciones.siExiste == Opciones::SiExiste::Reemplaza)
        return;
    for (const auto& obra : obras) {
        if (obra->ocupada())
            throw ErrorEjecucion{ErrorEjecucion::ConexionImposible,
                                 u"Ya existe la base de datos \"%1\": elija otro sitio, o añada --reemplazar para hacerla de nuevo "
                                 u"(se pierde lo que contiene)."_s.arg(obra->nombre())};
    }
}

void construyeVacias(const Obras& obras)
{
    for (const auto& obra : obras)
        obra->construye({});
}

/// The generator's rows go to both while both are being built.
void construyeDemostracion(Obra& tienda, Obra& listados, const demo::Parametros& parametros)
{
    tienda.construye([&](Carga& deTienda) {
        listados.construye([&](Carga& deListados) {
            Reparto reparto{deTienda, deListados};
            demo::generaTienda(parametros, reparto);
        });
    });
}

/// Both are built before one is put in its place.
void crea(const Opciones& opciones, QIODevice& salida)
{
    const Obras obras = obrasDe(opciones);
    exigeSitio(obras, opciones);
    const bool vacias = opciones.trabajo == Opciones::Trabajo::Vacias;
    if (vacias)
        construyeVacias(obras);
    else
        construyeDemostracion(*obras[0], *obras[1], opciones.demo);
    const QString frase = vacias ? u"Creada, vacía, la base de datos \"%1\"."_s : u"Creada la base de datos \"%1\"."_s;
    for (const auto& obra : obras) {
        obra->termina();
        escribe(salida, frase.arg(obra->nombre()));
    }
}

int cumple(const Opciones& opciones, QIODevice& salida)
{
    if (opciones.trabajo == Opciones::Trabajo::Ayuda) {
        salida.write(textoDeAyuda().toUtf8());
        return SalidaBien;
    }
    crea(opciones, salida);
    return SalidaBien;
}

} // namespace

int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores)
{
    const auto opciones = leeOpciones(argumentos, carpetaPrograma, QSysInfo::machineHostName());
    if (!opciones) {
        escribe(errores, opciones.error());
        return SalidaUso;
    }
    try {
        return cumple(opciones.valor(), salida);
    } catch (const ErrorEjecucion& error) {
        escribe(errores, error.descripcion());
        return SalidaError;
    }
}

} // namespace kestrane::instalacion
