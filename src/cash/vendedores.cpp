#include "cash/vendedores.h"

#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// The code of lines that several employees share.
constexpr qint32 Compartidas = -1;

/// A column that was never written counts as 0.
Valor escrito(const Valor& columna)
{
    return columna.esNulo() ? Valor{0.0} : columna;
}

Valor laSuma(const Valor& /*columna*/, const Valor& suma)
{
    return suma;
}

Valor masLaSuma(const Valor& columna, const Valor& suma)
{
    return importes::suma(escrito(columna), suma);
}

Valor menosLaSuma(const Valor& columna, const Valor& suma)
{
    return importes::resta(escrito(columna), suma);
}

} // namespace

void Vendedores::vende(const FamiliaDeCaja& familia, Recordset& suma)
{
    aplica(familia, suma, suma.Fields(u"total"), laSuma);
}

void Vendedores::vendeElPrimero(const FamiliaDeCaja& familia, Recordset& suma)
{
    const Valor empleado = suma.Fields(u"codEmpleado");
    anade(familia, m_listados.texto(empleado), nombreDe(empleado), suma.Fields(u"total"));
}

void Vendedores::devuelve(const FamiliaDeCaja& familia, Recordset& suma)
{
    aplica(familia, suma, importes::opuesto(suma.Fields(u"total")), menosLaSuma);
}

void Vendedores::anula(const FamiliaDeCaja& familia, Recordset& suma)
{
    aplica(familia, suma, suma.Fields(u"total"), masLaSuma);
}

void Vendedores::aplica(const FamiliaDeCaja& familia, Recordset& suma, const Valor& enFilaNueva,
                        Valor (*enFila)(const Valor&, const Valor&))
{
    const Valor empleado = suma.Fields(u"codEmpleado");
    const QString clave = m_listados.texto(empleado);
    Recordset fila;
    if (!busca(fila, clave)) {
        anade(familia, clave, nombreDe(empleado), enFilaNueva);
        return;
    }
    fila.Fields(familia.columna) = enFila(fila.Fields(familia.columna), suma.Fields(u"total"));
    if (!familia.etiqueta.isEmpty())
        fila.Fields(familia.etiqueta) = familia.nombre;
    fila.Update();
}

void Vendedores::comparte(const QString& clave, const QString& nombre, const Valor& precio)
{
    Recordset fila;
    if (!busca(fila, clave)) {
        anadeServicios(clave, nombre, precio);
        return;
    }
    const QStringView columna = familias_de_caja::Servicios.columna;
    fila.Fields(columna) = masLaSuma(fila.Fields(columna), precio);
    fila.Update();
}

void Vendedores::anadeServicios(const QString& clave, const QString& nombre, const Valor& importe)
{
    anade(familias_de_caja::Servicios, clave, nombre, importe);
}

void Vendedores::anade(const FamiliaDeCaja& familia, const QString& clave, const QString& nombre, const Valor& importe)
{
    m_informe.AddNew();
    m_informe.Fields(u"texto21") = clave;
    m_informe.Fields(u"TEXTO20") = nombre;
    m_informe.Fields(familia.columna) = importe;
    if (!familia.etiqueta.isEmpty())
        m_informe.Fields(familia.etiqueta) = familia.nombre;
    m_informe.Update();
}

/// Of several rows with the key the first one, which is the older.
bool Vendedores::busca(Recordset& fila, const QString& clave)
{
    fila.Open(u"Select * from informes where texto21 = '"_s + clave + u'\'', m_listados.contexto.ConexionListados,
              CursorType::Keyset, LockType::Optimistic);
    return fila.RecordCount() > 0;
}

QString Vendedores::nombreDe(const Valor& empleado)
{
    if (!empleado.esNulo() && empleado.entero32() == Compartidas)
        return u"Ventas Compartidas"_s;
    return NombreCortoEmpleado(m_listados, empleado);
}

} // namespace kestrane
