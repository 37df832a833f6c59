#pragma once

#include "instalacion/esquema/columnas.h"

/// Prepaid sessions and appointments.
namespace kestrane::instalacion::tablas {

/// estado: 0 active, -1 expired.
inline constexpr ColumnaEsquema CabeceraBonos[] = {
    clave("numbono"), largo("num_factura"), corto("num_sesiones"), largo("cliente"),     largo("servicio"),   largo("familia"),
    logico("estado"), fecha("fecha_alta"),  fecha("fecha_desde"),  fecha("fecha_hasta"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesCabeceraBonos[] = {"num_factura"_L1, "cliente"_L1, "estado"_L1};

inline constexpr ColumnaEsquema DetalleBono[] = {
    largo("num_bono"),
    fecha("fecha_consumo"),
    largo("empleado"),
    texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesDetalleBono[] = {"num_bono"_L1};

/// motivo is shown when servicio is 0.
inline constexpr ColumnaEsquema Agenda[] = {
    clave("num_cita"),    largo("cliente"), largo("empleado"), largo("servicio"),   fecha("fecha"),
    fecha("hora_inicio"), memo("motivo"),   logico("anulado"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesAgenda[] = {"fecha"_L1};

inline constexpr TablaEsquema DeBonos[] = {
    {"cabecera_bonos"_L1, CabeceraBonos, "numbono"_L1, IndicesCabeceraBonos},
    {"detalle_bono"_L1, DetalleBono, {}, IndicesDetalleBono},
    {"agenda"_L1, Agenda, "num_cita"_L1, IndicesAgenda},
};

} // namespace kestrane::instalacion::tablas
