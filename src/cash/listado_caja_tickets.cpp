#include "cash/listado_caja_tickets.h"

#include "cash/dinero_en_caja.h"
#include "cash/movimientos_de_caja.h"
#include "cash/notas_de_caja.h"
#include "cash/resumen_impuestos.h"
#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/pagos.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/informe_nuevo.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace cash;

namespace {

class CajaTickets
{
public:
    explicit CajaTickets(Listados& listados) : m_listados{listados} {}

    void construye();

private:
    void tickets();
    void anulados();
    void abonos();
    void cajaInicial();
    void efectivoYTarjeta();
    void gastos();
    void retiradas();
    void cobros();
    void filaSinVentas();
    void notas();

    void abreVentas(Recordset& ventas, const QString& sentencia);
    void nuevaFila(Recordset& cabecera, const Valor& importe);
    double anotaDeuda(Recordset& venta);
    [[nodiscard]] QString entreFechasYTienda(QStringView tienda) const;

    Listados& m_listados;
    ContextoEjecucion& m_contexto{m_listados.contexto};
    InformeNuevo m_informe{m_listados, cabeceras::Completa};
    double m_totalPendiente = 0;
    double m_cajaInicial = 0;
    double m_totalCobros = 0;
};

void CajaTickets::construye()
{
    tickets();
    if (m_contexto.CajaCompleta)
        anulados();
    // Before the returns and the opening cash are there: their rows keep a null.
    ejecutaConNumero(m_listados, u"update informes set numerico13 = -", m_totalPendiente);
    abonos();
    if (esDeUnDia(m_contexto))
        cajaInicial();
    efectivoYTarjeta();
    gastos();
    retiradas();
    cobros();
    filaSinVentas();
    notas();
    escribeResumenDeImpuestos(m_listados);
}

/// The period, and the store behind the text `tienda`.
QString CajaTickets::entreFechasYTienda(QStringView tienda) const
{
    return entreFechas(m_contexto) + tienda.toString() + patronTienda(m_contexto);
}

/// Sales whose debts will be looked up one by one.
void CajaTickets::abreVentas(Recordset& ventas, const QString& sentencia)
{
    ventas.Open(sentencia, m_contexto.ConexionTienda);
    anunciaDeudas(m_contexto, ventas);
}

/// What a ticket, an annulled one and a return have in common.
void CajaTickets::nuevaFila(Recordset& cabecera, const Valor& importe)
{
    m_informe.AddNew();
    m_informe.Fields(u"numerico2") = cabecera.Fields(u"Numero");
    m_informe.Fields(u"numerico1") = importe;
    m_informe.Fields(u"numerico22") = importe;
    m_informe.Fields(u"numerico17") = cabecera.Fields(u"pago");
    m_informe.Fields(u"texto30") = NombreFormaPago(m_listados, cabecera.Fields(u"pago"));
}

/// What was left unpaid of a sale, 0 for nothing; it is added to the period's.
double CajaTickets::anotaDeuda(Recordset& venta)
{
    const Valor numero = venta.Fields(u"Numero");
    if (!TienePagoPendiente(m_listados, numero))
        return 0;
    const double importe = ImportePendiente(m_listados, numero);
    m_totalPendiente += importe;
    return importe;
}

/// Paid from deposit, nothing enters the till.
Valor importeDeVenta(Recordset& venta)
{
    return esPago(venta.Fields(u"pago"), Pago::Deposito) ? Valor{0.0} : venta.Fields(u"total").valor();
}

bool esDevolucion(Recordset& venta)
{
    const Valor caracteristica = venta.Fields(u"caracteristicaventa");
    return !caracteristica.esNulo() && caracteristica.texto() == u"DV";
}

bool esDeAlbaran(Recordset& venta)
{
    const Valor albaran = venta.Fields(u"num_albaran");
    return !albaran.esNulo() && albaran.doble() > 0;
}

void CajaTickets::tickets()
{
    Recordset ventas;
    abreVentas(ventas, u"Select * from cabecera_factura where fechaventa between "_s + entreFechasYTienda(u" and tienda like ") +
                           u" order by numero asc"_s);
    if (ventas.RecordCount() <= 0)
        return;
    for (Recordset& venta : ventas) {
        const Valor importe = importeDeVenta(venta);
        nuevaFila(venta, importe);
        if (esDevolucion(venta))
            m_informe.Fields(u"texto2") = u"Abono"_s;
        if (esDeAlbaran(venta))
            m_informe.Fields(u"texto2") = u"Albaran"_s;
        m_informe.Fields(u"numerico22") = importes::resta(importe, anotaDeuda(venta));
        m_informe.Update();
        m_listados.progreso.IncrementaBarra();
    }
}

/// Unlike the tickets they have one mark, and what entered the till is not reduced by the debt.
void CajaTickets::anulados()
{
    Recordset ventas;
    abreVentas(ventas, u"Select * from cabecera_factura_anulaciones where (numero <= 0 or cabecera_Factura_anulaciones.borrar=-1)"
                       " and fechaventa between "_s +
                           entreFechasYTienda(u"  and tienda like ") + u" order by numero asc"_s);
    if (ventas.RecordCount() <= 0)
        return;
    for (Recordset& venta : ventas) {
        static_cast<void>(anotaDeuda(venta));
        nuevaFila(venta, importeDeVenta(venta));
        m_informe.Fields(u"texto2") = u" Eliminado"_s;
        m_informe.Update();
        m_listados.progreso.IncrementaBarra();
    }
}

/// Whatever they were paid with, their amount leaves the till.
void CajaTickets::abonos()
{
    Recordset abonos;
    abonos.Open(u"Select * from cabecera_abono where fechaventa between "_s + entreFechasYTienda(u"  and tienda like ") +
                    u" order by numero asc"_s,
                m_contexto.ConexionTienda);
    if (abonos.RecordCount() <= 0)
        return;
    for (Recordset& abono : abonos) {
        nuevaFila(abono, importes::opuesto(abono.Fields(u"total")));
        m_informe.Fields(u"texto2") = u" / "_s + m_listados.texto(abono.Fields(u"num_factura")) + u" Abono"_s;
        m_informe.Update();
        m_listados.progreso.IncrementaBarra();
    }
}

/// The one row that names no store.
void CajaTickets::cajaInicial()
{
    Recordset cajas;
    if (!abreCajaInicial(m_listados, cajas))
        return;
    m_informe.AddNew(cabeceras::EmpresaYPeriodo);
    m_informe.Fields(u"numerico2") = 0.0;
    m_informe.Fields(u"texto2") = u"Caja Inicial"_s;
    m_informe.Fields(u"numerico1") = cajas.Fields(u"importe");
    m_informe.Update();
    m_cajaInicial = cajas.Fields(u"importe").doble();
}

void CajaTickets::efectivoYTarjeta()
{
    ejecutaConNumero(m_listados, u"update informes set numerico10 = ", efectivoDelPeriodo(m_listados) + m_cajaInicial);
    ejecutaConNumero(m_listados, u"update informes set numerico11 = ", tarjetaDelPeriodo(m_listados));
}

void CajaTickets::gastos()
{
    const double total = sumaDeImportes(m_listados, u"gastos"_s);
    ejecutaConNumero(m_listados, u"update informes set numerico3 = -", total);
}

/// Not read for a longer period, which has -0 of them.
void CajaTickets::retiradas()
{
    double total = 0;
    if (esDeUnDia(m_contexto))
        total = sumaDeImportes(m_listados, u"retiradas"_s);
    ejecutaConNumero(m_listados, u"update informes set numerico20 = -", total);
}

void CajaTickets::cobros()
{
    m_totalCobros = sumaDeImportes(m_listados, u"detalle_pago"_s);
    ejecutaConNumero(m_listados, u"update informes set numerico12 = ", m_totalCobros);
}

/// So that a day on which only debts were collected can be printed.
void CajaTickets::filaSinVentas()
{
    Recordset informe;
    informe.Open(u"Select * from informes"_s, m_contexto.ConexionListados);
    if (informe.RecordCount() > 0)
        return;
    m_informe.AddNew();
    m_informe.Fields(u"numerico12") = m_totalCobros;
    m_informe.Update();
}

/// The text goes into the statement as it stands: an apostrophe in it ends the run.
void CajaTickets::notas()
{
    m_contexto.ConexionListados.Execute(u"update informes set texto1 = '"_s + notasDeCaja(m_listados) + u'\'');
}

} // namespace

void ListadoCajaTickets(Listados& listados)
{
    CajaTickets{listados}.construye();
}

} // namespace kestrane
