#pragma once

#include "instalacion/esquema/columnas.h"

/// Services, packs, repairs and the catalogues beside them.
namespace kestrane::instalacion::tablas {

inline constexpr ColumnaEsquema Seccion[] = {
    clave("codigo"),    texto("codigocliente", 20), texto("Nombre", 50), texto("sec_color", 10),
    texto("color", 20), texto("imagen", 255),       largo("posicion"),   logico("borrar"),
};

/// mostrarencaja holds 0, 1 or -1, so it is no YESNO.
inline constexpr ColumnaEsquema Servicios[] = {
    clave("codigo"),        texto("codigocliente", 20), texto("nombre", 100), largo("seccion"), largo("posicion"),
    corto("mostrarencaja"), corto("duracion"),          doble("precio"),      doble("iva"),     logico("borrar"),
};

inline constexpr QLatin1StringView IndicesServicios[] = {"seccion"_L1};

inline constexpr ColumnaEsquema Familias[] = {
    clave("codigo"),   texto("codigocliente", 20), texto("nombre", 100), largo("seccion"),
    largo("posicion"), corto("mostrarencaja"),     doble("precio"),      doble("iva"),
    logico("borrar"),
};

inline constexpr QLatin1StringView IndicesFamilias[] = {"seccion"_L1};

inline constexpr ColumnaEsquema DetalleFamilia[] = {
    largo("familia"),
    largo("servicio"),
};

inline constexpr QLatin1StringView IndicesDetalleFamilia[] = {"familia"_L1};

inline constexpr ColumnaEsquema CabeceraPackSpa[] = {
    clave("codigo"),   texto("codigocliente", 20), texto("nombre", 100), largo("seccion"),
    largo("posicion"), corto("mostrarencaja"),     doble("precio"),      doble("iva"),
    logico("borrar"),
};

/// codigo is the pack's, no key of this table.
inline constexpr ColumnaEsquema DetallePackSpa[] = {
    largo("codigo"),
    largo("codservicio"),
    corto("dia"),
};

inline constexpr QLatin1StringView IndicesDetallePackSpa[] = {"codigo"_L1};

inline constexpr ColumnaEsquema Pack[] = {
    clave("codigo"),
    largo("seccion"),
};

inline constexpr ColumnaEsquema Servicepack[] = {
    clave("codigo"),
    texto("codigocliente", 20),
    texto("nombre", 100),
    logico("borrar"),
};

/// Catalogue of repairs.
inline constexpr ColumnaEsquema Arreglos[] = {
    clave("codigo"), texto("codigocliente", 20), texto("nombre", 100), corto("mostrarencaja"), corto("duracion"),
    doble("precio"), doble("preciopago"),        doble("impuesto"),    logico("borrar"),
};

/// Repair jobs.
inline constexpr ColumnaEsquema ArreglosProductos[] = {
    clave("num_arreglo"),           largo("cod_producto"), largo("cod_taller"), texto("nom_cliente_recogida", 100),
    texto("telefono_recogida", 20), logico("recogido"),
};

inline constexpr ColumnaEsquema Talleres[] = {
    clave("codigo"),         texto("codigocliente", 20), texto("nombre", 100), texto("Direccion", 100),
    texto("cp", 10),         texto("telefono1", 20),     texto("email", 100),  texto("contacto1", 100),
    texto("contacto2", 100), texto("Cif", 20),           logico("borrar"),
};

inline constexpr ColumnaEsquema Formapago[] = {
    clave("codigo"), texto("codigocliente", 20), texto("Nombre", 50), texto("observaciones", 255), logico("borrar"),
};

inline constexpr TablaEsquema DeServicios[] = {
    {"seccion"_L1, Seccion, "codigo"_L1, {}},
    {"servicios"_L1, Servicios, "codigo"_L1, IndicesServicios},
    {"familias"_L1, Familias, "codigo"_L1, IndicesFamilias},
    {"detalle_familia"_L1, DetalleFamilia, {}, IndicesDetalleFamilia},
    {"cabecera_pack_spa"_L1, CabeceraPackSpa, "codigo"_L1, {}},
    {"detalle_pack_spa"_L1, DetallePackSpa, {}, IndicesDetallePackSpa},
    {"pack"_L1, Pack, "codigo"_L1, {}},
    {"servicepack"_L1, Servicepack, "codigo"_L1, {}},
    {"arreglos"_L1, Arreglos, "codigo"_L1, {}},
    {"arreglos_productos"_L1, ArreglosProductos, "num_arreglo"_L1, {}},
    {"talleres"_L1, Talleres, "codigo"_L1, {}},
    {"formapago"_L1, Formapago, "codigo"_L1, {}},
};

} // namespace kestrane::instalacion::tablas
