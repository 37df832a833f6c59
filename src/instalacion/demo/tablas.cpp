#include "instalacion/demo/tablas.h"

#include <array>

namespace kestrane::demo::tablas {

namespace {

template<std::size_t N>
using Columnas = std::array<QLatin1StringView, N>;

constexpr QLatin1StringView operator""_c(const char* texto, std::size_t largo)
{
    return QLatin1StringView{texto, static_cast<qsizetype>(largo)};
}

constexpr Columnas<15> columnasCabeceraFactura{"Numero"_c,          "fechaventa"_c,
                                               "fecha"_c,           "hora"_c,
                                               "tienda"_c,          "cliente"_c,
                                               "empleado"_c,        "pago"_c,
                                               "total"_c,           "efectivo"_c,
                                               "tarjeta"_c,         "descuento"_c,
                                               "num_albaran"_c,     "caracteristicaventa"_c,
                                               "impuestoincluido"_c};

constexpr Columnas<16> columnasDetalleFactura{
    "num_factura"_c, "codigo"_c,     "tipo_venta"_c,   "producto"_c,  "unidades"_c,       "precio"_c,      "Precio_unit"_c,
    "impuesto"_c,    "impuesto_2"_c, "tipoimpuesto"_c, "descuento"_c, "NombreEmpleado"_c, "codEmpleado"_c, "codproductotextil"_c,
    "num_arreglo"_c, "tienda"_c};

constexpr Columnas<16> columnasCabeceraFacturaAnulaciones{"Numero"_c,
                                                          "fechaventa"_c,
                                                          "fecha"_c,
                                                          "hora"_c,
                                                          "tienda"_c,
                                                          "cliente"_c,
                                                          "empleado"_c,
                                                          "pago"_c,
                                                          "total"_c,
                                                          "efectivo"_c,
                                                          "tarjeta"_c,
                                                          "descuento"_c,
                                                          "num_albaran"_c,
                                                          "caracteristicaventa"_c,
                                                          "impuestoincluido"_c,
                                                          "borrar"_c};

constexpr Columnas<6> columnasCabeceraFacturaTemp{"Numero"_c, "fecha"_c, "num_albaran"_c, "cliente"_c, "empleado"_c, "pago"_c};

constexpr Columnas<11> columnasCabeceraAbono{"Numero"_c, "num_factura"_c, "fechaventa"_c, "hora"_c,      "cliente"_c, "pago"_c,
                                             "total"_c,  "efectivo"_c,    "tarjeta"_c,    "descuento"_c, "tienda"_c};

constexpr Columnas<15> columnasDetalleAbono{"num_abono"_c,         "num_factura"_c, "codigo"_c,         "tipo_venta"_c,
                                            "producto"_c,          "unidades"_c,    "precio"_c,         "Precio_unit"_c,
                                            "impuesto"_c,          "impuesto_2"_c,  "NombreEmpleado"_c, "codempleado"_c,
                                            "codproductotextil"_c, "num_arreglo"_c, "tienda"_c};

constexpr Columnas<8> columnasCabeceraPago{"num_pago"_c, "num_factura"_c, "cliente"_c, "empleado"_c,
                                           "importe"_c,  "fecha"_c,       "estado"_c,  "tienda"_c};

constexpr Columnas<8> columnasDetallePago{"num_pago"_c, "fecha"_c,   "importe"_c,  "FORMA_pago"_c,
                                          "efectivo"_c, "tarjeta"_c, "empleado"_c, "tienda"_c};

constexpr Columnas<6> columnasVentasCompartidas{"num_factura"_c,  "cod_detalle"_c, "tipo_venta"_c,
                                                "cod_empleado"_c, "importe"_c,     "tienda"_c};

constexpr Columnas<4> columnasValesDescuento{"Num_Factura"_c, "Desde"_c, "Descuento"_c, "num_Factura_aplicado"_c};

constexpr Columnas<4> columnasCajaInicial{"fecha"_c, "tienda"_c, "importe"_c, "empleado"_c};

constexpr Columnas<6> columnasGastos{"fecha"_c, "hora"_c, "tienda"_c, "motivo"_c, "importe"_c, "empleado"_c};

constexpr Columnas<5> columnasObservacioncaja{"fecha"_c, "hora"_c, "empleado"_c, "observacion"_c, "tienda"_c};

constexpr Columnas<11> columnasCabeceraBonos{"numbono"_c,     "num_factura"_c, "num_sesiones"_c, "cliente"_c,
                                             "servicio"_c,    "familia"_c,     "estado"_c,       "fecha_alta"_c,
                                             "fecha_desde"_c, "fecha_hasta"_c, "tienda"_c};

constexpr Columnas<4> columnasDetalleBono{"num_bono"_c, "fecha_consumo"_c, "empleado"_c, "tienda"_c};

constexpr Columnas<9> columnasAgenda{"num_cita"_c,    "cliente"_c, "empleado"_c, "servicio"_c, "fecha"_c,
                                     "hora_inicio"_c, "motivo"_c,  "anulado"_c,  "tienda"_c};

constexpr Columnas<19> columnasClientes{
    "codigo"_c,       "codigocliente"_c, "Nombre"_c,    "Apellidos"_c, "NIF"_c,   "Direccion"_c, "cp"_c,
    "poblacion"_c,    "provincia"_c,     "telefono1"_c, "telefono2"_c, "email"_c, "ingreso"_c,   "nacimiento"_c,
    "ultimavisita"_c, "dindep"_c,        "etiquetas"_c, "borrar"_c,    "tienda"_c};

constexpr Columnas<6> columnasObserclientes{"codcli"_c, "fecha"_c, "empleado"_c, "indice"_c, "observacion"_c, "tienda"_c};

constexpr Columnas<22> columnasEmpleados{
    "codigo"_c,       "Nombre"_c,          "Apellidos"_c, "baja"_c,      "mostrar_caja"_c, "posicion"_c,  "imagen"_c,
    "emp_color"_c,    "color"_c,           "Direccion"_c, "cp"_c,        "localidad"_c,    "provincia"_c, "telefono"_c,
    "telefono1"_c,    "fechanacimiento"_c, "fechaalta"_c, "fechabaja"_c, "dni"_c,          "ss"_c,        "categoria"_c,
    "observaciones"_c};

constexpr Columnas<4> columnasSueldos{"codEmpleado"_c, "volumen"_c, "sueldobase"_c, "valorvolumen"_c};

constexpr Columnas<15> columnasProductos{"codigo"_c,        "codigocliente"_c, "Nombre"_c,      "coste"_c,
                                         "precio"_c,        "stock"_c,         "stockminimo"_c, "stockConsumoInterno"_c,
                                         "seccion"_c,       "proveedor"_c,     "tipoprod"_c,    "modoVenta"_c,
                                         "mostrarencaja"_c, "borrar"_c,        "tienda"_c};

constexpr Columnas<2> columnasProductosCodigosextra{"codigo"_c, "codigo_extra"_c};

constexpr Columnas<9> columnasProductostextil{"codigopadre"_c, "codigohijo"_c, "codcliente"_c, "talla"_c, "color"_c,
                                              "coste"_c,       "precio"_c,     "impuesto"_c,   "stock"_c};

constexpr Columnas<4> columnasTallas{"codigo"_c, "nombre"_c, "descripcionCorta"_c, "borrar"_c};

constexpr Columnas<3> columnasColorestextil{"codigo"_c, "nombre"_c, "borrar"_c};

constexpr Columnas<3> columnasMarcas{"codigo"_c, "Nombre"_c, "borrar"_c};

constexpr Columnas<3> columnasDetallePrecio{"identificador"_c, "producto"_c, "precio"_c};

constexpr Columnas<11> columnasHistoricostock{"codigo"_c, "nombre"_c, "Cantidad"_c, "coste"_c,    "tipo"_c,  "descripciontipo"_c,
                                              "fecha"_c,  "pedido"_c, "ticket"_c,   "empleado"_c, "tienda"_c};

constexpr Columnas<14> columnasProveedores{"codigo"_c,   "codigocliente"_c, "Nombre"_c,   "Direccion"_c, "cp"_c,
                                           "telefono"_c, "fax"_c,           "contacto"_c, "nif"_c,       "prv_color"_c,
                                           "color"_c,    "imagen"_c,        "posicion"_c, "borrar"_c};

constexpr Columnas<8> columnasSeccion{"codigo"_c, "codigocliente"_c, "Nombre"_c,   "sec_color"_c,
                                      "color"_c,  "imagen"_c,        "posicion"_c, "borrar"_c};

constexpr Columnas<10> columnasServicios{"codigo"_c,        "codigocliente"_c, "nombre"_c, "seccion"_c, "posicion"_c,
                                         "mostrarencaja"_c, "duracion"_c,      "precio"_c, "iva"_c,     "borrar"_c};

constexpr Columnas<9> columnasFamilias{"codigo"_c,        "codigocliente"_c, "nombre"_c, "seccion"_c, "posicion"_c,
                                       "mostrarencaja"_c, "precio"_c,        "iva"_c,    "borrar"_c};

constexpr Columnas<2> columnasDetalleFamilia{"familia"_c, "servicio"_c};

constexpr Columnas<3> columnasDetallePackSpa{"codigo"_c, "codservicio"_c, "dia"_c};

constexpr Columnas<2> columnasPack{"codigo"_c, "seccion"_c};

constexpr Columnas<4> columnasServicepack{"codigo"_c, "codigocliente"_c, "nombre"_c, "borrar"_c};

constexpr Columnas<9> columnasArreglos{"codigo"_c, "codigocliente"_c, "nombre"_c,   "mostrarencaja"_c, "duracion"_c,
                                       "precio"_c, "preciopago"_c,    "impuesto"_c, "borrar"_c};

constexpr Columnas<6> columnasArreglosProductos{"num_arreglo"_c,          "cod_producto"_c,      "cod_taller"_c,
                                                "nom_cliente_recogida"_c, "telefono_recogida"_c, "recogido"_c};

constexpr Columnas<11> columnasTalleres{"codigo"_c, "codigocliente"_c, "nombre"_c,    "Direccion"_c, "cp"_c,    "telefono1"_c,
                                        "email"_c,  "contacto1"_c,     "contacto2"_c, "Cif"_c,       "borrar"_c};

constexpr Columnas<5> columnasFormapago{"codigo"_c, "codigocliente"_c, "Nombre"_c, "observaciones"_c, "borrar"_c};

constexpr Columnas<16> columnasOpciones{"Nombre"_c,      "Direccion"_c,    "Poblacion"_c,      "Provincia"_c,
                                        "CP"_c,          "Cif"_c,          "telefono"_c,       "moneda"_c,
                                        "Simbolo"_c,     "NumDecimales"_c, "tipo_programa"_c,  "UtilizaColores_empleados"_c,
                                        "multitienda"_c, "nombretienda"_c, "modulofacturas"_c, "iva"_c};

constexpr Columnas<3> columnasOpcionesTerminal{"identificador"_c, "terminal"_c, "empleado"_c};

constexpr Columnas<5> columnasImpresoras{"tipo"_c, "terminal"_c, "impresora"_c, "fuente"_c, "numcaracteres"_c};

constexpr Columnas<3> columnasConfiguracionregional{"nombre"_c, "bandera"_c, "Identificacion_Fiscal"_c};

constexpr Columnas<3> columnasRelacionesFijas{"indice"_c, "datoa"_c, "daton"_c};

constexpr Columnas<1> columnasMultitienda{"nombre"_c};

constexpr Columnas<3> columnasMigraciontablas{"tabla"_c, "estado"_c, "fecha"_c};

constexpr Columnas<4> columnasPasardatos{"terminal"_c, "texto2"_c, "indice"_c, "texto1"_c};

constexpr Columnas<5> columnasPreferenciasTerminal{"terminal"_c, "tema"_c, "letra"_c, "ancho"_c, "alto"_c};

constexpr Columnas<3> columnasPermisosListados{"empleado"_c, "control"_c, "permitido"_c};

constexpr Columnas<1> columnasListadostemporal{"list1"_c};

} // namespace

constexpr TablaDemo CabeceraFactura{"cabecera_factura"_c, columnasCabeceraFactura};
constexpr TablaDemo DetalleFactura{"detalle_factura"_c, columnasDetalleFactura};
constexpr TablaDemo CabeceraFacturaAnulaciones{"cabecera_factura_anulaciones"_c, columnasCabeceraFacturaAnulaciones};
constexpr TablaDemo DetalleFacturaAnulaciones{"detalle_factura_anulaciones"_c, columnasDetalleFactura};
constexpr TablaDemo CabeceraFacturaTemp{"cabecera_factura_temp"_c, columnasCabeceraFacturaTemp};
constexpr TablaDemo DetalleFacturaTemp{"detalle_factura_temp"_c, columnasDetalleFactura};
constexpr TablaDemo CabeceraAbono{"cabecera_abono"_c, columnasCabeceraAbono};
constexpr TablaDemo DetalleAbono{"detalle_abono"_c, columnasDetalleAbono};
constexpr TablaDemo CabeceraPago{"cabecera_pago"_c, columnasCabeceraPago};
constexpr TablaDemo DetallePago{"detalle_pago"_c, columnasDetallePago};
constexpr TablaDemo VentasCompartidas{"ventas_compartidas"_c, columnasVentasCompartidas};
constexpr TablaDemo ValesDescuento{"vales_descuento"_c, columnasValesDescuento};
constexpr TablaDemo CajaInicial{"caja_inicial"_c, columnasCajaInicial};
constexpr TablaDemo Gastos{"gastos"_c, columnasGastos};
constexpr TablaDemo Retiradas{"retiradas"_c, columnasCajaInicial};
constexpr TablaDemo Observacioncaja{"observacioncaja"_c, columnasObservacioncaja};
constexpr TablaDemo CabeceraBonos{"cabecera_bonos"_c, columnasCabeceraBonos};
constexpr TablaDemo DetalleBono{"detalle_bono"_c, columnasDetalleBono};
constexpr TablaDemo Agenda{"agenda"_c, columnasAgenda};
constexpr TablaDemo Clientes{"clientes"_c, columnasClientes};
constexpr TablaDemo Obserclientes{"obserclientes"_c, columnasObserclientes};
constexpr TablaDemo Empleados{"empleados"_c, columnasEmpleados};
constexpr TablaDemo Sueldos{"sueldos"_c, columnasSueldos};
constexpr TablaDemo Productos{"productos"_c, columnasProductos};
constexpr TablaDemo ProductosCodigosextra{"productos_codigosextra"_c, columnasProductosCodigosextra};
constexpr TablaDemo Productostextil{"productostextil"_c, columnasProductostextil};
constexpr TablaDemo Tallas{"tallas"_c, columnasTallas};
constexpr TablaDemo Colorestextil{"colorestextil"_c, columnasColorestextil};
constexpr TablaDemo Marcas{"marcas"_c, columnasMarcas};
constexpr TablaDemo DetallePrecio{"detalle_precio"_c, columnasDetallePrecio};
constexpr TablaDemo Historicostock{"historicostock"_c, columnasHistoricostock};
constexpr TablaDemo Proveedores{"proveedores"_c, columnasProveedores};
constexpr TablaDemo Seccion{"seccion"_c, columnasSeccion};
constexpr TablaDemo Servicios{"servicios"_c, columnasServicios};
constexpr TablaDemo Familias{"familias"_c, columnasFamilias};
constexpr TablaDemo DetalleFamilia{"detalle_familia"_c, columnasDetalleFamilia};
constexpr TablaDemo CabeceraPackSpa{"cabecera_pack_spa"_c, columnasFamilias};
constexpr TablaDemo DetallePackSpa{"detalle_pack_spa"_c, columnasDetallePackSpa};
constexpr TablaDemo Pack{"pack"_c, columnasPack};
constexpr TablaDemo Servicepack{"servicepack"_c, columnasServicepack};
constexpr TablaDemo Arreglos{"arreglos"_c, columnasArreglos};
constexpr TablaDemo ArreglosProductos{"arreglos_productos"_c, columnasArreglosProductos};
constexpr TablaDemo Talleres{"talleres"_c, columnasTalleres};
constexpr TablaDemo Formapago{"formapago"_c, columnasFormapago};
constexpr TablaDemo Opciones{"opciones"_c, columnasOpciones};
constexpr TablaDemo OpcionesTerminal{"opciones_terminal"_c, columnasOpcionesTerminal};
constexpr TablaDemo Impresoras{"impresoras"_c, columnasImpresoras};
constexpr TablaDemo Configuracionregional{"configuracionregional"_c, columnasConfiguracionregional};
constexpr TablaDemo RelacionesFijas{"relaciones_fijas"_c, columnasRelacionesFijas};
constexpr TablaDemo Multitienda{"multitienda"_c, columnasMultitienda};
constexpr TablaDemo Migraciontablas{"migraciontablas"_c, columnasMigraciontablas};
constexpr TablaDemo Pasardatos{"pasardatos"_c, columnasPasardatos};
constexpr TablaDemo PreferenciasTerminal{"preferencias_terminal"_c, columnasPreferenciasTerminal};
constexpr TablaDemo PermisosListados{"permisos_listados"_c, columnasPermisosListados};
constexpr TablaDemo Listadostemporal{"listadostemporal"_c, columnasListadostemporal};

std::span<const TablaDemo* const> todas()
{
    static constexpr std::array lista{&CabeceraFactura,
                                      &DetalleFactura,
                                      &CabeceraFacturaAnulaciones,
                                      &DetalleFacturaAnulaciones,
                                      &CabeceraFacturaTemp,
                                      &DetalleFacturaTemp,
                                      &CabeceraAbono,
                                      &DetalleAbono,
                                      &CabeceraPago,
                                      &DetallePago,
                                      &VentasCompartidas,
                                      &ValesDescuento,
                                      &CajaInicial,
                                      &Gastos,
                                      &Retiradas,
                                      &Observacioncaja,
                                      &CabeceraBonos,
                                      &DetalleBono,
                                      &Agenda,
                                      &Clientes,
                                      &Obserclientes,
                                      &Empleados,
                                      &Sueldos,
                                      &Productos,
                                      &ProductosCodigosextra,
                                      &Productostextil,
                                      &Tallas,
                                      &Colorestextil,
                                      &Marcas,
                                      &DetallePrecio,
                                      &Historicostock,
                                      &Proveedores,
                                      &Seccion,
                                      &Servicios,
                                      &Familias,
                                      &DetalleFamilia,
                                      &CabeceraPackSpa,
                                      &DetallePackSpa,
                                      &Pack,
                                      &Servicepack,
                                      &Arreglos,
                                      &ArreglosProductos,
                                      &Talleres,
                                      &Formapago,
                                      &Opciones,
                                      &OpcionesTerminal,
                                      &Impresoras,
                                      &Configuracionregional,
                                      &RelacionesFijas,
                                      &Multitienda,
                                      &Migraciontablas,
                                      &Pasardatos,
                                      &PreferenciasTerminal,
                                      &PermisosListados,
                                      &Listadostemporal};
    return lista;
}

} // namespace kestrane::demo::tablas
