// Sales and regularised sales by payment form.

#include "cash/formas_pago_ventas.h"

#include "cash/movimientos_de_caja.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/tipos_venta.h"
#include "pipeline/fragmentos_sql.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

namespace {

const QString LineasDeVenta = u"Select * from detalle_factura where num_factura = "_s;
const QString LineasRegularizadas = u"Select * from detalle_factura_anulaciones where num_factura = "_s;

} // namespace

FormasPagoVentas::FormasPagoVentas(Listados& listados)
    : m_listados{listados}
    , m_contexto{listados.contexto}
    , m_informe{listados, cabeceras::Completa}
{
}

void FormasPagoVentas::construye()
{
    m_cajaInicial = cajaInicialDelDia(m_listados);
    ventas();
    if (m_contexto.CajaCompleta)
        ventasRegularizadas();
    cobrosDeDeudas();
    devoluciones();
    movimientos();
    totales();
    resumen();
}

QString FormasPagoVentas::deLaTienda() const
{
    return u" and tienda like "_s + patronTienda(m_contexto);
}

FormasPagoVentas::Operacion FormasPagoVentas::operacion(Recordset& cabecera)
{
    return {.fecha = cabecera.Fields(u"fechaventa"),
            .numero = cabecera.Fields(u"Numero"),
            .cliente = NombreCliente(m_listados, cabecera.Fields(u"cliente")),
            .empleado = cabecera.Fields(u"empleado"),
            .efectivo = cabecera.Fields(u"efectivo"),
            .tarjeta = cabecera.Fields(u"tarjeta")};
}

void FormasPagoVentas::ventas()
{
    Recordset ventas;
    ventas.Open(u"Select * from cabecera_factura where fechaventa between "_s + entreFechas(m_contexto) + deLaTienda() +
                    u" order  by numero"_s,
                m_contexto.ConexionTienda);
    anunciaLineasYCliente(m_contexto, ventas, LineasDeVenta, deLaTienda());
    consultaDePagoPendiente(m_contexto).anuncia(ventas, u"Numero"_s);
    for (Recordset& cabecera : ventas)
        venta(cabecera, LineasDeVenta, deLaTienda(), nullptr);
}

void FormasPagoVentas::ventasRegularizadas()
{
    const QString cola = limitaLineasAnuladas(m_contexto) ? deLaTienda() : QString{};
    Recordset ventas;
    ventas.Open(u"Select * from cabecera_factura_anulaciones where (numero<=0 or borrar=-1) and fechaventa between "_s +
                    entreFechas(m_contexto) + deLaTienda() + u" order  by numero"_s,
                m_contexto.ConexionTienda);
    anunciaLineasYCliente(m_contexto, ventas, LineasRegularizadas, cola);
    consultaDePagoPendiente(m_contexto).anuncia(ventas, u"Numero"_s);
    for (Recordset& cabecera : ventas)
        venta(cabecera, LineasRegularizadas, cola, &bloques::VentasRegularizadas);
}

void FormasPagoVentas::venta(Recordset& cabecera, const QString& lineas, const QString& cola, const Bloque* bloque)
{
    m_totales.NumeroTickets += 1;
    const Operacion suya = operacion(cabecera);
    Recordset suyas;
    suyas.Open(lineas + texto(suya.numero) + cola, m_contexto.ConexionTienda);
    for (Recordset& linea : suyas) {
        if (esIngresoEnDeposito(m_listados, linea))
            m_ingresoDeposito += linea.Fields(u"precio").doble();
        else
            lineaVendida(cabecera, suya, linea, bloque);
        m_listados.progreso.IncrementaBarra();
    }
    if (esPago(cabecera.Fields(u"pago"), Pago::Partido))
        pagoPartido(suya, bloque ? *bloque : bloques::VentasGenerales);
}

void FormasPagoVentas::nuevaFila(const Operacion& operacion)
{
    m_informe.AddNew();
    m_informe.Fields(u"fecha3") = operacion.fecha;
    m_informe.Fields(u"numerico1") = operacion.numero;
    m_informe.Fields(u"texto10") = operacion.numero;
    m_informe.Fields(u"texto32") = operacion.numero;
    m_informe.Fields(u"texto2") = operacion.cliente;
}

void FormasPagoVentas::lineaVendida(Recordset& cabecera, const Operacion& operacion, Recordset& linea, const Bloque* bloque)
{
    const Valor pago = cabecera.Fields(u"pago");
    nuevaFila(operacion);
    m_informe.Fields(u"texto3") = linea.Fields(u"producto");
    m_informe.Fields(u"texto7") = linea.Fields(u"NombreEmpleado");
    ponPago(m_listados, m_informe, pago);
    ponImportes(m_informe, netoDeLinea(linea), impuestosDeLinea(linea));
    if (TienePagoPendiente(m_listados, operacion.numero)) {
        m_informe.Fields(u"texto4") = u"Venta no cobrada"_s;
        m_informe.Fields(u"texto23") = texto(pago) + u" - Deuda"_s;
    }
    sumaLineaVendida(m_listados, m_totales, pago, linea, pack_spa::DeFormasDePago);
    ponClaseDeVenta(operacion.numero, linea);
    if (esPago(pago, Pago::Deposito))
        ponConsumoDeDeposito(m_listados, m_informe, linea);
    if (esPago(pago, Pago::Partido)) // its money has rows of its own
        ponImportes(m_informe, 0.0, 0.0);
    if (bloque)
        ponBloque(m_informe, *bloque);
    m_informe.Update();
}

void FormasPagoVentas::ponClaseDeVenta(const Valor& numero, Recordset& linea)
{
    const QString tipo = texto(linea.Fields(u"tipo_venta"));
    if (tipo == u"P" || tipo == u"F" || tipo == u"S" || tipo == u"SP" || tipo == u"CB" || tipo == u"CBF")
        ponBloque(m_informe, bloques::VentasGenerales);
    if (tipo == u"CB" || tipo == u"CBF")
        m_informe.Fields(u"texto3") = tipoDeVenta(tipo).prefijo.toString() + texto(linea.Fields(u"producto"));
    if (tipo == u"B" || tipo == u"BF")
        ponVentaDeBono(m_listados, m_informe, numero, linea);
}

void FormasPagoVentas::pagoPartido(const Operacion& operacion, const Bloque& bloque)
{
    dineroPartido(operacion, Pago::Contado, bloque);
    dineroPartido(operacion, Pago::Tarjeta, bloque);
}

void FormasPagoVentas::dineroPartido(const Operacion& operacion, Pago pago, const Bloque& bloque)
{
    const bool contado = pago == Pago::Contado;
    nuevaFila(operacion);
    m_informe.Fields(u"texto3") =
        (contado ? u"Pagado al Contado Factura: "_s : u"Pagado en Tarjeta Factura: "_s) + texto(operacion.numero);
    m_informe.Fields(u"texto7") = operacion.empleado;
    ponPago(m_listados, m_informe, static_cast<qint32>(pago));
    ponImportes(m_informe, contado ? operacion.efectivo : operacion.tarjeta, 0.0);
    ponBloque(m_informe, bloque);
    m_informe.Update();
}

} // namespace kestrane::cash
