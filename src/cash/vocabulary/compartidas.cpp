#include "cash/vocabulary/compartidas.h"

#include "cash/vocabulary/nombres.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QString lineaEnSql(const Listados& listados, const LineaCompartida& linea)
{
    return listados.texto(linea.factura) + u" and cod_detalle = "_s + listados.texto(linea.codigo) + u" and tipo_venta = '"_s +
           linea.tipoVenta + u'\'';
}

/// `semilla` and what `lee` takes from each row, behind commas; without its first character.
template<class Lee>
QString enFila(Listados& listados, const QString& sentencia, const QString& semilla, Lee lee)
{
    QString texto = semilla;
    Recordset filas;
    filas.Open(sentencia, listados.contexto.ConexionTienda);
    if (filas.RecordCount() > 0) {
        for (Recordset& fila : filas)
            texto += u',' + lee(fila);
    }
    return texto.sliced(1);
}

} // namespace

QString EmpleadosCompartida(Listados& listados, const LineaCompartida& linea)
{
    const QString sentencia = u"Select nombre, apellidos from ventas_compartidas,empleados where num_factura = "_s +
                              lineaEnSql(listados, linea) +
                              u" and ventas_compartidas.cod_empleado = empleados.codigo"
                              " order by ventas_compartidas.cod_empleado"_s;
    return enFila(listados, sentencia, u"Compartida"_s, [&](Recordset& fila) { return nombreConInicial(listados, fila); });
}

QString CodigosCompartida(Listados& listados, const LineaCompartida& linea)
{
    const QString sentencia = u"Select cod_empleado from ventas_compartidas where num_factura = "_s + lineaEnSql(listados, linea) +
                              u" order by ventas_compartidas.cod_empleado"_s;
    return enFila(listados, sentencia, u"-1"_s, [&](Recordset& fila) { return listados.texto(fila.Fields(u"cod_empleado")); });
}

bool EmpleadoEnCompartida(Listados& listados, const Valor& empleado, const Valor& factura)
{
    return hayFila(listados, u"Select cod_empleado from ventas_compartidas where cod_empleado="_s + listados.texto(empleado) +
                                 u" and num_factura = "_s + listados.texto(factura));
}

QString nombreCortoDeLinea(Listados& listados, const Valor& factura, Recordset& linea)
{
    const QString nombre = linea.Fields(u"NombreEmpleado").texto();
    if (nombre.isEmpty())
        return EmpleadosCompartida(listados, {factura, linea.Fields(u"codigo"), listados.texto(linea.Fields(u"tipo_venta"))});
    const QStringList palabras = nombre.split(u' ');
    return palabras.size() >= 2 ? palabras[0] + u' ' + palabras[1] : nombre;
}

Valor nombreEnteroDeLinea(Listados& listados, const Valor& factura, Recordset& linea)
{
    Valor nombre = linea.Fields(u"NombreEmpleado");
    if (nombre.esNulo() || !nombre.texto().isEmpty())
        return nombre;
    const Valor tipo = linea.Fields(u"tipo_venta");
    return EmpleadosCompartida(listados, {factura, linea.Fields(u"codigo"), tipo.esNulo() ? u"S"_s : listados.texto(tipo)});
}

} // namespace kestrane
