#pragma once

#include "cash/vocabulary/totales_ventas.h"
#include "pipeline/informe_nuevo.h"

/// What the rows of the till's reports have in common, written to the row that is being added.
namespace kestrane::cash {

/// A block of a report: its sort key and its title.
struct Bloque
{
    QStringView clave;  ///< texto22
    QStringView titulo; ///< texto21
};

namespace bloques {
inline constexpr Bloque CajaInicial{u"1", u"Caja Inicial"};
inline constexpr Bloque VentasGenerales{u"2", u"Ventas Generales"};
inline constexpr Bloque VentasDeBonos{u"3", u"Ventas de Bonos"};
inline constexpr Bloque CobrosDeDeudas{u"4", u"Cobros de Deudas Pendientes"};
inline constexpr Bloque VentasNoCobradas{u"5", u"Ventas no Cobradas"};
inline constexpr Bloque Devoluciones{u"6", u"Devoluciones de venta"};
inline constexpr Bloque Gastos{u"7", u"Gastos del Dia"};
inline constexpr Bloque Retiradas{u"8", u"Retiradas del Dia"};
inline constexpr Bloque VentasRegularizadas{u"9", u"Ventas Regularizadas"};
inline constexpr Bloque Albaranes{u"10", u"Albaranes"};
} // namespace bloques

void ponBloque(InformeNuevo& informe, const Bloque& bloque);
/// texto4 the name of the payment code, texto23 the code.
void ponPago(Listados& listados, InformeNuevo& informe, const Valor& pago);
/// numerico2 and numerico3, euros.
void ponImportes(InformeNuevo& informe, const Valor& neto, const Valor& impuestos);
/// The amounts of a returned line where they turn the sign of its sale: -(`precio` - tax) and -tax.
void ponImportesDevueltos(InformeNuevo& informe, Recordset& linea);
/// texto3 and block of a line that sold a bono of the sale `factura`: its sessions before the text.
void ponVentaDeBono(Listados& listados, InformeNuevo& informe, const Valor& factura, Recordset& linea);
/// A line paid from deposit: the text says so and no money stands beside it.
void ponConsumoDeDeposito(Listados& listados, InformeNuevo& informe, Recordset& linea);

/// "2 X Corte": `unidades` and `producto`, with what the kind of line puts between them.
[[nodiscard]] QString unidadesYProducto(const Listados& listados, Recordset& linea, QStringView prefijo = {});
/// "3 / 70": the number of a return and that of its sale.
[[nodiscard]] QString numeroDeAbono(const Listados& listados, Recordset& abono);

/// The statements for the lines of each row of `ventas` (`lineas`, its `Numero`, `cola`) and for its client's name are announced.
void anunciaLineasYCliente(const ContextoEjecucion& contexto, Recordset& ventas, const QString& lineas, const QString& cola);

/// In all rows: numerico13 services and packs in one sum, which TotalServicios then is, numerico14 products, numerico9 their cost,
/// numerico8 units of services.
void escribeTotalesDeVentas(Listados& listados, TotalesVentas& totales);

/// What the statement of a line of the summary box begins with, by its sign.
namespace resumen_de_caja {
inline constexpr QStringView Entra = u"insert into subinformes (numerico1,texto1) values (";
inline constexpr QStringView Sale = u"insert into subinformes (numerico1,texto1) values (-";
} // namespace resumen_de_caja

} // namespace kestrane::cash
