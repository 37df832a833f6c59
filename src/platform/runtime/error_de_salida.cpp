#include "platform/runtime/error_de_salida.h"

#include "platform/runtime/motivo_sistema.h"

namespace kestrane {

using namespace Qt::StringLiterals;

void escribeTodo(QIODevice& destino, QByteArrayView bytes)
{
    // A write that is cut short has no reason yet: that of the rest has.
    while (!bytes.isEmpty()) {
        const qint64 escritos = destino.write(bytes.data(), bytes.size());
        if (escritos <= 0)
            throw ErrorDeSalida{motivoDe(destino)};
        bytes = bytes.sliced(escritos);
    }
}

void confirma(QSaveFile& fichero)
{
    // What commit() itself sends last may fail unseen: nothing is left for it. A second try tells why the first was cut short.
    const bool enDisco = fichero.flush();
    if (!enDisco)
        fichero.flush();
    if (!enDisco || !fichero.commit())
        throw ErrorDeSalida{u"\"%1\": %2"_s.arg(fichero.fileName(), motivoDe(fichero))};
}

} // namespace kestrane
