#include "platform/runtime/salida_estandar.h"

#include "platform/runtime/motivo_sistema.h"
#include "platform/runtime/terminal.h"

#include <QFile>

#include <new>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

void di(QStringView programa, QIODevice& errores, const QString& frase)
{
    errores.write(u"%1: %2\n"_s.arg(programa, frase).toUtf8());
}

void diMotivo(QStringView programa, QIODevice& errores, const QString& motivo)
{
    di(programa, errores, u"no se puede escribir en la salida estándar (%1)."_s.arg(motivo));
}

/// A closed stream must be found before a file is opened, which would take its place.
bool abre(QFile& fichero, std::FILE* flujo, QIODevice::OpenMode modo)
{
    return estaAbierto(flujo) && fichero.open(flujo, modo);
}

} // namespace

int conSalidaEstandar(QStringView programa, const TrabajoConSalida& trabajo)
{
    QFile errores;
    if (!abre(errores, stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return EstadoDeFallo; // there is nowhere to say it
    QFile salida;
    if (!abre(salida, stdout, QIODevice::WriteOnly)) {
        diMotivo(programa, errores, u"está cerrada"_s);
        return EstadoDeFallo;
    }
    rehusaTuberiasRotas();
    return conSalida(programa, salida, errores, trabajo);
}

int conSalida(QStringView programa, QFileDevice& salida, QIODevice& errores, const TrabajoConSalida& trabajo)
{
    try {
        const int estado = trabajo(salida, errores);
        if (salida.flush())
            return estado;
        diMotivo(programa, errores, motivoDe(salida));
    } catch (const std::bad_alloc&) {
        di(programa, errores, u"no queda memoria."_s);
    } catch (const std::exception& error) {
        di(programa, errores, u"error interno \"%1\"."_s.arg(QString::fromUtf8(error.what())));
    } catch (...) {
        di(programa, errores, u"error interno desconocido."_s);
    }
    return EstadoDeFallo;
}

} // namespace kestrane
