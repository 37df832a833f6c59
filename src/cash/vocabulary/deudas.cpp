#include "cash/vocabulary/deudas.h"

#include "pipeline/fragmentos_sql.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr Fecha SinPagos = Fecha::deSerie(36526, 0); // 1/1/2000

} // namespace

ConsultaPorCodigo consultaDePagoPendiente(const ContextoEjecucion& contexto)
{
    return {u"Select num_pago from cabecera_pago where num_factura= "_s, u" and tienda like "_s + patronTienda(contexto)};
}

bool TienePagoPendiente(Listados& listados, const Valor& venta)
{
    return hayFila(listados, consultaDePagoPendiente(listados.contexto).sentencia(listados, venta));
}

ConsultaPorCodigo consultaDeImportePendiente()
{
    return {u"Select importe from cabecera_pago where num_factura = "_s, {}};
}

double ImportePendiente(Listados& listados, const Valor& venta)
{
    return primeraFila(listados, consultaDeImportePendiente().sentencia(listados, venta), 0.0,
                       [](Recordset& fila) { return fila.Fields(u"importe").doble(); });
}

void anunciaDeudas(const ContextoEjecucion& contexto, Recordset& ventas)
{
    consultaDePagoPendiente(contexto).anuncia(ventas, u"Numero"_s);
    consultaDeImportePendiente().anuncia(ventas, u"Numero"_s);
}

ConsultaPorCodigo consultaDeFacturaDelPago()
{
    return {u"Select num_factura from cabecera_pago where num_pago = "_s, {}};
}

ConsultaPorCodigo consultaDeClienteDelPago()
{
    return {u"Select cliente from cabecera_pago where num_pago = "_s, {}};
}

qint32 FacturaDelPago(Listados& listados, const Valor& pago)
{
    return primeraFila(listados, consultaDeFacturaDelPago().sentencia(listados, pago), qint32{0},
                       [](Recordset& fila) { return fila.Fields(u"num_factura").entero32(); });
}

qint32 ClienteDelPago(Listados& listados, const Valor& pago)
{
    return primeraFila(listados, consultaDeClienteDelPago().sentencia(listados, pago), qint32{0},
                       [](Recordset& fila) { return fila.Fields(u"cliente").entero32(); });
}

Fecha UltimaFechaPago(Listados& listados, const Valor& pago)
{
    const QString sentencia =
        u"Select fecha from detalle_pago where num_pago = "_s + listados.texto(pago) + u" order by fecha desc"_s;
    return primeraFila(listados, sentencia, SinPagos, [](Recordset& fila) { return fila.Fields(u"fecha").fecha(); });
}

double TotalPagado(Listados& listados, const Valor& pago)
{
    Recordset pagos;
    pagos.Open(u"Select importe from detalle_pago where num_pago = "_s + listados.texto(pago), listados.contexto.ConexionTienda);
    double total = 0;
    if (pagos.RecordCount() <= 0)
        return total;
    for (Recordset& fila : pagos) {
        total += fila.Fields(u"importe").doble();
        listados.progreso.IncrementaBarra();
    }
    return total;
}

} // namespace kestrane
