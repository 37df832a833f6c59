#include "cash/vocabulary/nombres.h"

#include "pipeline/fragmentos_sql.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// Clients of no store are found as long as none is chosen.
QString colaDeCliente(const ContextoEjecucion& contexto)
{
    const QString deTienda = u" and (tienda like "_s + patronTienda(contexto);
    return deTienda + (contexto.TiendaSeleccionada.isEmpty() ? u" or tienda is null)"_s : u")"_s);
}

QString nombreYApellidos(const Listados& listados, Recordset& fila)
{
    return listados.texto(fila.Fields(u"Nombre")) + u' ' + listados.texto(fila.Fields(u"Apellidos"));
}

QString nombreDe(Listados& listados, const QString& cabeza, const Valor& codigo)
{
    return primeraFila(listados, cabeza + listados.texto(codigo), QString{},
                       [&](Recordset& fila) { return listados.texto(fila.Fields(u"nombre")); });
}

} // namespace

ConsultaPorCodigo consultaDeCliente(const ContextoEjecucion& contexto)
{
    return {u"Select Nombre,Apellidos from clientes where codigo = "_s, colaDeCliente(contexto)};
}

ConsultaPorCodigo consultaDeClienteNif(const ContextoEjecucion& contexto)
{
    return {u"Select Nombre,Apellidos, NIF from clientes where codigo = "_s, colaDeCliente(contexto)};
}

QString NombreCliente(Listados& listados, const Valor& codigo)
{
    return primeraFila(listados, consultaDeCliente(listados.contexto).sentencia(listados, codigo), ClienteGenerico.toString(),
                       [&](Recordset& fila) { return nombreYApellidos(listados, fila); });
}

QString NombreClienteNif(Listados& listados, const Valor& codigo, QString& nif)
{
    return primeraFila(listados, consultaDeClienteNif(listados.contexto).sentencia(listados, codigo), ClienteGenerico.toString(),
                       [&](Recordset& fila) {
                           nif = listados.texto(fila.Fields(u"NIF"));
                           return nombreYApellidos(listados, fila);
                       });
}

QString nombreConInicial(const Listados& listados, Recordset& empleado)
{
    return listados.texto(empleado.Fields(u"nombre")) + u' ' + listados.texto(empleado.Fields(u"apellidos")).left(1);
}

QString NombreCortoEmpleado(Listados& listados, const Valor& codigo)
{
    return primeraFila(listados, u"Select Nombre,Apellidos from empleados where codigo = "_s + listados.texto(codigo), QString{},
                       [&](Recordset& fila) { return nombreConInicial(listados, fila); });
}

QString NombreFormaPago(Listados& listados, const Valor& codigo)
{
    return nombreDe(listados, u"Select Nombre from formapago where codigo = "_s, codigo);
}

QString NombreSeccion(Listados& listados, const Valor& codigo)
{
    return nombreDe(listados, u"Select Nombre from seccion where codigo = "_s, codigo);
}

QString NombreProveedor(Listados& listados, const Valor& codigo)
{
    return nombreDe(listados, u"Select Nombre from proveedores where codigo = "_s, codigo);
}

QString NombreServicio(Listados& listados, const Valor& codigo)
{
    return nombreDe(listados, u"Select nombre from servicios where codigo= "_s, codigo);
}

QString NombreFamilia(Listados& listados, const Valor& codigo)
{
    return nombreDe(listados, u"Select nombre from familias where codigo= "_s, codigo);
}

QString TallaColorProducto(Listados& listados, const Valor& padre, const QString& hijo)
{
    const QString sentencia = u"SELECT tallas.descripcionCorta as descTalla, "
                              "       coloresTextil.nombre  "
                              "  from tallas, "
                              "       coloresTextil, "
                              "       productostextil "
                              " where productostextil.codigopadre = "_s +
                              listados.texto(padre) + u"       and productostextil.codigohijo= '"_s + hijo +
                              u"' "
                              "       and productostextil.talla = tallas.codigo "
                              "       and productostextil.color = colorestextil.codigo"_s;
    return primeraFila(listados, sentencia, QString{}, [&](Recordset& fila) {
        return listados.texto(fila.Fields(u"descTalla")) + u" / "_s + listados.texto(fila.Fields(u"nombre"));
    });
}

} // namespace kestrane
