#include "cash/listado_por_servicios.h"

#include "cash/filas_de_caja.h"
#include "cash/movimientos_de_caja.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/observaciones.h"
#include "cash/vocabulary/pagos.h"
#include "cash/vocabulary/tipos_venta.h"
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

    void lineaVendida(Recordset& venta, Recordset& linea);
    void lineaDevuelta(Recordset& abono, Recordset& linea);
    void nuevaFila(Recordset& venta, Recordset& linea);

    [[nodiscard]] QString texto(const Valor& valor) const { return m_listados.texto(valor); }
    [[nodiscard]] QString deLaTienda() const { return u"and tienda like "_s + patronTienda(m_contexto); }

    Listados& m_listados;
    ContextoEjecucion& m_contexto;
    InformeNuevo m_informe;
    double m_totalServicios = 0;
    Contador16 m_unidadesServicios;
    Contador16 m_numeroTickets;
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

void PorServicios::ventas()
{
    // Between "2" and "and" there never was a blank.
    const QString cola = DeServicios + u" and codigo <> 2"_s + deLaTienda();
    Recordset ventas;
    ventas.Open(u"Select * from cabecera_factura where fechaventa between "_s + entreFechas(m_contexto) + u' ' + deLaTienda() +
                    u" order by numero"_s,
                m_contexto.ConexionTienda);
    anunciaLineasYCliente(m_contexto, ventas, LineasDeVenta, cola);
    for (Recordset& venta : ventas) {
        m_numeroTickets += 1;
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
    anunciaLineasYCliente(m_contexto, ventas, LineasRegularizadas, cola);
    for (Recordset& venta : ventas) {
        m_numeroTickets += 1;
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
    m_informe.Fields(u"texto3") = linea.Fields(u"producto");
    m_informe.Fields(u"texto7") = linea.Fields(u"NombreEmpleado");
    ponPago(m_listados, m_informe, venta.Fields(u"pago"));
}

void PorServicios::lineaVendida(Recordset& venta, Recordset& linea)
{
    const Valor pago = venta.Fields(u"pago");
    const QString tipo = texto(linea.Fields(u"tipo_venta"));
    nuevaFila(venta, linea);
    ponImportes(m_informe, netoDeLinea(linea), impuestosDeLinea(linea));
    if (entraDinero(pago))
        m_totalServicios += linea.Fields(u"precio").doble();
    m_unidadesServicios += tipo == u"B" ? 1 : linea.Fields(u"unidades").doble();
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
    anunciaLineasYCliente(m_contexto, abonos, LineasDevueltas, cola);
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
    nuevaFila(abono, linea);
    m_informe.Fields(u"texto10") = numeroDeAbono(m_listados, abono);
    m_informe.Fields(u"numerico5") = importes::opuesto(linea.Fields(u"unidades"));
    m_informe.Fields(u"texto3") = u"Abono: "_s + texto(linea.Fields(u"producto"));
    ponImportesDevueltos(m_informe, linea);
    m_totalServicios -= linea.Fields(u"precio").doble();
    m_unidadesServicios -= linea.Fields(u"unidades").doble();
    ponBloque(m_informe, bloques::Devoluciones);
}

void PorServicios::totales()
{
    ejecutaConNumero(m_listados, u"update informes set numerico13 = ", m_totalServicios);
    ejecutaConNumero(m_listados, u"update informes set numerico9= ", 0);
    ejecutaConNumero(m_listados, u"update informes set numerico8= ", m_unidadesServicios.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico10= ", m_cajaInicial);
    ejecutaConNumero(m_listados, u"update informes set numerico17= ", m_numeroTickets.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico16= ", m_totalGastos);
    ejecutaConNumero(m_listados, u"update informes set numerico18= ", m_totalCobros);
}

} // namespace

void ListadoPorServicios(Listados& listados)
{
    PorServicios{listados}.construye();
}

} // namespace kestrane
