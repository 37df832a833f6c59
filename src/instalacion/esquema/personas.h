#pragma once

#include "instalacion/esquema/columnas.h"

/// Clients and employees.
namespace kestrane::instalacion::tablas {

inline constexpr ColumnaEsquema Clientes[] = {
    clave("codigo"),         texto("codigocliente", 20), texto("Nombre", 100),   texto("Apellidos", 100),
    texto("NIF", 20),        texto("Direccion", 100),    texto("cp", 10),        texto("poblacion", 100),
    texto("provincia", 100), texto("telefono1", 20),     texto("telefono2", 20), texto("email", 100),
    fecha("ingreso"),        fecha("nacimiento"),        fecha("ultimavisita"),  doble("dindep"),
    texto("etiquetas", 10),  logico("borrar"),           texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesClientes[] = {"Nombre"_L1, "codigocliente"_L1};

inline constexpr ColumnaEsquema Obserclientes[] = {
    largo("codcli"), fecha("fecha"), largo("empleado"), largo("indice"), texto("observacion", 255), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesObserclientes[] = {"codcli"_L1};

/// emp_color and color are texts: null, "" and "0" differ.
inline constexpr ColumnaEsquema Empleados[] = {
    clave("codigo"),          texto("Nombre", 50),         texto("Apellidos", 100), logico("baja"),        logico("mostrar_caja"),
    largo("posicion"),        texto("imagen", 255),        texto("emp_color", 10),  texto("color", 20),    texto("Direccion", 100),
    texto("cp", 10),          texto("localidad", 100),     texto("provincia", 100), texto("telefono", 20), texto("telefono1", 20),
    fecha("fechanacimiento"), fecha("fechaalta"),          fecha("fechabaja"),      texto("dni", 20),      texto("ss", 30),
    texto("categoria", 50),   texto("observaciones", 255),
};

/// Pay steps of an employee.
inline constexpr ColumnaEsquema Sueldos[] = {
    largo("codEmpleado"),
    doble("volumen"),
    doble("sueldobase"),
    doble("valorvolumen"),
};

inline constexpr QLatin1StringView IndicesSueldos[] = {"codEmpleado"_L1};

inline constexpr TablaEsquema DePersonas[] = {
    {"clientes"_L1, Clientes, "codigo"_L1, IndicesClientes},
    {"obserclientes"_L1, Obserclientes, {}, IndicesObserclientes},
    {"empleados"_L1, Empleados, "codigo"_L1, {}},
    {"sueldos"_L1, Sueldos, {}, IndicesSueldos},
};

} // namespace kestrane::instalacion::tablas
