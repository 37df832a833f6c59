#include "cash/notas_de_caja.h"

#include "pipeline/fragmentos_sql.h"
#include "platform/database/recordset.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LargoDeNotas = 254;

/// What `renglon` makes of each row of `sentencia`, one behind the other.
template<class Renglon>
QString renglones(Listados& listados, const QString& sentencia, Renglon renglon)
{
    QString texto;
    Recordset filas;
    filas.Open(sentencia, listados.contexto.ConexionTienda);
    if (filas.RecordCount() <= 0)
        return texto;
    for (Recordset& fila : filas) {
        texto += renglon(fila);
        listados.progreso.IncrementaBarra();
    }
    return texto;
}

QString periodoYTienda(const ContextoEjecucion& contexto)
{
    return entreFechas(contexto) + u" and tienda like "_s + patronTienda(contexto) + u' ';
}

QString observaciones(Listados& listados)
{
    return renglones(listados, u"SELECT * FROM ObservacionCaja WHERE Fecha between "_s + periodoYTienda(listados.contexto),
                     [&](Recordset& fila) {
                         return listados.texto(fila.Fields(u"Fecha")) + u" - "_s + listados.texto(fila.Fields(u"Observacion")) +
                                u'\r';
                     });
}

QString gastos(Listados& listados)
{
    int numero = 0;
    return renglones(
        listados, u"Select * from gastos where fecha between "_s + periodoYTienda(listados.contexto), [&](Recordset& fila) {
            return u"Gastos: "_s + QString::number(++numero) + u' ' + listados.texto(fila.Fields(u"motivo")) + u"\r\n"_s;
        });
}

} // namespace

QString notasDeCaja(Listados& listados)
{
    const QString primero = u"Observaciones de Caja: "_s + observaciones(listados);
    return (primero + u"\r\n"_s + gastos(listados)).left(LargoDeNotas);
}

} // namespace kestrane
