#include "instalacion/opciones.h"

#include "platform/runtime/lector_dia.h"
#include "platform/runtime/linea_de_ordenes.h"

#include <QCommandLineParser>
#include <QDir>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace kestrane::instalacion {

namespace {

struct OpcionLinea
{
    const char16_t* nombre;
    const char16_t* valor; ///< what stands for its value in the help; nullptr for a switch
    const char16_t* descripcion;
};

constexpr OpcionLinea Lista[] = {
    {u"vacia", nullptr, u"crea las dos bases de datos vacías"},
    {u"motor", u"sqlite|postgresql|mariadb", u"dónde se crean; si no se indica, sqlite"},
    {u"datos", u"CARPETA", u"carpeta de los ficheros de sqlite; si no se indica, \"datos\" junto al programa"},
    {u"dsn", u"NOMBRE", u"origen de datos ODBC de la tienda en un servidor; si no se indica, TiendaKestrane"},
    {u"dsn-listados", u"NOMBRE",
     u"origen de datos ODBC de los listados; si no se indica, ListKestrane, y si tampoco existe, un fichero en la carpeta de "
     u"datos"},
    {u"reemplazar", nullptr, u"borra antes las tablas o los ficheros que ya existan, con lo que contengan"},
    {u"tipo", u"TIPO",
     u"PELUQUERIA, SPA, ESTETICA, CLINICAS, TPV, PERFUMERIA, TALLACOLOR, ZAPATERIA, SUPERMERCADO o PANADERIA; si no se indica, "
     u"PELUQUERIA"},
    {u"tamano", u"dia|mes|anio|cadena", u"tamaño de la tienda de demostración; si no se indica, mes"},
    {u"semilla", u"N", u"semilla de la tienda de demostración; si no se indica, 1"},
    {u"hoy", u"AAAA-MM-DD", u"último día con ventas de la tienda de demostración; si no se indica, 2024-06-14"},
    {u"terminal", u"NOMBRE", u"terminal de la tienda de demostración; si no se indica, el nombre de este equipo"},
    {u"terminal-de", u"TIENDA",
     u"tienda de ese terminal, una de las de la tienda de demostración; si no se indica, la central, \"Servidor\""},
    {u"ayuda", nullptr, u"muestra esta ayuda, como -h y --help"},
};

struct MotorNombrado
{
    QLatin1StringView nombre;
    jet::Motor motor;
};

constexpr std::array Motores = {MotorNombrado{"sqlite"_L1, jet::Motor::Sqlite},
                                MotorNombrado{"postgresql"_L1, jet::Motor::PostgreSql},
                                MotorNombrado{"mariadb"_L1, jet::Motor::MariaDb}};

std::optional<jet::Motor> motorDe(const QString& nombre)
{
    for (const MotorNombrado& uno : Motores) {
        if (uno.nombre == nombre)
            return uno.motor;
    }
    return std::nullopt;
}

void anadeOpciones(QCommandLineParser& linea)
{
    for (const OpcionLinea& una : Lista)
        linea.addOption({QString::fromUtf16(una.nombre), QString::fromUtf16(una.descripcion),
                         una.valor ? QString::fromUtf16(una.valor) : QString{}});
    linea.addOption({{u"h"_s, u"help"_s}, QString{}});
}

std::optional<quint64> semillaDe(const QString& texto)
{
    bool esNumero = false;
    const quint64 semilla = texto.toULongLong(&esNumero);
    return esNumero ? std::optional{semilla} : std::nullopt;
}

/// Puts what `lee` makes of an option's value into `destino`; false when it makes nothing of it.
template<class Dato, class Lector>
bool pon(const QCommandLineParser& linea, const QString& opcion, Dato& destino, Lector lee)
{
    if (!linea.isSet(opcion))
        return true;
    const auto leido = lee(linea.value(opcion));
    if (leido)
        destino = *leido;
    return leido.has_value();
}

QString sinTienda(const QString& tienda, const QStringList& tiendas)
{
    if (tiendas.isEmpty())
        return u"No hay ninguna tienda \"%1\": en un día hay una sola, sin nombre."_s.arg(tienda);
    return u"No hay ninguna tienda \"%1\" de ese tipo y tamaño: %2."_s.arg(tienda, tiendas.join(u", "_s));
}

/// The options of the demo shop; a sentence when one has a value that it does not take.
QString leeDemo(const QCommandLineParser& linea, demo::Parametros& parametros)
{
    if (!pon(linea, u"tipo"_s, parametros.tipo, [](const QString& valor) { return demo::tipoDeTexto(valor); }))
        return u"No se conoce el tipo \"%1\"."_s.arg(linea.value(u"tipo"_s));
    if (!pon(linea, u"tamano"_s, parametros.tamano, [](const QString& valor) { return demo::tamanoDeTexto(valor); }))
        return u"No se conoce el tamaño \"%1\": elija dia, mes, anio o cadena."_s.arg(linea.value(u"tamano"_s));
    if (!pon(linea, u"semilla"_s, parametros.semilla, semillaDe))
        return u"La semilla \"%1\" no es un número."_s.arg(linea.value(u"semilla"_s));
    if (!pon(linea, u"hoy"_s, parametros.hoy, [](const QString& valor) { return leeDia(valor); }) || parametros.hoy.anio() < 1990)
        return u"El día \"%1\" no vale: escríbalo como 2024-06-14, de 1990 en adelante."_s.arg(linea.value(u"hoy"_s));
    if (linea.isSet(u"terminal"_s))
        parametros.terminal = linea.value(u"terminal"_s);
    if (!pon(linea, u"terminal-de"_s, parametros.tiendaDelTerminal,
             [&](const QString& valor) { return demo::tiendaDeTexto(valor, parametros); }))
        return sinTienda(linea.value(u"terminal-de"_s), demo::nombresDeTiendas(parametros));
    return {};
}

/// The first option of the demo shop that is there, "" when there is none.
QString opcionDeDemo(const QCommandLineParser& linea)
{
    for (const QString& opcion : {u"tipo"_s, u"tamano"_s, u"semilla"_s, u"hoy"_s, u"terminal"_s, u"terminal-de"_s}) {
        if (linea.isSet(opcion))
            return opcion;
    }
    return {};
}

/// A sentence when the options contradict one another.
QString contradiccion(const QCommandLineParser& linea, jet::Motor motor)
{
    if (const QStringList sobra = linea.positionalArguments(); !sobra.isEmpty())
        return u"No se sabe qué hacer con \"%1\"."_s.arg(sobra.first());
    if (const QString opcion = opcionDeDemo(linea); linea.isSet(u"vacia"_s) && !opcion.isEmpty())
        return u"Las bases de datos vacías no llevan datos: quite --vacia o --%1."_s.arg(opcion);
    const bool servidor = motor != jet::Motor::Sqlite;
    if (!servidor && (linea.isSet(u"dsn"_s) || linea.isSet(u"dsn-listados"_s)))
        return u"Con un origen de datos hay que indicar el servidor: añada --motor postgresql o --motor mariadb."_s;
    if (servidor && linea.isSet(u"datos"_s) && linea.isSet(u"dsn-listados"_s))
        return u"Las dos bases de datos van a un servidor: quite --datos o --dsn-listados."_s;
    return {};
}

bool pideAyuda(const QCommandLineParser& linea)
{
    return linea.isSet(u"ayuda"_s) || linea.isSet(u"h"_s);
}

QString valorDe(const QCommandLineParser& linea, const QString& opcion, const QString& siFalta)
{
    return linea.isSet(opcion) ? linea.value(opcion) : siFalta;
}

} // namespace

Resultado<Opciones, QString> leeOpciones(const QStringList& argumentos, const QString& carpetaPrograma, const QString& equipo)
{
    QCommandLineParser linea;
    anadeOpciones(linea);
    if (const QString motivo = leeLinea(linea, argumentos); !motivo.isEmpty())
        return motivo;
    if (pideAyuda(linea))
        return Opciones{};
    const QString nombreMotor = valorDe(linea, u"motor"_s, u"sqlite"_s);
    const auto motor = motorDe(nombreMotor);
    if (!motor)
        return u"No se conoce el motor \"%1\": elija sqlite, postgresql o mariadb."_s.arg(nombreMotor);
    if (const QString motivo = contradiccion(linea, *motor); !motivo.isEmpty())
        return motivo;
    Opciones opciones;
    opciones.demo.terminal = equipo;
    if (const QString motivo = leeDemo(linea, opciones.demo); !motivo.isEmpty())
        return motivo;
    opciones.trabajo = linea.isSet(u"vacia"_s) ? Opciones::Trabajo::Vacias : Opciones::Trabajo::Demostracion;
    opciones.motor = *motor;
    opciones.siExiste = linea.isSet(u"reemplazar"_s) ? Opciones::SiExiste::Reemplaza : Opciones::SiExiste::Rehusa;
    opciones.carpetaPedida = linea.isSet(u"datos"_s);
    opciones.carpeta = valorDe(linea, u"datos"_s, QDir{carpetaPrograma}.filePath(u"datos"_s));
    if (*motor != jet::Motor::Sqlite)
        opciones.dsn = valorDe(linea, u"dsn"_s, u"TiendaKestrane"_s);
    opciones.dsnListados = linea.value(u"dsn-listados"_s);
    return opciones;
}

QString textoDeAyuda()
{
    QString texto =
        u"Uso: crear-tienda [opciones]\n     crear-tienda --vacia [opciones]\n\nCrea la base de datos de la tienda y la de los "
        u"listados: con una tienda de demostración, siempre la\nmisma para las mismas opciones, o vacías.\n\n"_s;
    for (const OpcionLinea& una : Lista) {
        const QString nombre = u"--"_s + QString::fromUtf16(una.nombre);
        const QString entera = una.valor ? nombre + u' ' + QString::fromUtf16(una.valor) : nombre;
        texto += u"  "_s + entera.leftJustified(34) + u' ' + QString::fromUtf16(una.descripcion) + u'\n';
    }
    return texto + u"\nEstado de salida: 0 hecho, 1 error, 2 uso incorrecto.\n"_s;
}

} // namespace kestrane::instalacion
