#include "cash/filas_de_caja.h"

#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/ventas.h"

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

} // namespace kestrane::cash
