#include "instalacion/programa.h"
#include "platform/runtime/salida_estandar.h"
#include "platform/runtime/terminal.h"

#include <QCoreApplication>

// The application opens files of its own, which would take the place of a closed stream: the streams come first.
int main(int argc, char** argv)
{
    return kestrane::conSalidaEstandar(u"crear-tienda", [&](QIODevice& salida, QIODevice& errores) {
        const QCoreApplication aplicacion{argc, argv};
        return kestrane::instalacion::ejecutaPrograma(QCoreApplication::arguments(), QCoreApplication::applicationDirPath(), salida,
                                                      errores, kestrane::destinoErrores(stderr, stdout));
    });
}
