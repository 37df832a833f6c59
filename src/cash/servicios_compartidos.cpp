#include "cash/servicios_compartidos.h"

#include "cash/vocabulary/compartidas.h"
#include "cash/vocabulary/nombres.h"
#include "pipeline/fragmentos_sql.h"

#include <optional>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QString sentenciaDeLineas(const ContextoEjecucion& contexto)
{
    return u"Select detalle_factura.codigo, "
           "       detalle_factura.num_factura, "
           "       detalle_factura.tipo_venta, "
           "       detalle_factura.precio "
           "  from cabecera_factura,detalle_factura "
           " where cabecera_Factura.fechaventa between "_s +
           entreFechas(contexto) +
           u"   and detalle_factura.CODEMPLEADO= -1 "
           "   and cabecera_Factura.pago <>4 "
           "   and detalle_factura.num_factura = cabecera_Factura.numero "
           "   and (detalle_factura.tipo_venta='S' or detalle_factura.tipo_venta='B' or detalle_factura.tipo_venta='CB' or"
           " detalle_factura.tipo_venta='CPSPA')"
           "   and cabecera_Factura.tienda like "_s +
           patronTienda(contexto) + u" and detalle_factura.tienda like "_s + patronTienda(contexto);
}

QString sentenciaDePartes(const ContextoEjecucion& contexto)
{
    return u"Select ventas_compartidas.num_factura,ventas_compartidas.cod_empleado,"
           " ventas_compartidas.cod_detalle,ventas_compartidas.tipo_venta,ventas_compartidas.importe "
           "  from ventas_compartidas, cabecera_Factura_anulaciones "
           " where (cabecera_Factura_anulaciones.numero <=0 or cabecera_Factura_anulaciones.borrar=-1) "
           "   and cabecera_Factura_anulaciones.fechaventa between "_s +
           entreFechas(contexto) +
           u"   and cabecera_Factura_anulaciones.numero= ventas_compartidas.num_factura"
           "   and cabecera_Factura_anulaciones.pago <>4 "
           "   and (ventas_compartidas.tipo_venta='S' or ventas_compartidas.tipo_venta='B' or ventas_compartidas.tipo_venta='CB' or"
           " ventas_compartidas.tipo_venta='CPSPA')"
           "  and cabecera_Factura_anulaciones.tienda like "_s +
           patronTienda(contexto);
}

/// The shares of one line.
struct Grupo
{
    qint32 factura = 0;
    qint32 codigo = 0;
    QString nombre;
    QString clave;
    double importe = 0;

    /// Whether a share is one of the same line.
    [[nodiscard]] bool sigueCon(Recordset& parte) const
    {
        return factura == parte.Fields(u"num_factura").entero32() && codigo == parte.Fields(u"cod_Detalle").entero32();
    }

    void junta(const Grupo& parte)
    {
        nombre += u" (Compartido con) "_s + parte.nombre;
        clave += u',' + parte.clave;
        importe += parte.importe;
    }
};

Grupo grupoDe(Listados& listados, Recordset& parte)
{
    const Valor empleado = parte.Fields(u"cod_empleado");
    return {parte.Fields(u"num_factura").entero32(), parte.Fields(u"cod_Detalle").entero32(),
            NombreCortoEmpleado(listados, empleado), listados.texto(empleado), parte.Fields(u"importe").doble()};
}

} // namespace

void sumaServiciosCompartidos(Listados& listados, Vendedores& vendedores)
{
    Recordset lineas;
    lineas.Open(sentenciaDeLineas(listados.contexto), listados.contexto.ConexionTienda);
    if (lineas.RecordCount() <= 0)
        return;
    for (Recordset& linea : lineas) {
        const LineaCompartida compartida{linea.Fields(u"num_factura"), linea.Fields(u"codigo"),
                                         listados.texto(linea.Fields(u"tipo_venta"))};
        const QString nombre = EmpleadosCompartida(listados, compartida);
        vendedores.comparte(CodigosCompartida(listados, compartida), nombre, linea.Fields(u"precio"));
    }
}

void anadeServiciosCompartidosAnulados(Listados& listados, Vendedores& vendedores)
{
    Recordset partes;
    partes.Open(sentenciaDePartes(listados.contexto), listados.contexto.ConexionTienda);
    if (partes.RecordCount() <= 0)
        return;
    const auto escribe = [&](const Grupo& grupo) { vendedores.anadeServicios(grupo.clave, grupo.nombre, grupo.importe); };
    std::optional<Grupo> grupo;
    for (Recordset& fila : partes) {
        if (grupo && grupo->sigueCon(fila)) {
            grupo->junta(grupoDe(listados, fila));
            continue;
        }
        if (grupo)
            escribe(*grupo); // before the next one is read: what is wrong with that one takes nothing from this
        grupo = grupoDe(listados, fila);
    }
    escribe(*grupo);
}

} // namespace kestrane
