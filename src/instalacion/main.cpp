#include "instalacion/programa.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion{argc, argv};
    QFile salida;
    QFile errores;
    if (!salida.open(stdout, QIODevice::WriteOnly) || !errores.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return kestrane::instalacion::SalidaError;
    return kestrane::instalacion::ejecutaPrograma(QCoreApplication::arguments(), QCoreApplication::applicationDirPath(), salida,
                                                  errores);
}
