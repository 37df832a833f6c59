// Returns of the cash sheet.

#include "cash/caja_diaria.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/tipos_venta.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sabores.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

namespace {

const QString LineasDevueltas = u"Select * from detalle_abono where num_abono = "_s;

/// In retail shops a return that left a voucher moves no money.
QString principioDeAbonos(const ContextoEjecucion& contexto)
{
    if (!esComercio(contexto.TipoPrograma))
        return u"Select * from cabecera_abono where fechaventa between "_s;
    return u"Select * from cabecera_abono "
           " where num_factura not in (select num_factura from vales_descuento) "
           "   and fechaventa between "_s;
}

} // namespace

void CajaDiaria::devoluciones()
{
    Recordset abonos;
    abonos.Open(principioDeAbonos(m_contexto) + entreFechas(m_contexto) + deLaTienda() + u" order by numero"_s,
                m_contexto.ConexionTienda);
    abonos.Anticipa(LineasDevueltas, u"Numero"_s, deLaTienda());
    consultaDeClienteNif(m_contexto).anuncia(abonos, u"cliente"_s);
    for (Recordset& abono : abonos)
        lineasDevueltas(abono);
}

void CajaDiaria::lineasDevueltas(Recordset& abono)
{
    Recordset lineas;
    lineas.Open(LineasDevueltas + texto(abono.Fields(u"Numero")) + deLaTienda(), m_contexto.ConexionTienda);
    for (Recordset& linea : lineas) {
        lineaDevuelta(abono, linea);
        m_listados.progreso.IncrementaBarra();
    }
}

/// The tax is added to the amount that is given back, not taken off it: the sheet was always filed so.
void CajaDiaria::lineaDevuelta(Recordset& abono, Recordset& linea)
{
    const QString producto = texto(linea.Fields(u"producto"));
    const Valor impuestos = impuestosDeAbono(linea);
    const QString tipo = texto(linea.Fields(u"tipo_venta"));
    nuevaFila();
    m_informe.Fields(u"fecha3") = abono.Fields(u"fechaventa");
    m_informe.Fields(u"numerico1") = abono.Fields(u"Numero");
    m_informe.Fields(u"texto10") = numeroDeAbono(m_listados, abono);
    ponCliente(abono.Fields(u"cliente"));
    m_informe.Fields(u"texto3") = u"Abono: "_s + producto;
    m_informe.Fields(u"texto7") = linea.Fields(u"NombreEmpleado");
    ponPago(m_listados, m_informe, abono.Fields(u"pago"));
    ponImportes(m_informe, importes::opuesto(importes::suma(linea.Fields(u"precio"), impuestos)), importes::opuesto(impuestos));
    restaLineaDevuelta(m_listados, m_totales, linea);
    if (tipo == u"SF")
        m_informe.Fields(u"texto3") = tipoDeVenta(tipo).prefijo.toString() + producto;
    ponBloque(m_informe, bloques::Devoluciones);
    m_informe.Update();
}

} // namespace kestrane::cash
