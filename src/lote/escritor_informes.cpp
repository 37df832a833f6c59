#include "lote/escritor_informes.h"

#include "lote/error_de_salida.h"

namespace kestrane::lote {

namespace {

constexpr qsizetype TrozoDeSalida = 64 * 1024;

} // namespace

void vuelca(QByteArray& bytes, QIODevice& destino)
{
    if (destino.write(bytes) != bytes.size())
        throw ErrorDeSalida{destino.errorString()};
    bytes.clear();
}

void vuelcaSiEsMucho(QByteArray& bytes, QIODevice& destino)
{
    if (bytes.size() > TrozoDeSalida)
        vuelca(bytes, destino);
}

} // namespace kestrane::lote
