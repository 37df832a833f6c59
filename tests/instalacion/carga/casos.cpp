#include "instalacion/carga/casos.h"

namespace kestrane::instalacion {

namespace {

using enum Casos::Quienes;

// Parts of statements that come back: the sales of the month with their lines, the same of annulled sales that count, of returns.
#define VENTAS "cabecera_factura c JOIN detalle_factura d ON d.num_factura = c.numero WHERE c.fechaventa >= '2024-05-15' AND "
#define ANULADAS                                                                                                                   \
    "cabecera_factura_anulaciones c JOIN detalle_factura_anulaciones d ON d.num_factura = c.numero "                               \
    "WHERE (c.numero <= 0 OR c.borrar = -1) AND c.fechaventa >= '2024-05-15' AND "
#define DEVUELTAS "cabecera_abono c JOIN detalle_abono d ON d.num_abono = c.numero WHERE c.fechaventa >= '2024-05-15' AND "
#define NOTAS "cabecera_factura_temp c JOIN detalle_factura_temp d ON d.num_factura = c.numero WHERE c.num_albaran > 0 AND "
#define DE_HOY "c.fechaventa = '2024-06-14' AND "

constexpr Casos casos[] = {
    {"line of service", Todos, VENTAS "d.tipo_venta = 'S' AND d.codigo <> 2"},
    {"line of product", Todos, VENTAS "d.tipo_venta = 'P'"},
    {"bono of a service", ConBonos, VENTAS "d.tipo_venta = 'B'"},
    {"session of a bono", ConBonos, VENTAS "d.tipo_venta = 'CB'"},
    {"pack with its services", Todos, VENTAS "d.tipo_venta = 'SF'"},
    {"pack", Todos, VENTAS "d.tipo_venta = 'F'"},
    {"bono of a pack", ConBonos, VENTAS "d.tipo_venta = 'BF'"},
    {"session of a bono of a pack", ConBonos, VENTAS "d.tipo_venta = 'CBF'"},
    {"service in the session of a pack", ConBonos, VENTAS "d.tipo_venta = 'CSF'"},
    {"spa pack", ConSpa, VENTAS "d.tipo_venta = 'PSPA'"},
    {"day of a spa pack", ConSpa, VENTAS "d.tipo_venta = 'CPSPA'"},
    {"money paid into a deposit", Todos, VENTAS "d.tipo_venta = 'S' AND d.codigo = 2"},
    {"product by weight", DeComida, VENTAS "d.unidades <> CAST(d.unidades AS INTEGER)"},
    {"variant of a product", ConTallas, VENTAS "d.codproductotextil <> '-1'"},
    {"line with a repair", ConTallas, VENTAS "d.num_arreglo > 0"},
    {"service without a repair", ConTallas, VENTAS "d.tipo_venta = 'S' AND d.codigo <> 2 AND d.num_arreglo = 0"},
    {"name of a product beyond fifty characters", Todos, VENTAS "d.tipo_venta = 'P' AND length(d.producto) > 50"},
    {"second rate of tax", Todos,
     VENTAS "d.precio > 0 AND d.tipoimpuesto > 0 AND d.tipoimpuesto <> (SELECT max(tipoimpuesto) FROM detalle_factura)"},
    {"second amount of tax", Comercios, VENTAS "d.impuesto_2 > 0"},
    {"tax on top of the price", Comercios, VENTAS "c.impuestoincluido = 0"},
    {"discount", Todos, VENTAS "d.descuento > 0"},
    {"one code on two lines of a sale", Comercios,
     "(SELECT num_factura FROM detalle_factura WHERE tipo_venta = 'P' GROUP BY num_factura, codigo HAVING count(*) > 1)"},

    {"paid in cash", Todos, VENTAS DE_HOY "c.pago = 1"},
    {"paid by card", Todos, VENTAS DE_HOY "c.pago = 2"},
    {"paid with both", Todos, VENTAS DE_HOY "c.pago = 3"},
    {"paid from the deposit", Todos, VENTAS "c.pago = 4"},
    {"paid in a way that has only a name", Todos, VENTAS "c.pago > 4"},
    {"product paid from the deposit", Comercios, VENTAS "c.pago = 4 AND d.tipo_venta = 'P'"},
    {"service paid from the deposit", Salones, VENTAS "c.pago = 4 AND d.tipo_venta = 'S'"},

    {"ticket without lines", Todos, "cabecera_factura WHERE numero NOT IN (SELECT num_factura FROM detalle_factura)"},
    {"return rung up as a sale", Todos,
     "cabecera_factura WHERE caracteristicaventa = 'DV' AND (num_albaran IS NULL OR num_albaran = 0)"},
    {"return rung up as a sale, from a note", Comercios, "cabecera_factura WHERE caracteristicaventa = 'DV' AND num_albaran > 0"},
    {"sale from a note", Comercios, "cabecera_factura WHERE num_albaran > 0 AND caracteristicaventa IS NULL"},
    {"sale to nobody known", Todos, "cabecera_factura WHERE cliente = 0"},
    {"sale to a client without a card", Todos,
     "cabecera_factura WHERE cliente > 0 AND cliente NOT IN (SELECT codigo FROM clientes)"},
    {"sale to a client who was deleted", Todos, "cabecera_factura JOIN clientes ON codigo = cliente WHERE borrar = -1"},
    {"sale without its store", Todos, "cabecera_factura WHERE tienda IS NULL"},
    {"line without its store", Todos, "detalle_factura WHERE tienda IS NULL"},
    {"invoice of a later day", Todos, "cabecera_factura WHERE fecha > fechaventa"},
    {"invoice without a day", Todos, "cabecera_factura WHERE fecha IS NULL"},
    {"store found by the end of another's name", Todos, "cabecera_factura WHERE tienda = 'Gran Centro'"},

    {"line shared by two", Todos, VENTAS "d.codempleado = -1"},
    {"shares of an annulled line", Todos,
     ANULADAS "EXISTS (SELECT 1 FROM ventas_compartidas v WHERE v.num_factura = c.numero AND v.cod_detalle = d.codigo)"},

    {"annulled service", Todos, ANULADAS "d.tipo_venta = 'S' AND d.codigo <> 2"},
    {"annulled product", Todos, ANULADAS "d.tipo_venta = 'P'"},
    {"annulled bono, with its sessions", ConBonos,
     ANULADAS "d.tipo_venta = 'B' AND EXISTS (SELECT 1 FROM cabecera_bonos b WHERE b.num_factura = c.numero)"},
    {"annulled session", ConBonos, ANULADAS "d.tipo_venta = 'CB'"},
    {"annulled pack", Todos, ANULADAS "d.tipo_venta = 'F'"},
    {"annulled service of a pack", Todos, ANULADAS "d.tipo_venta = 'SF'"},
    {"annulled bono of a pack", ConBonos, ANULADAS "d.tipo_venta = 'BF'"},
    {"annulled session of a pack", ConBonos, ANULADAS "d.tipo_venta = 'CBF'"},
    {"annulled service in a session", ConBonos, ANULADAS "d.tipo_venta = 'CSF'"},
    {"annulled spa pack", ConSpa, ANULADAS "d.tipo_venta = 'PSPA'"},
    {"annulled day of a spa pack", ConSpa, ANULADAS "d.tipo_venta = 'CPSPA'"},
    {"annulled money into a deposit", Todos, ANULADAS "d.tipo_venta = 'S' AND d.codigo = 2"},
    {"annulled sale from the deposit", Todos, ANULADAS "c.pago = 4"},
    {"annulled sale with the tax on top", Todos, ANULADAS "c.impuestoincluido = 0"},
    {"annulled sale with a debt", Todos, ANULADAS "EXISTS (SELECT 1 FROM cabecera_pago p WHERE p.num_factura = c.numero)"},
    {"annulled repair", ConTallas, ANULADAS "d.num_arreglo > 0"},
    {"annulled discount", Todos,
     "cabecera_factura_anulaciones c JOIN detalle_factura_anulaciones d ON d.num_factura = c.numero "
     "WHERE (c.numero <= 0 OR c.borrar = -1) AND d.unidades * d.precio_unit > d.precio"},
    {"annulled by a number below zero", Todos, "cabecera_factura_anulaciones WHERE numero < 0"},
    {"annulled by the number zero", Todos, "cabecera_factura_anulaciones WHERE numero = 0"},
    {"annulled by a mark", Todos, "cabecera_factura_anulaciones WHERE numero > 0 AND borrar = -1"},
    {"neither number nor mark", Todos, "cabecera_factura_anulaciones WHERE numero > 0 AND borrar = 0"},
    {"annulled on a later day", Todos, "cabecera_factura_anulaciones WHERE fecha > fechaventa"},
    {"annulled, of a day that is lost", Todos, "cabecera_factura_anulaciones WHERE fechaventa IS NULL"},
    {"annulled line without a kind", Todos, "detalle_factura_anulaciones WHERE tipo_venta IS NULL"},

    {"returned product", Todos, DEVUELTAS "d.tipo_venta = 'P'"},
    {"returned service", Todos, DEVUELTAS "d.tipo_venta = 'S'"},
    {"returned money of a deposit", Todos, "detalle_abono WHERE tipo_venta = 'S' AND codigo = 2"},
    {"returned bono", ConBonos, "detalle_abono WHERE tipo_venta = 'B'"},
    {"returned session", ConBonos, "detalle_abono WHERE tipo_venta = 'CB'"},
    {"returned pack", Todos, "detalle_abono WHERE tipo_venta = 'F'"},
    {"returned bono of a pack", ConBonos, "detalle_abono WHERE tipo_venta = 'BF'"},
    {"returned session of a pack", ConBonos, "detalle_abono WHERE tipo_venta = 'CBF'"},
    {"returned service in a session", ConBonos, "detalle_abono WHERE tipo_venta = 'CSF'"},
    {"returned spa pack", ConSpa, "detalle_abono WHERE tipo_venta = 'PSPA'"},
    {"returned day of a spa pack", ConSpa, "detalle_abono WHERE tipo_venta = 'CPSPA'"},
    {"returned repair", ConTallas, "detalle_abono WHERE num_arreglo > 0"},
    {"returned shared line", Todos, "detalle_abono WHERE codempleado = -1"},
    {"return without a second amount of tax", Todos, "detalle_abono WHERE impuesto_2 IS NULL"},
    {"return of a sale paid with both", Todos, "cabecera_abono WHERE pago = 3 AND efectivo > 0 AND tarjeta > 0"},
    {"return into the deposit", Todos, "cabecera_abono WHERE pago = 4"},
    {"second return of a sale", Todos, "(SELECT num_factura FROM cabecera_abono GROUP BY num_factura HAVING count(*) > 1)"},
    {"second return of one code of a sale", Comercios,
     "(SELECT num_factura FROM detalle_abono GROUP BY num_factura, codigo HAVING count(DISTINCT num_abono) > 1)"},
    {"return with the number of a returned sale", Todos,
     "cabecera_abono a JOIN detalle_abono d ON d.num_factura = a.numero WHERE a.fechaventa = '2024-06-14'"},
    {"return with another number", Todos,
     "cabecera_abono WHERE fechaventa = '2024-06-14' AND numero NOT IN (SELECT num_factura FROM detalle_abono)"},
    {"return for a voucher", Comercios, "cabecera_abono WHERE num_factura IN (SELECT num_factura FROM vales_descuento)"},
    {"voucher spent", Comercios, "vales_descuento WHERE num_factura_aplicado > 0"},
    {"voucher not spent", Comercios, "vales_descuento WHERE num_factura_aplicado IS NULL"},

    {"debt of today", Todos, "cabecera_pago WHERE fecha = '2024-06-14'"},
    {"debt that is open", Todos, "cabecera_pago WHERE estado = 0"},
    {"debt that is settled", Todos, "cabecera_pago WHERE estado <> 0"},
    {"debt paid in part", Todos, "cabecera_pago WHERE estado = 0 AND num_pago IN (SELECT num_pago FROM detalle_pago)"},
    {"debt of a sale paid with both", Todos, VENTAS DE_HOY "c.pago = 3 AND c.numero IN (SELECT num_factura FROM cabecera_pago)"},
    {"debt paid with both", Todos, "detalle_pago WHERE forma_pago = 3 AND efectivo > 0 AND tarjeta > 0"},
    {"debt whose text just fits", Todos,
     "(SELECT p.num_pago FROM cabecera_pago p JOIN detalle_factura d ON d.num_factura = p.num_factura WHERE p.estado = 0 "
     "GROUP BY p.num_pago HAVING sum(length(d.producto) + 3) - 3 BETWEEN 253 AND 255)"},
    {"debt whose text is cut", Todos,
     "(SELECT p.num_pago FROM cabecera_pago p JOIN detalle_factura d ON d.num_factura = p.num_factura WHERE p.estado = 0 "
     "GROUP BY p.num_pago HAVING sum(length(d.producto) + 3) - 3 > 255)"},

    {"note", Todos, NOTAS "d.tipo_venta IN ('S', 'P')"},
    {"note paid from the deposit", Comercios, NOTAS "c.pago = 4"},
    {"pack in a note", Comercios, NOTAS "d.tipo_venta = 'F'"},
    {"old pack in a note", Comercios, NOTAS "d.tipo_venta = 'SP'"},
    {"parked ticket", Todos, "cabecera_factura_temp WHERE num_albaran IS NULL OR num_albaran = 0"},

    {"opening cash of today", Todos, "caja_inicial WHERE fecha = '2024-06-14'"},
    {"expense of today", Todos, "gastos WHERE fecha = '2024-06-14'"},
    {"expense of nobody", Todos, "gastos WHERE empleado NOT IN (SELECT codigo FROM empleados)"},
    {"expense without a time", Todos, "gastos WHERE hora IS NULL"},
    {"withdrawal of today", Todos, "retiradas WHERE fecha = '2024-06-14'"},
    {"remark of today", Todos, "observacioncaja WHERE fecha = '2024-06-14'"},
    {"remark on a client with the sign", Todos, "obserclientes WHERE observacion LIKE '%¬%'"},

    {"bono that is active", ConBonos, "cabecera_bonos WHERE estado = 0"},
    {"bono that has lapsed", ConBonos, "cabecera_bonos WHERE estado = -1"},
    {"appointment to come", Todos, "agenda WHERE fecha > '2024-06-14'"},
    {"appointment cancelled", Todos, "agenda WHERE anulado = -1"},
    {"appointment with only a text", Todos, "agenda WHERE servicio = 0 AND motivo IS NOT NULL"},
    {"repair that waits", ConTallas, "arreglos_productos WHERE recogido = 0"},
    {"repair that was collected", ConTallas, "arreglos_productos WHERE recogido = -1"},

    {"product below its minimum", Todos, "productos WHERE stock < stockminimo"},
    {"product without a supplier", Todos, "productos WHERE proveedor NOT IN (SELECT codigo FROM proveedores)"},
    {"product without a code", Todos, "productos WHERE codigocliente IS NULL"},
    {"product without a price", Todos, "productos WHERE precio IS NULL"},
    {"deleted product", Todos, "productos WHERE borrar = -1"},
    {"movement of a product without a card", Todos, "historicostock WHERE codigo NOT IN (SELECT codigo FROM productos)"},
    {"direct entry", Todos, "historicostock WHERE descripciontipo = 1 AND (pedido IS NULL OR pedido = 0)"},
    {"entry of an order", Todos, "historicostock WHERE descripciontipo = 1 AND pedido > 0"},
    {"deleted service", Todos, "servicios WHERE borrar = -1"},
    {"deleted pack", Todos, "familias WHERE borrar = -1"},
    {"deleted spa pack", ConSpa, "cabecera_pack_spa WHERE borrar = -1"},
    {"deleted repair", ConTallas, "arreglos WHERE borrar = -1"},
    {"deleted workshop", ConTallas, "talleres WHERE borrar = -1"},
    {"workshop without contacts", ConTallas, "talleres WHERE borrar = 0 AND contacto1 = '' AND contacto2 = ''"},
    {"deleted old pack", Todos, "servicepack WHERE borrar = -1"},
    {"deleted supplier", Todos, "proveedores WHERE borrar = -1"},
    {"deleted section", Todos, "seccion WHERE borrar = -1"},
    {"section without a name", Todos, "seccion WHERE nombre IS NULL AND borrar = 0"},
    {"section with a picture", Todos, "seccion WHERE imagen IS NOT NULL"},
    {"supplier with a picture", Todos, "proveedores WHERE imagen IS NOT NULL"},
    {"section that has a colour but none is given", Todos, "seccion WHERE sec_color = '-1' AND color IS NULL"},
    {"supplier that has a colour but none is given", Todos, "proveedores WHERE prv_color = '-1' AND color IS NULL"},
    {"employee who has a colour but none is given", Todos, "empleados WHERE emp_color = '-1' AND (color IS NULL OR color = '')"},
    {"sections in another order than their codes", Todos,
     "seccion a JOIN seccion b ON a.codigo < b.codigo AND a.posicion > b.posicion"},
    {"employees in another order than their codes", Todos,
     "empleados a JOIN empleados b ON a.codigo < b.codigo AND a.posicion > b.posicion"},
    {"employee who left", Todos, "empleados WHERE baja = -1"},
    {"employee without surnames", Todos, "empleados WHERE apellidos IS NULL AND baja = 0"},
    {"employee without pay steps", Todos, "empleados WHERE codigo NOT IN (SELECT codempleado FROM sueldos)"},

    {"call from another program for this terminal", Todos, "pasardatos WHERE terminal = 'caja1' AND texto2 = 'Listado'"},
    {"call for another terminal", Todos, "pasardatos WHERE terminal <> 'caja1'"},
    {"call for a section that is not there", Todos, "pasardatos WHERE terminal = 'caja1' AND texto1 = 'LstNoExiste'"},
    {"terminal of an employee who may not do everything", Todos,
     "opciones_terminal JOIN permisos_listados ON opciones_terminal.empleado = permisos_listados.empleado WHERE permitido = 0"},
};

#undef VENTAS
#undef ANULADAS
#undef DEVUELTAS
#undef NOTAS
#undef DE_HOY

} // namespace

std::span<const Casos> casosDeLaDemo()
{
    return casos;
}

} // namespace kestrane::instalacion
