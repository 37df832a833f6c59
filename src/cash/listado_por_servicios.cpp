#include "cash/listado_por_servicios.h"

#include "cash/filas_de_caja.h"
#include "cash/movimientos_de_caja.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/observaciones.h"
#include "cash/vocabulary/pagos.h"
#include "cash/vocabulary/tipos_venta.h"
#include "cash/vocabulary/totales_ventas.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace cash;

namespace {

const QString LineasDeVenta = u"Select * from detalle_factura where num_factura = "_s;
const QString LineasRegularizadas = u"Select * from detalle_factura_anulaciones where num_factura = "_s;
const QString LineasDevueltas = u"Select * from detalle_abono where num_abono = "_s;
const QString DeServicios = u" and (tipo_venta = 'S' or tipo_venta = 'B' or tipo_venta = 'CB')"_s;

class PorServicios
{
public:
    explicit PorServicios(Listados& listados)
        : m_listados{listados}
        , m_contexto{listados.contexto}
        , m_informe{listados, cabeceras::Completa}
    {
    }

    void construye();

private:
    void ventas();
    void ventasRegularizadas();
    void devoluciones();
    void totales();

    void anuncia(Recordset& ventas, const QString& lineas, const QString& cola) const;
    void lineaVendida(Recordset& venta, Recordset& linea);
    void lineaDevuelta(Recordset& abono, Recordset& linea);
    void nuevaFila(Recordset& venta, Recordset& linea);

    [[nodiscard]] QString texto(const Valor& valor) const { return m_listados.texto(valor); }
    [[nodiscard]] QString deLaTienda() const { return u"and tienda like "_s + patronTienda(m_contexto); }

    Listados& m_listados;
    ContextoEjecucion& m_contexto;
    InformeNuevo m_informe;
    TotalesVentas m_totales;
    double m_cajaInicial = 0;
    double m_totalCobros = 0;
    double m_totalGastos = 0;
    double m_totalRetiradas = 0; ///< added up, shown nowhere
};

void PorServicios::construye()
{
    m_cajaInicial = cajaInicialDelDia(m_listados);
    ventas();
    if (m_contexto.CajaCompleta)
        ventasRegularizadas();
    m_totalCobros = importesDe(m_listados, u"detalle_pago"_s);
    devoluciones();
    m_totalGastos = importesDe(m_listados, u"gastos"_s, Avance::Cuenta);
    if (esDeUnDia(m_contexto))
        m_totalRetiradas = importesDe(m_listados, u"retiradas"_s);
    totales();
    copiaObservaciones(m_listados, CabezaObservaciones.toString() + entreFechas(m_contexto) + u' ' + deLaTienda());
}

void PorServicios::anuncia(Recordset& ventas, const QString& lineas, const QString& cola) const
{
    ventas.Anticipa(lineas, u"Numero"_s, cola);
    consultaDeCliente(m_contexto).anuncia(ventas, u"cliente"_s);
}

void PorServicios::ventas()
{
    // Between "2" and "and" there never was a blank.
    const QString cola = DeServicios + u" and codigo <> 2"_s + deLaTienda();
    Recordset ventas;
    ventas.Open(u"Select * from cabecera_factura where fechaventa between "_s + entreFechas(m_contexto) + u' ' + deLaTienda() +
                    u" order by numero"_s,
                m_contexto.ConexionTienda);
    anuncia(ventas, LineasDeVenta, cola);
    for (Recordset& venta : ventas) {
        m_totales.NumeroTickets += 1;
        Recordset lineas;
        lineas.Open(LineasDeVenta + texto(venta.Fields(u"Numero")) + cola, m_contexto.ConexionTienda);
        for (Recordset& linea : lineas) {
            lineaVendida(venta, linea);
            m_informe.Update();
            m_listados.progreso.IncrementaBarra();
        }
    }
}

void PorServicios::ventasRegularizadas()
{
    const QString tienda = limitaLineasAnuladas(m_contexto) ? u' ' + deLaTienda() : QString{};
    const QString cola = DeServicios + u" and codigo <> 2"_s + tienda;
    Recordset ventas;
    ventas.Open(u"Select * from cabecera_factura_anulaciones where (numero <=0 or borrar = -1 ) and fechaventa between "_s +
                    entreFechas(m_contexto) + u' ' + deLaTienda() + u" order by numero"_s,
                m_contexto.ConexionTienda);
    anuncia(ventas, LineasRegularizadas, cola);
    for (Recordset& venta : ventas) {
        m_totales.NumeroTickets += 1;
        Recordset lineas;
        lineas.Open(LineasRegularizadas + texto(venta.Fields(u"Numero")) + cola, m_contexto.ConexionTienda);
        for (Recordset& linea : lineas) {
            lineaVendida(venta, linea);
            ponBloque(m_informe, bloques::VentasRegularizadas);
            m_informe.Update();
            m_listados.progreso.IncrementaBarra();
        }
    }
}

/// What sold and returned lines have alike; `texto3` is the product alone.
void PorServicios::nuevaFila(Recordset& venta, Recordset& linea)
{
    m_informe.AddNew();
    m_informe.Fields(u"fecha3") = venta.Fields(u"fechaventa");
    m_informe.Fields(u"numerico1") = venta.Fields(u"Numero");
    m_informe.Fields(u"texto10") = venta.Fields(u"Numero");
    m_informe.Fields(u"texto2") = NombreCliente(m_listados, venta.Fields(u"cliente"));
    m_informe.Fields(u"numerico11") = linea.Fields(u"Precio_unit");
    m_informe.Fields(u"texto24") = linea.Fields(u"codigo");
    m_informe.Fields(u"numerico5") = linea.Fields(u"unidades");
    m_informe.Fields(u"texto3") = texto(linea.Fields(u"producto"));
    m_informe.Fields(u"texto7") = linea.Fields(u"NombreEmpleado");
    ponPago(m_listados, m_informe, venta.Fields(u"pago"));
}

void PorServicios::lineaVendida(Recordset& venta, Recordset& linea)
{
    const Valor pago = venta.Fields(u"pago");
    const QString tipo = texto(linea.Fields(u"tipo_venta"));
    nuevaFila(venta, linea);
    ponImportes(m_informe, netoDeLinea(linea), impuestosDeLinea(linea));
    sumaLineaVendida(m_listados, m_totales, pago, linea);
    if (tipo == u"S" || tipo == u"CB")
        ponBloque(m_informe, bloques::VentasGenerales);
    if (tipo == u"CB")
        m_informe.Fields(u"texto3") = tipoDeVenta(tipo).prefijo.toString() + texto(linea.Fields(u"producto"));
    if (tipo == u"B")
        ponVentaDeBono(m_listados, m_informe, venta.Fields(u"Numero"), linea);
    if (esPago(pago, Pago::Deposito))
        ponConsumoDeDeposito(m_listados, m_informe, linea);
}

/// Every return, one that left a voucher too, and the deposit service, whose sale is not listed.
void PorServicios::devoluciones()
{
    const QString cola = DeServicios + deLaTienda();
    Recordset abonos;
    abonos.Open(u"Select * from cabecera_abono where fechaventa between "_s + entreFechas(m_contexto) + u' ' + deLaTienda() +
                    u" order by numero"_s,
                m_contexto.ConexionTienda);
    anuncia(abonos, LineasDevueltas, cola);
    for (Recordset& abono : abonos) {
        Recordset lineas;
        lineas.Open(LineasDevueltas + texto(abono.Fields(u"Numero")) + cola, m_contexto.ConexionTienda);
        for (Recordset& linea : lineas) {
            lineaDevuelta(abono, linea);
            m_informe.Update();
            m_listados.progreso.IncrementaBarra();
        }
    }
}

/// The sign of the sale turned: the tax is taken off, unlike in the daily cash sheet.
void PorServicios::lineaDevuelta(Recordset& abono, Recordset& linea)
{
    const Valor impuestos = impuestosDeAbono(linea);
    nuevaFila(abono, linea);
    m_informe.Fields(u"texto10") = texto(abono.Fields(u"Numero")) + u" / "_s + texto(abono.Fields(u"num_factura"));
    m_informe.Fields(u"numerico5") = importes::opuesto(linea.Fields(u"unidades"));
    m_informe.Fields(u"texto3") = u"Abono: "_s + texto(linea.Fields(u"producto"));
    ponImportes(m_informe, importes::opuesto(importes::resta(linea.Fields(u"precio"), impuestos)), importes::opuesto(impuestos));
    restaLineaDevuelta(m_listados, m_totales, linea);
    ponBloque(m_informe, bloques::Devoluciones);
}

void PorServicios::totales()
{
    ejecutaConNumero(m_listados, u"update informes set numerico13 = ", m_totales.TotalServicios);
    ejecutaConNumero(m_listados, u"update informes set numerico9= ", m_totales.CosteProductos);
    ejecutaConNumero(m_listados, u"update informes set numerico8= ", m_totales.UnidadesServicios.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico10= ", m_cajaInicial);
    ejecutaConNumero(m_listados, u"update informes set numerico17= ", m_totales.NumeroTickets.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico16= ", m_totalGastos);
    ejecutaConNumero(m_listados, u"update informes set numerico18= ", m_totalCobros);
}

} // namespace

void ListadoPorServicios(Listados& listados)
{
    PorServicios{listados}.construye();
}

} // namespace kestrane
