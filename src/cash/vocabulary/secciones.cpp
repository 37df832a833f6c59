#include "cash/vocabulary/secciones.h"

#include "cash/vocabulary/tipos_venta.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QString deSeccion(const Listados& listados, const QString& cabeza, QStringView tabla, const Valor& codigo)
{
    return cabeza + u" from seccion where codigo in (select seccion from "_s + tabla.toString() + u" where codigo = "_s +
           listados.texto(codigo) + u')';
}

} // namespace

QString NombreSeccionDeLinea(Listados& listados, const Valor& codigo, QStringView tipoVenta)
{
    const QString sentencia = deSeccion(listados, u"Select Nombre"_s, tipoDeVenta(tipoVenta).catalogoDeNombre, codigo);
    return primeraFila(listados, sentencia, QString{}, [&](Recordset& fila) { return listados.texto(fila.Fields(u"Nombre")); });
}

QString CodigoSeccionDeLinea(Listados& listados, const Valor& codigo, QStringView tipoVenta)
{
    const QString sentencia = deSeccion(listados, u"Select CODIGO "_s, tipoDeVenta(tipoVenta).catalogoDeCodigo, codigo);
    return primeraFila(listados, sentencia, u"-1"_s, [&](Recordset& fila) { return listados.texto(fila.Fields(u"CODIGO")); });
}

} // namespace kestrane
