// What the cash sheet writes when all rows stand: totals in every row, remarks and vouchers beside them.

#include "cash/caja_diaria.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/observaciones.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

void CajaDiaria::totales()
{
    escribeTotalesDeVentas(m_listados, m_totales);
    ejecutaConNumero(m_listados, u"update informes set numerico10= ", m_cajaInicial);
    ejecutaConNumero(m_listados, u"update informes set numerico17= ", m_totales.NumeroTickets.valor());
    ejecutaConNumero(m_listados, u"update informes set numerico16= ", m_totalGastos);
    ejecutaConNumero(m_listados, u"update informes set numerico18= ", m_totalCobros);
}

/// With a store chosen its exact name counts, beside the pattern that also finds longer names.
void CajaDiaria::observaciones()
{
    QString sentencia = CabezaObservaciones.toString() + entreFechas(m_contexto) + deLaTienda();
    if (!m_contexto.TiendaSeleccionada.isEmpty())
        sentencia += u" and tienda like '"_s + m_contexto.TiendaSeleccionada + u'\'';
    copiaObservaciones(m_listados, sentencia);
}

/// The vouchers issued in the period, of every store.
void CajaDiaria::vales()
{
    Recordset vales;
    vales.Open(u"SELECT Vales_Descuento.Desde, Vales_Descuento.Num_Factura, Cabecera_Factura.Empleado, Cabecera_Factura.Cliente, "
               "Vales_Descuento.Descuento, clientes.Nombre,clientes.apellidos,Vales_Descuento.num_Factura_aplicado"
               "  FROM (Vales_Descuento INNER JOIN Cabecera_Factura ON Vales_Descuento.Num_Factura = Cabecera_Factura.Numero) "
               "LEFT JOIN Clientes ON Cabecera_Factura.Cliente = Clientes.Codigo "
               " where vales_descuento.desde between "_s +
                   entreFechas(m_contexto),
               m_contexto.ConexionTienda, CursorType::Keyset);
    for (Recordset& fila : vales)
        vale(fila);
}

/// All values go as quoted texts under the regional settings; a name with an apostrophe is refused.
void CajaDiaria::vale(Recordset& fila)
{
    const Valor aplicado = fila.Fields(u"num_Factura_aplicado");
    const QString uso = aplicado.esNulo() ? QString{} : u"Venta = "_s + texto(aplicado);
    QString cliente = texto(fila.Fields(u"Nombre")) + u' ' + texto(fila.Fields(u"apellidos"));
    if (cliente.trimmed().isEmpty())
        cliente = ClienteGenerico.toString();
    const QString venta = texto(fila.Fields(u"Num_Factura"));
    m_contexto.ConexionListados.Execute(u"Insert into subinformes (fecha3,texto10,texto11,texto12,texto14,numerico1,texto15) "
                                        " values ('"_s +
                                        texto(fila.Fields(u"Desde")) + u"', '"_s + venta + u"', '"_s + cliente +
                                        u"', 'Abono venta = "_s + venta + u"','"_s + texto(fila.Fields(u"Empleado")) + u"','"_s +
                                        texto(fila.Fields(u"Descuento")) + u"','"_s + uso + u"')"_s);
}

} // namespace kestrane::cash
