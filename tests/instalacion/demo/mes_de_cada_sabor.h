#pragma once

#include "instalacion/demo/tablas.h"
#include "instalacion/demo/tienda_en_memoria.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace kestrane::demo::pruebas {

/// A month of each flavour, made once for all tests of the program.
class MesDeCadaSabor : public testing::TestWithParam<TipoTienda>
{
protected:
    [[nodiscard]] static const TiendaEnMemoria& tienda()
    {
        static std::map<TipoTienda, std::unique_ptr<TiendaEnMemoria>> hechas;
        auto& suya = hechas[GetParam()];
        if (suya == nullptr)
            suya = std::make_unique<TiendaEnMemoria>(Parametros{.tipo = GetParam(), .tamano = Tamano::Mes});
        return *suya;
    }
    [[nodiscard]] static std::vector<Fila> filas(const TablaDemo& tabla) { return tienda().filas(tabla); }
    [[nodiscard]] static const Sabor& datos() { return sabor(GetParam()); }
    [[nodiscard]] static bool comercio() { return esComercio(datos()); }
    [[nodiscard]] static Fecha hoy() { return Parametros{}.hoy; }
};

/// The values of a column of numbers.
[[nodiscard]] inline std::set<int> codigos(const std::vector<Fila>& filas, const char* columna = "codigo")
{
    std::set<int> todos;
    for (const Fila& fila : filas)
        todos.insert(fila.entero(columna));
    return todos;
}

/// Rows by a number of theirs.
[[nodiscard]] inline std::map<int, Fila> porNumero(const std::vector<Fila>& filas, const char* columna)
{
    std::map<int, Fila> indice;
    for (const Fila& fila : filas)
        indice.emplace(fila.entero(columna), fila);
    return indice;
}

template<class Condicion>
[[nodiscard]] int cuantas(const std::vector<Fila>& filas, Condicion condicion)
{
    return static_cast<int>(std::count_if(filas.begin(), filas.end(), condicion));
}

#define KESTRANE_CADA_SABOR(Prueba)                                                                                                \
    class Prueba : public MesDeCadaSabor                                                                                           \
    {                                                                                                                              \
    };                                                                                                                             \
    INSTANTIATE_TEST_SUITE_P(Sabores, Prueba, testing::ValuesIn(TodosLosTipos),                                                    \
                             [](const auto& caso) { return nombreDeCaso(caso.param); })

} // namespace kestrane::demo::pruebas
