#include "platform/runtime/error_de_salida.h"

#include "platform/runtime/motivo_sistema.h"

namespace kestrane {

void escribeTodo(QIODevice& destino, QByteArrayView bytes)
{
    if (destino.write(bytes.data(), bytes.size()) != bytes.size())
        throw ErrorDeSalida{motivoDe(destino)};
}

} // namespace kestrane
