// Payments of debts, returns and the cash desk's sums by payment form.

#include "cash/formas_pago_ventas.h"
#include "cash/movimientos_de_caja.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

void FormasPagoVentas::cobrosDeDeudas()
{
    Recordset cobros;
    cobros.Open(u"Select *,cabecera_pago.num_factura as num,detalle_pago.empleado as empleadodet,detalle_pago.fecha as fechapago, "
                "detalle_pago.importe as impPagado "
                "  from cabecera_pago,detalle_pago "
                " where cabecera_pago.num_pago = detalle_pago.num_pago "
                "   and detalle_pago.fecha between "_s +
                    entreFechas(m_contexto) + u"   and cabecera_pago.tienda like "_s + patronTienda(m_contexto) +
                    u" order  by DETALLE_PAGO.num_pago"_s,
                m_contexto.ConexionTienda);
    consultaDeCliente(m_contexto).anuncia(cobros, u"cliente"_s);
    for (Recordset& cobro : cobros)
        cobroDeDeuda(cobro);
}

/// A split payment of a debt keeps its amount beside its two rows of money, so that it stands twice, and has no sort key.
void FormasPagoVentas::cobroDeDeuda(Recordset& cobro)
{
    const Operacion suya{.fecha = cobro.Fields(u"fechapago"),
                         .numero = cobro.Fields(u"num"),
                         .cliente = NombreCliente(m_listados, cobro.Fields(u"cliente")),
                         .empleado = cobro.Fields(u"empleado"),
                         .efectivo = cobro.Fields(u"efectivo"),
                         .tarjeta = cobro.Fields(u"tarjeta")};
    const Valor pago = cobro.Fields(u"FORMA_pago");
    m_totales.NumeroTickets += 1;
    nuevaFila(suya);
    m_informe.Fields(u"texto3") = u""_s;
    m_informe.Fields(u"texto7") = NombreCortoEmpleado(m_listados, cobro.Fields(u"EmpleadoDet"));
    ponPago(m_listados, m_informe, pago);
    ponImportes(m_informe, cobro.Fields(u"impPagado"), 0.0);
    m_informe.Fields(u"texto21") = bloques::VentasGenerales.titulo;
    m_informe.Update();
    if (esPago(pago, Pago::Partido))
        pagoPartido(suya, bloques::VentasGenerales);
}

void FormasPagoVentas::devoluciones()
{
    const QString lineasDevueltas = u"Select * from detalle_abono where num_abono = "_s;
    Recordset abonos;
    abonos.Open(u"Select * from cabecera_abono where fechaventa between "_s + entreFechas(m_contexto) + deLaTienda() +
                    u" order  by numero"_s,
                m_contexto.ConexionTienda);
    anunciaLineasYCliente(m_contexto, abonos, lineasDevueltas, deLaTienda());
    for (Recordset& abono : abonos) {
        const Operacion suya{.fecha = abono.Fields(u"fechaventa"),
                             .numero = abono.Fields(u"Numero"),
                             .cliente = NombreCliente(m_listados, abono.Fields(u"cliente")),
                             .empleado = {},
                             .efectivo = {},
                             .tarjeta = {}};
        Recordset lineas;
        lineas.Open(lineasDevueltas + texto(suya.numero) + deLaTienda(), m_contexto.ConexionTienda);
        for (Recordset& linea : lineas) {
            lineaDevuelta(abono, suya, linea);
            m_listados.progreso.IncrementaBarra();
        }
    }
}

/// The deposit service lowers the services too, though its sale never raised them.
void FormasPagoVentas::lineaDevuelta(Recordset& abono, const Operacion& operacion, Recordset& linea)
{
    nuevaFila(operacion);
    m_informe.Fields(u"texto10") = numeroDeAbono(m_listados, abono);
    m_informe.Fields(u"texto3") = u"Abono: "_s + texto(linea.Fields(u"producto"));
    m_informe.Fields(u"texto7") = linea.Fields(u"NombreEmpleado");
    ponPago(m_listados, m_informe, abono.Fields(u"pago"));
    ponImportesDevueltos(m_informe, linea);
    if (esIngresoEnDeposito(m_listados, linea))
        m_ingresoDeposito -= linea.Fields(u"precio").doble();
    restaLineaDevuelta(m_listados, m_totales, linea, pack_spa::DeFormasDePago);
    ponBloque(m_informe, bloques::Devoluciones);
    m_informe.Update();
}

void FormasPagoVentas::movimientos()
{
    m_totalNoCobrado = totalNoCobrado(m_listados);
    m_totalCobros = sumaDeImportes(m_listados, u"detalle_pago"_s);
    m_totalGastos = importesDe(m_listados, u"gastos"_s);
    if (esDeUnDia(m_contexto))
        m_totalRetiradas = importesDe(m_listados, u"retiradas"_s);
}

void FormasPagoVentas::totales()
{
    escribeTotalesDeVentas(m_listados, m_totales);
    ejecutaConNumero(m_listados, u"update informes set numerico10= ", 0); // the opening cash stands in the summary box alone
    ejecutaConNumero(m_listados, u"update informes set numerico17= ", m_totales.NumeroTickets.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico16= ", m_totalGastos);
    ejecutaConNumero(m_listados, u"update informes set numerico18= ", m_totalCobros);
}

/// The debts collected are rows of this report, so that the balance leaves them out.
void FormasPagoVentas::resumen()
{
    m_contexto.ConexionListados.Execute(u"Delete * from subinformes"_s);
    using resumen_de_caja::Entra;
    using resumen_de_caja::Sale;
    const LineaResumen lineas[] = {
        {Entra, m_ingresoDeposito, u",'Ingreso en Deposito:')"},
        {Sale, m_totalNoCobrado, u",'Ventas no Cobradas:')"},
        {Sale, m_totalGastos, u",'Gastos del Dia:')"},
        {Entra, m_totalCobros, u",'Cobros de deudas Pendientes:')"},
        {Entra, m_cajaInicial, u",'Caja Inicial:')"},
        {Sale, m_totalRetiradas, u",'Retiradas del dia:')"},
    };
    escribeResumen(m_listados, lineas);
    ejecutaConNumero(m_listados, u"update informes set numerico19= ",
                     -m_totalNoCobrado - m_totalGastos + m_cajaInicial + m_ingresoDeposito - m_totalRetiradas);
}

} // namespace kestrane::cash
