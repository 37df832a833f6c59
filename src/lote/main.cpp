#include "lote/programa.h"
#include "platform/runtime/terminal.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion{argc, argv};
    QFile salida;
    QFile errores;
    if (!salida.open(stdout, QIODevice::WriteOnly) || !errores.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return kestrane::lote::SalidaError;
    const auto destino =
        kestrane::esTerminal(stderr) ? kestrane::lote::DestinoErrores::Terminal : kestrane::lote::DestinoErrores::Fichero;
    return kestrane::lote::ejecutaPrograma(QCoreApplication::arguments(), QCoreApplication::applicationDirPath(), salida, errores,
                                           destino);
}
