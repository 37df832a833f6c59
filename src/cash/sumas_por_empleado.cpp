#include "cash/sumas_por_empleado.h"

#include "cash/vocabulary/alcance.h"
#include "pipeline/fragmentos_sql.h"

#include <QStringBuilder>

namespace kestrane {

using namespace Qt::StringLiterals;

constexpr SumaPorEmpleado sumas::Productos{
    .vendido = {u"detalle_factura.tipo_venta='P'", u"   and cabecera_Factura.pago <>4  and cabecera_factura.tienda like "},
    .devuelto = {u"detalle_abono.tipo_venta='P'", u"   and cabecera_abono.pago <>4  and cabecera_abono.tienda like "},
    .anulado = {u"detalle_factura_anulaciones.tipo_venta='P'", u"   and cabecera_factura_anulaciones.pago <>4 "},
};

constexpr SumaPorEmpleado sumas::Servicios{
    .vendido = {u"(detalle_factura.tipo_venta='S' and detalle_factura.codigo <>2) or detalle_factura.tipo_venta='B' or"
                " detalle_factura.tipo_venta='CB' or detalle_factura.tipo_venta='CPSPA'",
                u"   and cabecera_Factura.pago <>4 "
                "   and detalle_factura.codempleado <> -1 "
                "   and cabecera_Factura.tienda like "},
    .devuelto = {u"detalle_abono.tipo_venta='S' or detalle_abono.tipo_venta='B' or detalle_abono.tipo_venta='CB' or"
                 " detalle_abono.tipo_venta='CPSPA'",
                 u"   and cabecera_abono.pago <>4 "
                 "   and cabecera_abono.tienda like "},
    .anulado = {u"(detalle_factura_anulaciones.tipo_venta='S' and detalle_factura_anulaciones.codigo <>2) or"
                " detalle_factura_anulaciones.tipo_venta='B' or detalle_factura_anulaciones.tipo_venta='CB' or"
                " detalle_factura_anulaciones.tipo_venta='CPSPA'",
                u"   and cabecera_factura_anulaciones.pago <>4 "
                "   and detalle_Factura_anulaciones.codempleado <> -1 "},
};

constexpr SumaPorEmpleado sumas::IngresosEnDeposito{
    .vendido = {u"detalle_factura.tipo_venta='S' and detalle_factura.codigo =2", u"   and cabecera_Factura.tienda like "},
    .devuelto = {u"detalle_abono.tipo_venta='S' and detalle_abono.codigo =2", u"   and cabecera_abono.tienda like "},
    .anulado = {u"detalle_factura_anulaciones.tipo_venta='S' and detalle_factura_anulaciones.codigo =2", u""},
};

constexpr SumaPorEmpleado sumas::Packs{
    .vendido = {u"detalle_factura.tipo_venta='F' or detalle_factura.tipo_venta='BF' or detalle_factura.tipo_venta='CBF'",
                u"   and cabecera_Factura.pago <>4 "
                "   and cabecera_Factura.tienda like "},
    .devuelto = {u"detalle_abono.tipo_venta='F' or detalle_abono.tipo_venta='BF' or detalle_abono.tipo_venta='CBF'",
                 u"   and cabecera_abono.pago <>4 "
                 "   and cabecera_abono.tienda like "},
    .anulado = {u"detalle_factura_anulaciones.tipo_venta='F' or detalle_factura_anulaciones.tipo_venta='BF' or"
                " detalle_factura_anulaciones.tipo_venta='CBF'",
                u"   and cabecera_factura_anulaciones.pago <>4 "},
};

constexpr SumaPorEmpleado sumas::PacksSpa{
    .vendido = {u"detalle_factura.tipo_venta='PSPA'", u"   and cabecera_Factura.pago <>4 "
                                                      "   and cabecera_Factura.tienda like "},
    .devuelto = {u"detalle_abono.tipo_venta='PSPA'", u"   and cabecera_abono.pago <>4 "
                                                     "   and cabecera_abono.tienda like "},
    .anulado = {u"detalle_factura_anulaciones.tipo_venta='PSPA'", u"   and cabecera_factura_anulaciones.pago <>4 "},
};

QString sentenciaVendido(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma)
{
    const auto& [tipos, resto] = suma.vendido;
    return u"Select sum(detalle_factura.precio) as total,detalle_factura.codEmpleado "
           "  from cabecera_Factura,detalle_factura "
           " where cabecera_Factura.fechaventa between "_s %
           entreFechas(contexto) % u"   and cabecera_Factura.numero= detalle_factura.num_factura"_s % u"   and ("_s % tipos % u')' %
           resto % patronTienda(contexto) % u" and detalle_factura.tienda like "_s % patronTienda(contexto) %
           u" group by detalle_factura.codEmpleado"_s;
}

QString sentenciaDevuelto(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma)
{
    const auto& [tipos, resto] = suma.devuelto;
    return u"Select sum(detalle_abono.precio) as total,detalle_abono.codempleado "
           "  from cabecera_abono,detalle_abono "
           " where cabecera_abono.fechaventa between "_s %
           entreFechas(contexto) % u"   and cabecera_abono.numero= detalle_abono.num_factura"_s % u"   and ("_s % tipos % u')' %
           resto % patronTienda(contexto) % u" and detalle_abono.tienda like "_s % patronTienda(contexto) %
           u" group by detalle_abono.codempleado"_s;
}

QString sentenciaAnulado(const ContextoEjecucion& contexto, const SumaPorEmpleado& suma)
{
    const auto& [tipos, resto] = suma.anulado;
    QString tiendas;
    if (limitaLineasAnuladas(contexto))
        tiendas = u"  and detalle_factura_anulaciones.tienda like "_s % patronTienda(contexto) %
                  u" and cabecera_Factura_anulaciones.tienda like "_s % patronTienda(contexto);
    return u"Select sum(detalle_factura_anulaciones.precio) as total,detalle_factura_anulaciones.codEmpleado "
           "  from cabecera_factura_anulaciones,detalle_factura_anulaciones "
           " where (cabecera_factura_anulaciones.numero <=0 or cabecera_factura_anulaciones.borrar = -1 )  "
           "   and cabecera_factura_anulaciones.fechaventa between "_s %
           entreFechas(contexto) % u"   and cabecera_factura_anulaciones.numero= detalle_factura_anulaciones.num_factura"_s %
           u"   and ("_s % tipos % u')' % resto % tiendas % u" group by detalle_factura_anulaciones.codEmpleado"_s;
}

} // namespace kestrane
