#pragma once

#include "cash/vocabulary/consulta_por_codigo.h"

/// Names by code, read on the shop. A code is joined to the statement as its text: a Null one is refused by the database. Without a
/// row each has its fallback; a name that is Null in the row found is "".
namespace kestrane {

/// How a client is called of whom nothing is known.
inline constexpr QStringView ClienteGenerico = u"Cliente Generico";

/// `Nombre`, a blank and `Apellidos` of `clientes`, "Cliente Generico" when there is none. With a store chosen only its clients are
/// found, without one those of no store too.
[[nodiscard]] QString NombreCliente(Listados& listados, const Valor& codigo);
/// The same; `nif` receives the tax number, and stays as it is when there is no such client.
[[nodiscard]] QString NombreClienteNif(Listados& listados, const Valor& codigo, QString& nif);
[[nodiscard]] ConsultaPorCodigo consultaDeCliente(const ContextoEjecucion& contexto);
[[nodiscard]] ConsultaPorCodigo consultaDeClienteNif(const ContextoEjecucion& contexto);

/// `Nombre`, a blank and the first letter of `Apellidos` of `empleados`; "" when there is none.
[[nodiscard]] QString NombreCortoEmpleado(Listados& listados, const Valor& codigo);
/// The same of a row that holds the two fields.
[[nodiscard]] QString nombreConInicial(const Listados& listados, Recordset& empleado);

// `Nombre` of formapago, seccion, proveedores, servicios, familias; "" when there is none.
[[nodiscard]] QString NombreFormaPago(Listados& listados, const Valor& codigo);
[[nodiscard]] QString NombreSeccion(Listados& listados, const Valor& codigo);
[[nodiscard]] QString NombreProveedor(Listados& listados, const Valor& codigo);
[[nodiscard]] QString NombreServicio(Listados& listados, const Valor& codigo);
[[nodiscard]] QString NombreFamilia(Listados& listados, const Valor& codigo);

/// "M / Rojo": size and colour of the variant `hijo` of the product `padre`; "" when there is none.
[[nodiscard]] QString TallaColorProducto(Listados& listados, const Valor& padre, const QString& hijo);

} // namespace kestrane
