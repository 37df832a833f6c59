#pragma once

#include "instalacion/esquema/columnas.h"

/// Products, their variants, prices, stock and suppliers.
namespace kestrane::instalacion::tablas {

/// mostrarencaja holds 0, 1 or -1, so it is no YESNO.
inline constexpr ColumnaEsquema Productos[] = {
    clave("codigo"),   texto("codigocliente", 20), texto("Nombre", 100),         doble("coste"),   doble("precio"),
    doble("stock"),    doble("stockminimo"),       doble("stockConsumoInterno"), largo("seccion"), largo("proveedor"),
    corto("tipoprod"), corto("modoVenta"),         corto("mostrarencaja"),       logico("borrar"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesProductos[] = {"Nombre"_L1, "codigocliente"_L1, "seccion"_L1, "proveedor"_L1};

/// One barcode may stand on two products.
inline constexpr ColumnaEsquema ProductosCodigosextra[] = {
    largo("codigo"),
    texto("codigo_extra", 20),
};

inline constexpr QLatin1StringView IndicesProductosCodigosextra[] = {"codigo"_L1, "codigo_extra"_L1};

/// Variants by size and colour; codigohijo is compared as a text.
inline constexpr ColumnaEsquema Productostextil[] = {
    largo("codigopadre"), texto("codigohijo", 20), texto("codcliente", 20), largo("talla"), largo("color"),
    doble("coste"),       doble("precio"),         doble("impuesto"),       doble("stock"),
};

inline constexpr QLatin1StringView IndicesProductostextil[] = {"codigopadre"_L1};

inline constexpr ColumnaEsquema Tallas[] = {
    clave("codigo"),
    texto("nombre", 50),
    texto("descripcionCorta", 20),
    logico("borrar"),
};

inline constexpr ColumnaEsquema Colorestextil[] = {
    clave("codigo"),
    texto("nombre", 50),
    logico("borrar"),
};

inline constexpr ColumnaEsquema Marcas[] = {
    clave("codigo"),
    texto("Nombre", 50),
    logico("borrar"),
};

/// Prices by tariff.
inline constexpr ColumnaEsquema DetallePrecio[] = {
    largo("identificador"),
    largo("producto"),
    doble("precio"),
};

inline constexpr QLatin1StringView IndicesDetallePrecio[] = {"producto"_L1};

/// Stock movements.
inline constexpr ColumnaEsquema Historicostock[] = {
    largo("codigo"), texto("nombre", 100), doble("Cantidad"), doble("coste"),    corto("tipo"),       corto("descripciontipo"),
    fecha("fecha"),  largo("pedido"),      largo("ticket"),   largo("empleado"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesHistoricostock[] = {"descripciontipo"_L1, "fecha"_L1};

inline constexpr ColumnaEsquema Proveedores[] = {
    clave("codigo"),       texto("codigocliente", 20), texto("Nombre", 100),   texto("Direccion", 100), texto("cp", 10),
    texto("telefono", 20), texto("fax", 20),           texto("contacto", 100), texto("nif", 20),        texto("prv_color", 10),
    texto("color", 20),    texto("imagen", 255),       largo("posicion"),      logico("borrar"),
};

inline constexpr TablaEsquema DeProductos[] = {
    {"productos"_L1, Productos, "codigo"_L1, IndicesProductos},
    {"productos_codigosextra"_L1, ProductosCodigosextra, {}, IndicesProductosCodigosextra},
    {"productostextil"_L1, Productostextil, {}, IndicesProductostextil},
    {"tallas"_L1, Tallas, "codigo"_L1, {}},
    {"colorestextil"_L1, Colorestextil, "codigo"_L1, {}},
    {"marcas"_L1, Marcas, "codigo"_L1, {}},
    {"detalle_precio"_L1, DetallePrecio, {}, IndicesDetallePrecio},
    {"historicostock"_L1, Historicostock, {}, IndicesHistoricostock},
    {"proveedores"_L1, Proveedores, "codigo"_L1, {}},
};

} // namespace kestrane::instalacion::tablas
