#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// Sale lines shared by several employees (`ventas_compartidas`).
namespace kestrane {

/// A line as `ventas_compartidas` names it: the sale, the line's `codigo`, its kind.
struct LineaCompartida
{
    Valor factura;
    Valor codigo;
    QString tipoVenta;
};

/// "ompartida,Triflar,Luis P": the names in order of the employees' codes, each behind a comma; "ompartida" for a line that nobody
/// shares. The C is missing in every report that was ever filed, and stays so.
[[nodiscard]] QString EmpleadosCompartida(Listados& listados, const LineaCompartida& linea);
/// "1,3,7": the codes in ascending order behind a 1, which every key of a combination begins with; "1" for a line that nobody
/// shares.
[[nodiscard]] QString CodigosCompartida(Listados& listados, const LineaCompartida& linea);
/// Whether the employee has a share in a line of the sale.
[[nodiscard]] bool EmpleadoEnCompartida(Listados& listados, const Valor& empleado, const Valor& factura);

/// The employee of a sale's line in a word or two: the first two words of `NombreEmpleado`, all of it when it has fewer; the names
/// of all when it is empty, as it is on a shared line. `factura` is the number of the line's sale. Error 94 for a Null name.
[[nodiscard]] QString nombreCortoDeLinea(Listados& listados, const Valor& factura, Recordset& linea);

/// The employee of an annulled line: `NombreEmpleado` whole, Null as Null; the names of all when it is empty, a kind that is Null
/// counting as S.
[[nodiscard]] Valor nombreEnteroDeLinea(Listados& listados, const Valor& factura, Recordset& linea);

} // namespace kestrane
