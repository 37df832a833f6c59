#pragma once

#include <span>

namespace kestrane::instalacion {

/// Something that a report must be able to meet in a demo shop, and the rows that show it: what follows "SELECT count(*) FROM".
struct Casos
{
    enum Quienes { Todos, Salones, Comercios, ConBonos, ConSpa, ConTallas, DeComida };

    const char* nombre;
    Quienes quienes;
    const char* de;
};

/// The list, by area. The month of the shop ends on 2024-06-14, its last day.
[[nodiscard]] std::span<const Casos> casosDeLaDemo();

} // namespace kestrane::instalacion
