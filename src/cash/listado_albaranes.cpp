#include "cash/listado_albaranes.h"

#include "cash/filas_de_caja.h"
#include "cash/vocabulary/compartidas.h"
#include "cash/vocabulary/importes.h"
#include "cash/vocabulary/nombres.h"
#include "cash/vocabulary/observaciones.h"
#include "cash/vocabulary/totales_ventas.h"
#include "pipeline/fragmentos_sql.h"
#include "pipeline/sentencias_numero.h"

#include <algorithm>
#include <array>

namespace kestrane {

using namespace Qt::StringLiterals;
using namespace cash;

namespace {

const QString LineasDeAlbaran = u"Select * from detalle_factura_temp where num_factura = "_s;

constexpr std::array<QStringView, 7> TiposConBloque = {u"P", u"F", u"S", u"CB", u"CBF", u"CPSPA", u"PSPA"};

void lineaDeAlbaran(Listados& listados, InformeNuevo& informe, TotalesVentas& totales, Recordset& albaran, Recordset& linea)
{
    const Valor pago = albaran.Fields(u"pago");
    informe.AddNew();
    informe.Fields(u"fecha3") = albaran.Fields(u"fecha");
    informe.Fields(u"numerico1") = albaran.Fields(u"num_albaran");
    informe.Fields(u"texto10") = albaran.Fields(u"num_albaran");
    informe.Fields(u"texto2") = NombreCliente(listados, albaran.Fields(u"cliente"));
    informe.Fields(u"texto3") = unidadesYProducto(listados, linea);
    informe.Fields(u"texto7") = nombreCortoDeLinea(listados, albaran.Fields(u"Numero"), linea);
    ponPago(listados, informe, pago);
    ponImportes(informe, netoDeLinea(linea), impuestosDeLinea(linea));
    sumaLineaVendida(listados, totales, pago, linea);
    if (std::ranges::find(TiposConBloque, listados.texto(linea.Fields(u"tipo_venta"))) != TiposConBloque.end())
        ponBloque(informe, bloques::Albaranes);
    informe.Update();
    listados.progreso.IncrementaBarra();
}

void albaranes(Listados& listados, InformeNuevo& informe, TotalesVentas& totales)
{
    const ContextoEjecucion& contexto = listados.contexto;
    Recordset albaranes;
    albaranes.Open(u"Select * from cabecera_factura_temp where num_albaran >0 and fecha between "_s + entreFechas(contexto) +
                       u" order by numero"_s,
                   listados.contexto.ConexionTienda);
    anunciaLineasYCliente(contexto, albaranes, LineasDeAlbaran, {});
    for (Recordset& albaran : albaranes) {
        totales.NumeroTickets += 1;
        Recordset lineas;
        lineas.Open(LineasDeAlbaran + listados.texto(albaran.Fields(u"Numero")), listados.contexto.ConexionTienda);
        for (Recordset& linea : lineas)
            lineaDeAlbaran(listados, informe, totales, albaran, linea);
    }
}

void escribeTotales(Listados& listados, TotalesVentas& totales)
{
    escribeTotalesDeVentas(listados, totales);
    ejecutaConNumero(listados, u"update informes set numerico17= ", totales.NumeroTickets.valor());
}

} // namespace

void ListadoAlbaranes(Listados& listados)
{
    TotalesVentas totales;
    InformeNuevo informe{listados, cabeceras::Completa};
    albaranes(listados, informe, totales);
    escribeTotales(listados, totales);
    copiaObservaciones(listados, CabezaObservaciones.toString() + entreFechas(listados.contexto));
}

} // namespace kestrane
