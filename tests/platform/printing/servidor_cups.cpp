#include "platform/printing/servidor_cups.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <arpa/inet.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

constexpr int Intentos = 5; // another program may take the port in between
constexpr int EsperaMs = 30000;
constexpr int CompasMs = 20;

// Whoever is on the machine may administer it: nobody else hears of it. Raw queues take a job as it comes, without filters.
constexpr auto Configuracion = R"(Listen 127.0.0.1:%1
LogLevel info
MaxLogSize 0
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow from 127.0.0.1
</Location>
<Policy default>
JobPrivateAccess all
JobPrivateValues none
SubscriptionPrivateAccess all
SubscriptionPrivateValues none
<Limit All>
Order allow,deny
Allow from 127.0.0.1
</Limit>
</Policy>
)";

constexpr auto Ficheros = R"(ServerRoot %1
ServerBin %1/bin
DataDir %1/data
RequestRoot %1/spool
CacheDir %1/cache
StateDir %1/state
TempDir %1/tmp
AccessLog %1/access_log
ErrorLog %1/error_log
PageLog %1/page_log
)";

// What a device is called with: job, user, title, copies, options, file. The name comes last, when all of it is there.
constexpr auto Dispositivo = R"(#!/bin/sh
[ $# -eq 0 ] && exit 0
umask 022
cp "$6" "%1/salida/$1.pdf" && printf '%s\n%s\n%s\n' "$PRINTER" "$3" "$4" > "%1/salida/$1.parte" &&
mv "%1/salida/$1.parte" "%1/salida/$1.listo"
)";

void escribe(const QString& nombre, const QByteArray& texto)
{
    QFile fichero{nombre};
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(texto) != texto.size())
        throw std::runtime_error{"cannot write " + nombre.toStdString()};
}

int puertoLibre()
{
    const int enchufe = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in direccion{};
    direccion.sin_family = AF_INET;
    direccion.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t largo = sizeof direccion;
    void* const lugar = &direccion;
    const bool bien = ::bind(enchufe, static_cast<sockaddr*>(lugar), largo) == 0 &&
                      ::getsockname(enchufe, static_cast<sockaddr*>(lugar), &largo) == 0;
    ::close(enchufe);
    if (!bien)
        throw std::runtime_error{"no free port on the loopback"};
    return ntohs(direccion.sin_port);
}

} // namespace

ServidorCups::ServidorCups()
{
    preparaCarpetas();
    for (int intento = 0; intento < Intentos; ++intento) {
        const int puerto = puertoLibre();
        escribeConfiguracion(puerto);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(puerto));
        if (arranca())
            return;
    }
    throw std::runtime_error{"cupsd does not come up: " + registro()};
}

ServidorCups::~ServidorCups()
{
    m_servidor.terminate();
    if (!m_servidor.waitForFinished(EsperaMs))
        m_servidor.kill();
    qunsetenv("CUPS_SERVER");
}

void ServidorCups::preparaCarpetas() const
{
    const QDir raiz{m_carpeta.path()};
    for (const QString& nombre : {u"bin/backend"_s, u"data"_s, u"spool"_s, u"cache"_s, u"state"_s, u"tmp"_s, u"salida"_s}) {
        if (!raiz.mkpath(nombre))
            throw std::runtime_error{"cannot make " + nombre.toStdString()};
    }
    QFile::link(u"/usr/lib/cups/daemon"_s, ruta(u"bin/daemon"_s));
    QFile::link(u"/usr/share/cups/mime"_s, ruta(u"data/mime"_s));
    const QString dispositivo = ruta(u"bin/backend/carpeta"_s);
    escribe(dispositivo, QByteArray{Dispositivo}.replace("%1", QFile::encodeName(m_carpeta.path())));
    // Nobody else may: the server runs it as itself then.
    QFile::setPermissions(dispositivo, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ServidorCups::escribeConfiguracion(int puerto) const
{
    escribe(ruta(u"cupsd.conf"_s), QByteArray{Configuracion}.replace("%1", QByteArray::number(puerto)));
    escribe(ruta(u"cups-files.conf"_s), QByteArray{Ficheros}.replace("%1", QFile::encodeName(m_carpeta.path())));
}

/// False when the server ended before it answered.
bool ServidorCups::arranca()
{
    m_servidor.setProcessChannelMode(QProcess::MergedChannels);
    m_servidor.start(u"/usr/sbin/cupsd"_s, {u"-f"_s, u"-c"_s, ruta(u"cupsd.conf"_s), u"-s"_s, ruta(u"cups-files.conf"_s)});
    const QDeadlineTimer plazo{EsperaMs};
    while (m_servidor.waitForStarted() && !plazo.hasExpired() && !m_servidor.waitForFinished(CompasMs)) {
        QProcess pregunta;
        pregunta.start(u"lpstat"_s, {u"-r"_s});
        if (pregunta.waitForFinished(EsperaMs) && pregunta.readAllStandardOutput().startsWith("scheduler is running"))
            return true;
        if (m_servidor.state() == QProcess::NotRunning)
            break;
    }
    return false;
}

void ServidorCups::administra(const QStringList& argumentos)
{
    QProcess ordena;
    ordena.setProcessChannelMode(QProcess::MergedChannels);
    ordena.start(u"/usr/sbin/lpadmin"_s, argumentos);
    if (!ordena.waitForFinished(EsperaMs) || ordena.exitStatus() != QProcess::NormalExit || ordena.exitCode() != 0)
        throw std::runtime_error{"lpadmin: " + ordena.readAll().toStdString() + registro()};
}

void ServidorCups::anadeCola(const QString& nombre, const QString& lugar)
{
    administra({u"-p"_s, nombre, u"-E"_s, u"-v"_s, u"carpeta:/"_s, u"-L"_s, lugar});
}

void ServidorCups::quitaCola(const QString& nombre)
{
    administra({u"-x"_s, nombre});
}

void ServidorCups::eligePredeterminada(const QString& nombre)
{
    administra({u"-d"_s, nombre});
}

QStringList paginasDe(const TrabajoSalido& salido)
{
    QProcess lector;
    lector.start(u"pdftotext"_s, {u"-layout"_s, salido.fichero, u"-"_s});
    if (!lector.waitForFinished(EsperaMs) || lector.exitCode() != 0)
        throw std::runtime_error{"pdftotext: " + lector.readAllStandardError().toStdString()};
    QStringList paginas = QString::fromUtf8(lector.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
    for (QString& pagina : paginas)
        pagina = pagina.simplified();
    return paginas;
}

TrabajoSalido ServidorCups::trabajo(int numero)
{
    const QString comienzo = ruta(u"salida/%1"_s.arg(numero));
    const QDeadlineTimer plazo{EsperaMs};
    QFile listo{comienzo + u".listo"_s};
    while (!listo.exists()) {
        if (plazo.hasExpired() || m_servidor.waitForFinished(CompasMs))
            throw std::runtime_error{"the job does not come: " + registro()};
    }
    if (!listo.open(QIODevice::ReadOnly))
        throw std::runtime_error{"the job cannot be read"};
    const QStringList lineas = QString::fromUtf8(listo.readAll()).split(u'\n');
    return {.cola = lineas[0], .titulo = lineas[1], .copias = lineas[2].toInt(), .fichero = comienzo + u".pdf"_s};
}

int ServidorCups::trabajos() const
{
    return static_cast<int>(QDir{ruta(u"salida"_s)}.entryList({u"*.listo"_s}).size());
}

std::string ServidorCups::registro() const
{
    QFile fichero{ruta(u"error_log"_s)};
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll().right(4000).toStdString() : "no log";
}

} // namespace kestrane::prueba
