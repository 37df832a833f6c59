#pragma once

#include "instalacion/esquema/columnas.h"

/// The cash desk: opening cash, expenses, withdrawals, remarks.
namespace kestrane::instalacion::tablas {

inline constexpr ColumnaEsquema CajaInicial[] = {
    fecha("fecha"),
    texto("tienda", 50),
    doble("importe"),
    largo("empleado"),
};

inline constexpr QLatin1StringView IndicesCajaInicial[] = {"fecha"_L1};

/// hora is a time of day.
inline constexpr ColumnaEsquema Gastos[] = {
    fecha("fecha"), fecha("hora"), texto("tienda", 50), texto("motivo", 255), doble("importe"), largo("empleado"),
};

inline constexpr QLatin1StringView IndicesGastos[] = {"fecha"_L1};

inline constexpr ColumnaEsquema Retiradas[] = {
    fecha("fecha"),
    texto("tienda", 50),
    doble("importe"),
    largo("empleado"),
};

inline constexpr QLatin1StringView IndicesRetiradas[] = {"fecha"_L1};

/// hora is a time of day.
inline constexpr ColumnaEsquema Observacioncaja[] = {
    fecha("fecha"), fecha("hora"), largo("empleado"), texto("observacion", 255), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesObservacioncaja[] = {"fecha"_L1};

inline constexpr TablaEsquema DeCaja[] = {
    {"caja_inicial"_L1, CajaInicial, {}, IndicesCajaInicial},
    {"gastos"_L1, Gastos, {}, IndicesGastos},
    {"retiradas"_L1, Retiradas, {}, IndicesRetiradas},
    {"observacioncaja"_L1, Observacioncaja, {}, IndicesObservacioncaja},
};

} // namespace kestrane::instalacion::tablas
