#pragma once

#include "instalacion/esquema/columnas.h"

/// The shop's options, its terminals and the hand-off queue.
namespace kestrane::instalacion::tablas {

/// One row.
inline constexpr ColumnaEsquema Opciones[] = {
    texto("Nombre", 100),    texto("Direccion", 100),   texto("Poblacion", 100),    texto("Provincia", 100),
    texto("CP", 10),         texto("Cif", 20),          texto("telefono", 20),      texto("moneda", 20),
    texto("Simbolo", 5),     corto("NumDecimales"),     texto("tipo_programa", 20), logico("UtilizaColores_empleados"),
    texto("multitienda", 1), texto("nombretienda", 50), logico("modulofacturas"),   logico("iva"),
};

inline constexpr ColumnaEsquema OpcionesTerminal[] = {
    claveTexto("identificador", 50),
    texto("terminal", 50),
    largo("empleado"),
};

inline constexpr ColumnaEsquema Impresoras[] = {
    texto("tipo", 1), texto("terminal", 50), texto("impresora", 255), texto("fuente", 50), corto("numcaracteres"),
};

/// One row.
inline constexpr ColumnaEsquema Configuracionregional[] = {
    texto("nombre", 50),
    texto("bandera", 255),
    texto("Identificacion_Fiscal", 20),
};

/// Several rows may share an indice.
inline constexpr ColumnaEsquema RelacionesFijas[] = {
    texto("indice", 50),
    texto("datoa", 255),
    largo("daton"),
};

inline constexpr QLatin1StringView IndicesRelacionesFijas[] = {"indice"_L1};

inline constexpr ColumnaEsquema Multitienda[] = {
    claveTexto("nombre", 50),
};

/// estado: -1 done.
inline constexpr ColumnaEsquema Migraciontablas[] = {
    claveTexto("tabla", 50),
    logico("estado"),
    fecha("fecha"),
};

/// The hand-off queue: terminal, texto2 and indice together name a row.
inline constexpr ColumnaEsquema Pasardatos[] = {
    texto("terminal", 100),
    texto("texto2", 255),
    largo("indice"),
    texto("texto1", 255),
};

inline constexpr QLatin1StringView IndicesPasardatos[] = {"terminal"_L1};

/// The suite's appearance on a terminal; widths and heights in twips.
inline constexpr ColumnaEsquema PreferenciasTerminal[] = {
    claveTexto("terminal", 50), largo("tema"), largo("letra"), doble("ancho"), doble("alto"),
};

/// The suite's rights: a control that is not named is allowed.
inline constexpr ColumnaEsquema PermisosListados[] = {
    clave("empleado"),
    claveTexto("control", 50),
    logico("permitido"),
};

inline constexpr QLatin1StringView IndicesPermisosListados[] = {"empleado"_L1};

inline constexpr TablaEsquema DeOpciones[] = {
    {"opciones"_L1, Opciones, {}, {}},
    {"opciones_terminal"_L1, OpcionesTerminal, "identificador"_L1, {}},
    {"impresoras"_L1, Impresoras, {}, {}},
    {"configuracionregional"_L1, Configuracionregional, {}, {}},
    {"relaciones_fijas"_L1, RelacionesFijas, {}, IndicesRelacionesFijas},
    {"multitienda"_L1, Multitienda, "nombre"_L1, {}},
    {"migraciontablas"_L1, Migraciontablas, "tabla"_L1, {}},
    {"pasardatos"_L1, Pasardatos, {}, IndicesPasardatos},
    {"preferencias_terminal"_L1, PreferenciasTerminal, "terminal"_L1, {}},
    {"permisos_listados"_L1, PermisosListados, {}, IndicesPermisosListados},
};

} // namespace kestrane::instalacion::tablas
