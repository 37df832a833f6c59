#include "lote/programa.h"
#include "platform/runtime/salida_estandar.h"
#include "platform/runtime/terminal.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <memory>

namespace {

/// One that paints takes its time to start, and few command lines need it. It never asks for a screen.
std::unique_ptr<QCoreApplication> haceAplicacion(int& argc, char** argv)
{
    auto sencilla = std::make_unique<QCoreApplication>(argc, argv);
    if (!kestrane::lote::necesitaPintar(QCoreApplication::arguments()))
        return sencilla;
    sencilla.reset();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt finds missing on a machine without a desktop is none of the operator's business.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

// The application opens files of its own, which would take the place of a closed stream: the streams come first.
int main(int argc, char** argv)
{
    return kestrane::conSalidaEstandar(u"listados-lote", [&](QIODevice& salida, QIODevice& errores) {
        const std::unique_ptr<QCoreApplication> aplicacion = haceAplicacion(argc, argv);
        return kestrane::lote::ejecutaPrograma(QCoreApplication::arguments(), QCoreApplication::applicationDirPath(), salida,
                                               errores, kestrane::destinoErrores(stderr, stdout));
    });
}
