#include "lote/escritor_informes.h"

#include "platform/runtime/error_de_salida.h"

namespace kestrane::lote {

void vuelca(QByteArray& bytes, QIODevice& destino)
{
    escribeTodo(destino, bytes);
    bytes.clear();
}

void vuelcaSiEsMucho(QByteArray& bytes, QIODevice& destino)
{
    if (bytes.size() > TrozoDeSalida)
        vuelca(bytes, destino);
}

} // namespace kestrane::lote
