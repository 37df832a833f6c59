// What the cash sheet lists besides sales and returns: opening cash, payments of debts, expenses, withdrawals.

#include "cash/caja_diaria.h"
#include "cash/movimientos_de_caja.h"
#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "pipeline/fragmentos_sql.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

/// The first row of the day alone.
void CajaDiaria::cajaInicial()
{
    Recordset cajas;
    if (!abreCajaInicial(m_listados, cajas))
        return;
    nuevaFila();
    m_informe.Fields(u"fecha3") = m_listados.reloj.hoy();
    ponNumero(qint32{0});
    m_informe.Fields(u"texto2") = u""_s;
    m_informe.Fields(u"texto3") = u"Caja Inicial"_s;
    m_informe.Fields(u"texto4") = u""_s;
    m_informe.Fields(u"texto23") = u""_s;
    ponImportes(m_informe, cajas.Fields(u"importe"), 0.0);
    ponBloque(m_informe, bloques::CajaInicial);
    m_informe.Fields(u"texto7") = NombreCortoEmpleado(m_listados, cajas.Fields(u"empleado"));
    m_informe.Fields(u"texto30") = u""_s;
    m_informe.Update();
    m_cajaInicial = cajas.Fields(u"importe").doble();
}

void CajaDiaria::cobrosDeDeudas()
{
    Recordset cobros;
    cobros.Open(u"Select * from detalle_pago where fecha between "_s + entreFechas(m_contexto) + deLaTienda(),
                m_contexto.ConexionTienda);
    consultaDeClienteDelPago().anuncia(cobros, u"num_pago"_s);
    consultaDeFacturaDelPago().anuncia(cobros, u"num_pago"_s);
    for (Recordset& cobro : cobros) {
        const Valor deuda = cobro.Fields(u"num_pago");
        nuevaFila();
        m_informe.Fields(u"fecha3") = cobro.Fields(u"fecha");
        ponNumero(deuda);
        ponCliente(ClienteDelPago(m_listados, deuda));
        m_informe.Fields(u"texto3") = u"Pago Pendiente de Factura: "_s + texto(FacturaDelPago(m_listados, deuda));
        ponPago(m_listados, m_informe, cobro.Fields(u"FORMA_pago"));
        ponImportes(m_informe, cobro.Fields(u"importe"), 0.0);
        ponBloque(m_informe, bloques::CobrosDeDeudas);
        m_informe.Fields(u"texto7") = NombreCortoEmpleado(m_listados, cobro.Fields(u"empleado"));
        m_informe.Update();
        m_totalCobros += cobro.Fields(u"importe").doble();
    }
}

void CajaDiaria::gastos()
{
    Recordset gastos;
    gastos.Open(u"Select * from gastos where fecha between "_s + entreFechas(m_contexto) + deLaTienda(), m_contexto.ConexionTienda);
    for (Recordset& gasto : gastos) {
        salidaDeCaja(gasto, gasto.Fields(u"motivo"), bloques::Gastos);
        m_totalGastos += gasto.Fields(u"importe").doble();
        m_listados.progreso.IncrementaBarra();
    }
}

void CajaDiaria::retiradas()
{
    Recordset retiradas;
    retiradas.Open(u"Select * from retiradas where fecha between "_s + entreFechas(m_contexto) + deLaTienda(),
                   m_contexto.ConexionTienda);
    for (Recordset& retirada : retiradas) {
        salidaDeCaja(retirada, u"Retirada"_s, bloques::Retiradas);
        m_totalRetiradas += retirada.Fields(u"importe").doble();
        m_listados.progreso.IncrementaBarra();
    }
}

void CajaDiaria::salidaDeCaja(Recordset& fila, const Valor& motivo, const Bloque& bloque)
{
    nuevaFila();
    m_informe.Fields(u"fecha3") = fila.Fields(u"fecha");
    ponNumero(qint32{0});
    m_informe.Fields(u"texto2") = u""_s;
    m_informe.Fields(u"texto3") = motivo;
    m_informe.Fields(u"texto7") = NombreCortoEmpleado(m_listados, fila.Fields(u"empleado"));
    m_informe.Fields(u"texto4") = u""_s;
    m_informe.Fields(u"texto23") = u""_s;
    ponImportes(m_informe, importes::opuesto(fila.Fields(u"importe")), 0.0);
    ponBloque(m_informe, bloque);
    m_informe.Update();
}

} // namespace kestrane::cash
