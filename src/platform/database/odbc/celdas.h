#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/utf8.h"

/// Fields of a row store on their way to a server.
namespace kestrane::database::odbc {

/// The number of a field that holds one; a flag is -1 or 0. 0 for any other field.
[[nodiscard]] inline double numeroDe(const Celda& celda)
{
    switch (celda.tipo) {
    case TipoCelda::Verdadero:
        return -1;
    case TipoCelda::Entero16:
        return celda.entero16();
    case TipoCelda::Entero32:
        return celda.entero32();
    case TipoCelda::Doble:
        return celda.doble();
    default:
        return 0;
    }
}

/// Bytes that are enough for the text of a field in UTF-8.
[[nodiscard]] inline qsizetype maximoUtf8De(const Celda& celda)
{
    return celda.tipo == TipoCelda::Utf16 ? maximoUtf8(celda.bytes / qsizetype{sizeof(char16_t)}) : celda.bytes;
}

/// Writes the text of a field in UTF-8 to `destino`, which has room for maximoUtf8De; returns the bytes written.
[[nodiscard]] inline qsizetype escribeUtf8(const Celda& celda, char* destino)
{
    if (celda.tipo == TipoCelda::Utf16)
        return aUtf8(celda.texto(), destino);
    if (celda.bytes > 0)
        std::memcpy(destino, celda.datos, static_cast<size_t>(celda.bytes));
    return celda.bytes;
}

} // namespace kestrane::database::odbc
