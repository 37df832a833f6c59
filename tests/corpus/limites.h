#pragma once

#include <QString>

#include <vector>

namespace kestrane::prueba {

/// A statement that can be made larger and larger until the front end refuses it.
struct FormaDeSentencia
{
    const char* nombre;
    QString (*sentencia)(int tamano);
    int minimo; ///< the grammar promises at least this size
    int maximo; ///< and refuses this one
};

[[nodiscard]] std::vector<FormaDeSentencia> formasDeSentencia();

} // namespace kestrane::prueba
