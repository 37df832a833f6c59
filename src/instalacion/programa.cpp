#include "instalacion/programa.h"

#include "instalacion/demo/generador.h"
#include "instalacion/obra.h"
#include "instalacion/opciones.h"
#include "platform/database/odbc/odbc_motor.h"
#include "platform/runtime/avisos_vivos.h"
#include "platform/runtime/error_de_salida.h"
#include "platform/runtime/error_ejecucion.h"

#include <QDir>
#include <QIODevice>
#include <QSysInfo>

#include <vector>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

/// Given up in the reverse order of its making, so that a folder is empty when the work that made it goes.
class Obras
{
public:
    Obras() = default;
    ~Obras()
    {
        while (!m_obras.empty())
            m_obras.pop_back();
    }
    Obras(const Obras&) = delete;
    Obras& operator=(const Obras&) = delete;

    void anade(std::unique_ptr<Obra> obra) { m_obras.push_back(std::move(obra)); }
    [[nodiscard]] Obra& tienda() const { return *m_obras[0]; }
    [[nodiscard]] Obra& listados() const { return *m_obras[1]; }
    [[nodiscard]] auto begin() const { return m_obras.begin(); }
    [[nodiscard]] auto end() const { return m_obras.end(); }

private:
    std::vector<std::unique_ptr<Obra>> m_obras;
};

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

void anadeObras(const Opciones& opciones, Obras& obras)
{
    const bool enFichero = opciones.motor == jet::Motor::Sqlite;
    obras.anade(enFichero ? enCarpeta(baseTienda(), opciones) : obraEnServidor(baseTienda(), opciones.dsn, opciones.motor));
    obras.anade(obraDeListados(opciones));
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

/// The folder of the reports database would be made in vain: the programs look behind the machine's data source first.
void exigeCarpetaUtil(const Opciones& opciones)
{
    const QString dsn = baseListados().dsn;
    if (opciones.motor == jet::Motor::Sqlite || !opciones.carpetaPedida || !database::odbc::defineDsn(dsn))
        return;
    throw ErrorEjecucion{ErrorEjecucion::ConexionImposible,
                         u"Este equipo define el origen de datos \"%1\", donde los programas buscan los listados: no se usaría la "
                         u"carpeta de --datos. Quite --datos, o la definición."_s.arg(dsn)};
}

void construyeVacias(const Obras& obras)
{
    for (const auto& obra : obras)
        obra->construye({});
}

/// The generator's rows go to both while both are being built.
void construyeDemostracion(Obra& tienda, Obra& listados, const demo::Parametros& parametros, Avisos& avisos)
{
    const auto trasCadaDia = [&] { avisos.avanza(); };
    tienda.construye([&](Carga& deTienda) {
        listados.construye([&](Carga& deListados) {
            Reparto reparto{deTienda, deListados};
            avisos.empieza(u"Generando los días de la tienda"_s);
            demo::generaTienda(parametros, reparto, trasCadaDia);
            avisos.empieza(u"Creando los índices"_s);
        });
    });
}

/// Both are built before one is put in its place, and both stand there before one is confirmed.
void crea(const Opciones& opciones, QIODevice& salida, Avisos& avisos)
{
    avisos.empieza(u"Creando las bases de datos"_s);
    exigeCarpetaUtil(opciones);
    Obras obras;
    anadeObras(opciones, obras);
    exigeSitio(obras, opciones);
    const bool vacias = opciones.trabajo == Opciones::Trabajo::Vacias;
    if (vacias)
        construyeVacias(obras);
    else
        construyeDemostracion(obras.tienda(), obras.listados(), opciones.demo, avisos);
    avisos.empieza(u"Poniendo en su sitio las bases de datos"_s);
    obras.listados().termina(); // a file can be taken back when the shop's server refuses, not the other way round
    obras.tienda().termina();
    for (const auto& obra : obras)
        obra->confirma();
    const QString frase = vacias ? u"Creada, vacía, la base de datos \"%1\"."_s : u"Creada la base de datos \"%1\"."_s;
    avisos.empiezanLosResultados();
    for (const auto& obra : obras)
        escribeTodo(salida, frase.arg(obra->nombre()).toUtf8() + '\n');
}

int cumple(const Opciones& opciones, QIODevice& salida, Avisos& avisos)
{
    if (opciones.trabajo == Opciones::Trabajo::Ayuda) {
        escribeTodo(salida, textoDeAyuda().toUtf8());
        return SalidaBien;
    }
    crea(opciones, salida, avisos);
    return SalidaBien;
}

} // namespace

int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, Avisos& avisos)
{
    const auto opciones = leeOpciones(argumentos, carpetaPrograma, QSysInfo::machineHostName());
    if (!opciones) {
        avisos.di(opciones.error() + u" Con --ayuda se ven las opciones."_s);
        return SalidaUso;
    }
    try {
        return cumple(opciones.valor(), salida, avisos);
    } catch (const ErrorEjecucion& error) {
        avisos.di(u"error %1: %2"_s.arg(error.numero()).arg(error.descripcion()));
    } catch (const ErrorDeSalida& error) {
        avisos.di(u"no se puede escribir en la salida estándar (%1)."_s.arg(error.motivo()));
    }
    return SalidaError;
}

int ejecutaPrograma(const QStringList& argumentos, const QString& carpetaPrograma, QIODevice& salida, QIODevice& errores,
                    DestinoErrores destino)
{
    AvisosVivos vivos{u"crear-tienda"_s, errores, destino};
    return ejecutaPrograma(argumentos, carpetaPrograma, salida, vivos.avisos());
}

} // namespace kestrane::instalacion
