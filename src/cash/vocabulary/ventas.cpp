#include "cash/vocabulary/ventas.h"

#include "pipeline/fragmentos_sql.h"

namespace kestrane {

using namespace Qt::StringLiterals;

QString ProductosDeFactura(Listados& listados, const Valor& factura)
{
    Recordset lineas;
    lineas.Open(u"Select producto from detalle_factura where num_factura = "_s + listados.texto(factura) + u" and tienda like "_s +
                    patronTienda(listados.contexto),
                listados.contexto.ConexionTienda);
    if (lineas.RecordCount() <= 0)
        return {};
    QStringList productos;
    for (Recordset& linea : lineas)
        productos += listados.texto(linea.Fields(u"producto"));
    return productos.join(u" / "_s);
}

QString SesionesBono(Listados& listados, const Valor& factura)
{
    return primeraFila(listados, u"Select num_sesiones from cabecera_Bonos where num_factura= "_s + listados.texto(factura),
                       QString{}, [&](Recordset& fila) { return listados.texto(fila.Fields(u"num_sesiones")); });
}

ConsultaPorCodigo consultaDeValeAplicado()
{
    return {u"Select num_factura_aplicado from Vales_descuento where num_factura_aplicado = "_s, {}};
}

bool TieneValeAplicado(Listados& listados, const Valor& factura)
{
    return hayFila(listados, consultaDeValeAplicado().sentencia(listados, factura));
}

bool ServicioVendidoEnFecha(Listados& listados, const Valor& cliente, Fecha dia, const Valor& servicio)
{
    return hayFila(listados, u"Select codigo from detalle_factura where codigo = "_s + listados.texto(servicio) +
                                 u" and num_factura in (Select numero from cabecera_factura where cliente = "_s +
                                 listados.texto(cliente) + u" and fechaventa = "_s + diaSql(dia) + u')');
}

} // namespace kestrane
