#pragma once

#include "instalacion/esquema/columnas.h"

/// Sales, returns, debts and vouchers.
namespace kestrane::instalacion::tablas {

/// One row per sale.
inline constexpr ColumnaEsquema CabeceraFactura[] = {
    clave("Numero"),
    fecha("fechaventa"),
    fecha("fecha"),
    fecha("hora"),
    texto("tienda", 50),
    largo("cliente"),
    largo("empleado"),
    corto("pago"),
    doble("total"),
    doble("efectivo"),
    doble("tarjeta"),
    doble("descuento"),
    largo("num_albaran"),
    texto("caracteristicaventa", 10),
    logico("impuestoincluido"),
};

inline constexpr QLatin1StringView IndicesCabeceraFactura[] = {"fechaventa"_L1, "cliente"_L1};

/// A sale line, live, annulled or temporary.
inline constexpr ColumnaEsquema LineaVenta[] = {
    largo("num_factura"),   largo("codigo"),
    texto("tipo_venta", 6), texto("producto", 100),
    doble("unidades"),      doble("precio"),
    doble("Precio_unit"),   doble("impuesto"),
    doble("impuesto_2"),    doble("tipoimpuesto"),
    doble("descuento"),     texto("NombreEmpleado", 100),
    largo("codEmpleado"),   texto("codproductotextil", 20),
    largo("num_arreglo"),   texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesDetalleFactura[] = {"num_factura"_L1};

/// Sales taken out of the books; several may hold one number of 0 or less.
inline constexpr ColumnaEsquema CabeceraFacturaAnulaciones[] = {
    clave("Numero"),
    fecha("fechaventa"),
    fecha("fecha"),
    fecha("hora"),
    texto("tienda", 50),
    largo("cliente"),
    largo("empleado"),
    corto("pago"),
    doble("total"),
    doble("efectivo"),
    doble("tarjeta"),
    doble("descuento"),
    largo("num_albaran"),
    texto("caracteristicaventa", 10),
    logico("impuestoincluido"),
    logico("borrar"),
};

inline constexpr QLatin1StringView IndicesCabeceraFacturaAnulaciones[] = {"Numero"_L1, "fechaventa"_L1, "fecha"_L1, "cliente"_L1};

inline constexpr QLatin1StringView IndicesDetalleFacturaAnulaciones[] = {"num_factura"_L1};

/// Delivery notes not yet invoiced and other temporary sales.
inline constexpr ColumnaEsquema CabeceraFacturaTemp[] = {
    clave("Numero"), fecha("fecha"), largo("num_albaran"), largo("cliente"), largo("empleado"), corto("pago"),
};

inline constexpr QLatin1StringView IndicesCabeceraFacturaTemp[] = {"fecha"_L1};

inline constexpr QLatin1StringView IndicesDetalleFacturaTemp[] = {"num_factura"_L1};

/// One row per return; amounts are positive.
inline constexpr ColumnaEsquema CabeceraAbono[] = {
    clave("Numero"), largo("num_factura"), fecha("fechaventa"), fecha("hora"),      largo("cliente"),    corto("pago"),
    doble("total"),  doble("efectivo"),    doble("tarjeta"),    doble("descuento"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesCabeceraAbono[] = {"fechaventa"_L1, "num_factura"_L1, "cliente"_L1};

/// One row per returned line.
inline constexpr ColumnaEsquema DetalleAbono[] = {
    largo("num_abono"),
    largo("num_factura"),
    largo("codigo"),
    texto("tipo_venta", 6),
    texto("producto", 100),
    doble("unidades"),
    doble("precio"),
    doble("Precio_unit"),
    doble("impuesto"),
    doble("impuesto_2"),
    texto("NombreEmpleado", 100),
    largo("codempleado"),
    texto("codproductotextil", 20),
    largo("num_arreglo"),
    texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesDetalleAbono[] = {"num_abono"_L1, "num_factura"_L1};

/// One row per sale left unpaid.
inline constexpr ColumnaEsquema CabeceraPago[] = {
    clave("num_pago"), largo("num_factura"), largo("cliente"), largo("empleado"),
    doble("importe"),  fecha("fecha"),       corto("estado"),  texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesCabeceraPago[] = {"num_factura"_L1, "fecha"_L1, "estado"_L1};

/// One row per payment of a debt.
inline constexpr ColumnaEsquema DetallePago[] = {
    largo("num_pago"), fecha("fecha"),   doble("importe"),  corto("FORMA_pago"),
    doble("efectivo"), doble("tarjeta"), largo("empleado"), texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesDetallePago[] = {"num_pago"_L1, "fecha"_L1};

/// Split of a sale line among employees.
inline constexpr ColumnaEsquema VentasCompartidas[] = {
    largo("num_factura"),  largo("cod_detalle"), texto("tipo_venta", 6),
    largo("cod_empleado"), doble("importe"),     texto("tienda", 50),
};

inline constexpr QLatin1StringView IndicesVentasCompartidas[] = {"num_factura"_L1};

/// Discount vouchers; num_Factura_aplicado is null while unspent.
inline constexpr ColumnaEsquema ValesDescuento[] = {
    clave("Num_Factura"),
    fecha("Desde"),
    doble("Descuento"),
    largo("num_Factura_aplicado"),
};

inline constexpr QLatin1StringView IndicesValesDescuento[] = {"Num_Factura"_L1, "num_Factura_aplicado"_L1, "Desde"_L1};

inline constexpr TablaEsquema DeVentas[] = {
    {"cabecera_factura"_L1, CabeceraFactura, "Numero"_L1, IndicesCabeceraFactura},
    {"detalle_factura"_L1, LineaVenta, {}, IndicesDetalleFactura},
    {"cabecera_factura_anulaciones"_L1, CabeceraFacturaAnulaciones, {}, IndicesCabeceraFacturaAnulaciones},
    {"detalle_factura_anulaciones"_L1, LineaVenta, {}, IndicesDetalleFacturaAnulaciones},
    {"cabecera_factura_temp"_L1, CabeceraFacturaTemp, "Numero"_L1, IndicesCabeceraFacturaTemp},
    {"detalle_factura_temp"_L1, LineaVenta, {}, IndicesDetalleFacturaTemp},
    {"cabecera_abono"_L1, CabeceraAbono, "Numero"_L1, IndicesCabeceraAbono},
    {"detalle_abono"_L1, DetalleAbono, {}, IndicesDetalleAbono},
    {"cabecera_pago"_L1, CabeceraPago, "num_pago"_L1, IndicesCabeceraPago},
    {"detalle_pago"_L1, DetallePago, {}, IndicesDetallePago},
    {"ventas_compartidas"_L1, VentasCompartidas, {}, IndicesVentasCompartidas},
    {"vales_descuento"_L1, ValesDescuento, {}, IndicesValesDescuento},
};

} // namespace kestrane::instalacion::tablas
