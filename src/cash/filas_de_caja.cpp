#include "cash/filas_de_caja.h"

#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/ventas.h"
#include "pipeline/sentencias_numero.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

void ponBloque(InformeNuevo& informe, const Bloque& bloque)
{
    informe.Fields(u"texto22") = bloque.clave;
    informe.Fields(u"texto21") = bloque.titulo;
}

void ponPago(Listados& listados, InformeNuevo& informe, const Valor& pago)
{
    informe.Fields(u"texto4") = NombreFormaPago(listados, pago);
    informe.Fields(u"texto23") = pago;
}

void ponImportes(InformeNuevo& informe, const Valor& neto, const Valor& impuestos)
{
    informe.Fields(u"numerico2") = neto;
    informe.Fields(u"numerico3") = impuestos;
}

void ponImportesDevueltos(InformeNuevo& informe, Recordset& linea)
{
    const Valor impuestos = impuestosDeAbono(linea);
    ponImportes(informe, importes::opuesto(importes::resta(linea.Fields(u"precio"), impuestos)), importes::opuesto(impuestos));
}

void ponVentaDeBono(Listados& listados, InformeNuevo& informe, const Valor& factura, Recordset& linea)
{
    ponBloque(informe, bloques::VentasDeBonos);
    informe.Fields(u"texto3") = SesionesBono(listados, factura) + u" de - "_s + listados.texto(linea.Fields(u"producto"));
}

void ponConsumoDeDeposito(Listados& listados, InformeNuevo& informe, Recordset& linea)
{
    informe.Fields(u"texto3") = u"Cons.Deposito: "_s + listados.texto(linea.Fields(u"producto"));
    ponImportes(informe, 0.0, 0.0);
}

QString unidadesYProducto(const Listados& listados, Recordset& linea, QStringView prefijo)
{
    return listados.texto(linea.Fields(u"unidades")) + u" X "_s + prefijo.toString() + listados.texto(linea.Fields(u"producto"));
}

QString numeroDeAbono(const Listados& listados, Recordset& abono)
{
    return listados.texto(abono.Fields(u"Numero")) + u" / "_s + listados.texto(abono.Fields(u"num_factura"));
}

void anunciaLineasYCliente(const ContextoEjecucion& contexto, Recordset& ventas, const QString& lineas, const QString& cola)
{
    ventas.Anticipa(lineas, u"Numero"_s, cola);
    consultaDeCliente(contexto).anuncia(ventas, u"cliente"_s);
}

void escribeTotalesDeVentas(Listados& listados, TotalesVentas& totales)
{
    juntaServiciosYPacks(totales);
    ejecutaConNumero(listados, u"update informes set numerico13 = ", totales.TotalServicios);
    ejecutaConNumero(listados, u"update informes set numerico14 = ", totales.TotalProductos);
    ejecutaConNumero(listados, u"update informes set numerico9= ", totales.CosteProductos);
    ejecutaConNumero(listados, u"update informes set numerico8= ", totales.UnidadesServicios.valor());
}

} // namespace kestrane::cash
