#pragma once

#include "instalacion/demo/destino.h"

/// The tables that a demo shop fills, each with its columns in the order of the values. All but the last lie in the shop database;
/// listadostemporal lies in the reports database.
namespace kestrane::demo::tablas {

extern const TablaDemo CabeceraFactura;
extern const TablaDemo DetalleFactura;
extern const TablaDemo CabeceraFacturaAnulaciones;
extern const TablaDemo DetalleFacturaAnulaciones;
extern const TablaDemo CabeceraFacturaTemp;
extern const TablaDemo DetalleFacturaTemp;
extern const TablaDemo CabeceraAbono;
extern const TablaDemo DetalleAbono;
extern const TablaDemo CabeceraPago;
extern const TablaDemo DetallePago;
extern const TablaDemo VentasCompartidas;
extern const TablaDemo ValesDescuento;
extern const TablaDemo CajaInicial;
extern const TablaDemo Gastos;
extern const TablaDemo Retiradas;
extern const TablaDemo Observacioncaja;
extern const TablaDemo CabeceraBonos;
extern const TablaDemo DetalleBono;
extern const TablaDemo Agenda;
extern const TablaDemo Clientes;
extern const TablaDemo Obserclientes;
extern const TablaDemo Empleados;
extern const TablaDemo Sueldos;
extern const TablaDemo Productos;
extern const TablaDemo ProductosCodigosextra;
extern const TablaDemo Productostextil;
extern const TablaDemo Tallas;
extern const TablaDemo Colorestextil;
extern const TablaDemo Marcas;
extern const TablaDemo DetallePrecio;
extern const TablaDemo Historicostock;
extern const TablaDemo Proveedores;
extern const TablaDemo Seccion;
extern const TablaDemo Servicios;
extern const TablaDemo Familias;
extern const TablaDemo DetalleFamilia;
extern const TablaDemo CabeceraPackSpa;
extern const TablaDemo DetallePackSpa;
extern const TablaDemo Pack;
extern const TablaDemo Servicepack;
extern const TablaDemo Arreglos;
extern const TablaDemo ArreglosProductos;
extern const TablaDemo Talleres;
extern const TablaDemo Formapago;
extern const TablaDemo Opciones;
extern const TablaDemo OpcionesTerminal;
extern const TablaDemo Impresoras;
extern const TablaDemo Configuracionregional;
extern const TablaDemo RelacionesFijas;
extern const TablaDemo Multitienda;
extern const TablaDemo Migraciontablas;
extern const TablaDemo Pasardatos;
extern const TablaDemo PreferenciasTerminal;
extern const TablaDemo PermisosListados;
extern const TablaDemo Listadostemporal;

/// All of them.
[[nodiscard]] std::span<const TablaDemo* const> todas();

} // namespace kestrane::demo::tablas
