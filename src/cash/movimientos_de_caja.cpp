#include "cash/movimientos_de_caja.h"

#include "cash/vocabulary/alcance.h"
#include "cash/vocabulary/deudas.h"
#include "pipeline/fragmentos_sql.h"

namespace kestrane::cash {

using namespace Qt::StringLiterals;

namespace {

QString periodoYTienda(const ContextoEjecucion& contexto)
{
    return entreFechas(contexto) + u" and tienda like "_s + patronTienda(contexto);
}

} // namespace

bool abreCajaInicial(Listados& listados, Recordset& cajas)
{
    ContextoEjecucion& contexto = listados.contexto;
    cajas.Open(u"Select * from caja_inicial where fecha = "_s + diaSql(contexto.FechaDesde) + u" and tienda like "_s +
                   patronTienda(contexto),
               contexto.ConexionTienda);
    return cajas.RecordCount() > 0;
}

double cajaInicialDelDia(Listados& listados)
{
    Recordset cajas;
    return esDeUnDia(listados.contexto) && abreCajaInicial(listados, cajas) ? cajas.Fields(u"importe").doble() : 0;
}

double totalNoCobrado(Listados& listados)
{
    Recordset ventas;
    ventas.Open(u"Select numero from cabecera_factura where fechaventa between "_s + periodoYTienda(listados.contexto),
                listados.contexto.ConexionTienda);
    anunciaDeudas(listados.contexto, ventas);
    double total = 0;
    for (Recordset& venta : ventas) {
        const Valor numero = venta.Fields(u"numero");
        if (TienePagoPendiente(listados, numero))
            total += ImportePendiente(listados, numero);
    }
    return total;
}

double sumaDeImportes(Listados& listados, const QString& tabla)
{
    const QString sentencia =
        u"Select sum(importe) as valor from "_s + tabla + u" where fecha between "_s + periodoYTienda(listados.contexto);
    return primeraFila(listados, sentencia, 0.0, [](Recordset& fila) {
        const Valor suma = fila.Fields(u"valor");
        return suma.esNulo() ? 0 : suma.doble();
    });
}

double importesDe(Listados& listados, const QString& tabla, Avance avance)
{
    Recordset filas;
    filas.Open(u"Select * from "_s + tabla + u" where fecha between "_s + periodoYTienda(listados.contexto),
               listados.contexto.ConexionTienda);
    double total = 0;
    for (Recordset& fila : filas) {
        total += fila.Fields(u"importe").doble();
        if (avance == Avance::Cuenta)
            listados.progreso.IncrementaBarra();
    }
    return total;
}

} // namespace kestrane::cash
