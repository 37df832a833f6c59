// Sales and annulled sales of the cash sheet. What differs between the two is meant: the store of the lines, the employee's name,
// and that annulled lines keep their text and their amounts whatever they are.

#include "cash/caja_diaria.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/compartidas.h"
#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/pagos.h"
#include "cash/vocabulary/tipos_venta.h"
#include "cash/vocabulary/ventas.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sabores.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

namespace {

const QString LineasDeVenta = u"Select * from detalle_factura where num_factura = "_s;
const QString LineasRegularizadas = u"Select * from detalle_factura_anulaciones where num_factura = "_s;

} // namespace

void CajaDiaria::anunciaVentas(Recordset& cabeceras, const QString& lineas, const QString& cola) const
{
    cabeceras.Anticipa(lineas, u"Numero"_s, cola);
    consultaDeClienteNif(m_contexto).anuncia(cabeceras, u"cliente"_s);
    anunciaDeudas(m_contexto, cabeceras);
}

void CajaDiaria::ventas()
{
    Recordset cabeceras;
    cabeceras.Open(u"Select * from cabecera_factura where fechaventa between "_s + entreFechas(m_contexto) +
                       u" and tienda like "_s + patronTienda(m_contexto) + u" order by numero"_s,
                   m_contexto.ConexionTienda);
    anunciaVentas(cabeceras, LineasDeVenta, deLaTienda());
    if (esComercio(m_contexto.TipoPrograma))
        consultaDeValeAplicado().anuncia(cabeceras, u"Numero"_s);
    for (Recordset& cabecera : cabeceras) {
        m_totales.NumeroTickets += 1;
        lineasDeVenta(cabecera);
        ventaNoCobrada(cabecera);
    }
}

void CajaDiaria::lineasDeVenta(Recordset& cabecera)
{
    Recordset lineas;
    lineas.Open(LineasDeVenta + texto(cabecera.Fields(u"Numero")) + deLaTienda(), m_contexto.ConexionTienda);
    for (Recordset& linea : lineas) {
        lineaDeVenta(cabecera, linea);
        m_listados.progreso.IncrementaBarra();
    }
}

void CajaDiaria::lineaDeVenta(Recordset& cabecera, Recordset& linea)
{
    const Valor pago = cabecera.Fields(u"pago");
    nuevaFila();
    m_informe.Fields(u"fecha3") = cabecera.Fields(u"fechaventa");
    ponNumero(cabecera.Fields(u"Numero"));
    ponCliente(cabecera.Fields(u"cliente"));
    m_informe.Fields(u"texto3") = unidadesYProducto(m_listados, linea);
    m_informe.Fields(u"texto7") = nombreCortoDeLinea(m_listados, cabecera.Fields(u"Numero"), linea);
    ponPago(m_listados, m_informe, pago);
    ponImportes(m_informe, netoDeLinea(linea), impuestosDeLinea(linea));
    sumaLineaVendida(m_listados, m_totales, pago, linea);
    ponClaseDeVenta(cabecera, linea);
    m_informe.Update();
}

/// Block and text by the kind of line, each rule over the one before.
void CajaDiaria::ponClaseDeVenta(Recordset& cabecera, Recordset& linea)
{
    const QString tipo = texto(linea.Fields(u"tipo_venta"));
    const QString producto = texto(linea.Fields(u"producto"));
    const Valor numero = cabecera.Fields(u"Numero");
    const QStringView prefijo = tipoDeVenta(tipo).prefijo;
    if (tipo == u"P" || tipo == u"F" || tipo == u"S" || tipo == u"CB" || tipo == u"CBF" || tipo == u"CPSPA" || tipo == u"PSPA" ||
        tipo == u"CSF")
        ponBloque(m_informe, bloques::VentasGenerales);
    if (tipo == u"CB" || tipo == u"CBF" || tipo == u"CPSPA")
        m_informe.Fields(u"texto3") = unidadesYProducto(m_listados, linea, prefijo);
    if (tipo == u"PSPA" || tipo == u"CSF")
        m_informe.Fields(u"texto3") = prefijo.toString() + producto;
    if (tipo == u"B" || tipo == u"BF")
        ponVentaDeBono(m_listados, m_informe, numero, linea);
    if (esPago(cabecera.Fields(u"pago"), Pago::Deposito))
        ponConsumoDeDeposito(m_listados, m_informe, linea);
    if (tipo == u"SF") {
        ponBloque(m_informe, bloques::VentasGenerales);
        m_informe.Fields(u"texto3") = prefijo.toString() + producto;
    }
    if (esComercio(m_contexto.TipoPrograma) && TieneValeAplicado(m_listados, numero))
        m_informe.anade(u"texto3", u" + (Vale Descuento)"_s);
}

/// The row of a sale left unpaid: the sale stays whole in the totals, only the sum over the rows falls by the debt.
void CajaDiaria::ventaNoCobrada(Recordset& cabecera)
{
    const Valor numero = cabecera.Fields(u"Numero");
    if (!TienePagoPendiente(m_listados, numero))
        return;
    nuevaFila();
    m_informe.Fields(u"fecha3") = cabecera.Fields(u"fechaventa");
    ponNumero(numero);
    ponCliente(cabecera.Fields(u"cliente"));
    m_informe.Fields(u"texto3") = u"Venta no Cobrada"_s;
    m_informe.Fields(u"texto7") = cabecera.Fields(u"empleado"); // the code, not the name
    ponPago(m_listados, m_informe, cabecera.Fields(u"pago"));
    ponImportes(m_informe, importes::opuesto(ImportePendiente(m_listados, numero)), 0.0);
    ponBloque(m_informe, bloques::VentasNoCobradas);
    m_informe.Update();
}

/// The one report that takes the day of the annulment too.
void CajaDiaria::ventasRegularizadas()
{
    Recordset cabeceras;
    cabeceras.Open(u"Select * from cabecera_factura_anulaciones where (numero <=0 or borrar = -1 ) and ((fechaventa between "_s +
                       entreFechas(m_contexto) + u") or (fecha between "_s + entreFechas(m_contexto) + u")) and tienda like "_s +
                       patronTienda(m_contexto) + u" order by numero"_s,
                   m_contexto.ConexionTienda);
    anunciaVentas(cabeceras, LineasRegularizadas, limitaLineasAnuladas(m_contexto) ? deLaTienda() : QString{});
    for (Recordset& cabecera : cabeceras) {
        m_totales.NumeroTickets += 1;
        lineasRegularizadas(cabecera);
        ventaNoCobrada(cabecera);
    }
}

void CajaDiaria::lineasRegularizadas(Recordset& cabecera)
{
    Recordset lineas;
    lineas.Open(LineasRegularizadas + texto(cabecera.Fields(u"Numero")) +
                    (limitaLineasAnuladas(m_contexto) ? deLaTienda() : QString{}),
                m_contexto.ConexionTienda);
    for (Recordset& linea : lineas) {
        lineaRegularizada(cabecera, linea);
        m_listados.progreso.IncrementaBarra();
    }
}

void CajaDiaria::lineaRegularizada(Recordset& cabecera, Recordset& linea)
{
    const Valor pago = cabecera.Fields(u"pago");
    nuevaFila();
    m_informe.Fields(u"fecha3") =
        cabecera.Fields(u"fechaventa").esNulo() ? cabecera.Fields(u"fecha") : cabecera.Fields(u"fechaventa");
    ponNumero(cabecera.Fields(u"Numero"));
    ponCliente(cabecera.Fields(u"cliente"));
    m_informe.Fields(u"texto3") = unidadesYProducto(m_listados, linea);
    m_informe.Fields(u"texto7") = nombreEnteroDeLinea(m_listados, cabecera.Fields(u"Numero"), linea);
    ponPago(m_listados, m_informe, pago);
    ponImportes(m_informe, netoDeLinea(linea), impuestosDeLinea(linea));
    sumaLineaVendida(m_listados, m_totales, pago, linea);
    ponBloque(m_informe, bloques::VentasRegularizadas);
    m_informe.Update();
}

} // namespace kestrane::cash
