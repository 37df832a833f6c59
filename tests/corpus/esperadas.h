#pragma once

#include <QString>

#include <string>
#include <vector>

namespace kestrane::prueba {

/// A statement and its rows on the small shop, worked out by hand from tienda_pequena.sql: engines that agree may still be wrong.
struct Esperada
{
    QString sentencia;
    std::vector<std::string> filas;
};

[[nodiscard]] std::vector<Esperada> respuestasEsperadas();

/// A statement that every engine begins and none can finish, and the words of its error.
struct Fallida
{
    QString sentencia;
    std::string motivo;
};

[[nodiscard]] std::vector<Fallida> sentenciasQueFallan();

} // namespace kestrane::prueba
