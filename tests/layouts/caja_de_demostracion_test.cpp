// The till's reports on the shops that the project shows around: what their builders wrote is what stands on paper.

#include "apoyo/tienda_de_demostracion.h"
#include "cash/listado_albaranes.h"
#include "cash/listado_caja_diaria.h"
#include "cash/listado_caja_general.h"
#include "cash/listado_caja_tickets.h"
#include "cash/listado_formas_pago_ventas.h"
#include "cash/listado_por_servicios.h"
#include "layouts/papel_de_caja.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "run_context/principal.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using demo::TipoTienda;

struct Caso
{
    const char16_t* layout;
    Constructor constructor;
    TipoTienda tipo;
    const char16_t* importes; ///< what the layout prints, asked of the rows
};

const Caso Casos[] = {
    {u"K_caja_diariageneral2.rpt", ListadoCajaDiaria, TipoTienda::Peluqueria, u"select numerico2 from informes"},
    {u"T_caja_diariageneral2.rpt", ListadoCajaDiaria, TipoTienda::Tpv, u"select numerico2 from informes"},
    {u"K_caja_diariaResumido.rpt", ListadoCajaDiaria, TipoTienda::Peluqueria,
     u"select sum(numerico2 + numerico3) from informes group by texto22"},
    {u"T_caja_diariaResumido.rpt", ListadoCajaDiaria, TipoTienda::Tpv,
     u"select sum(numerico2 + numerico3) from informes group by texto22"},
    {u"K_caja_general.rpt", ListadoCajaGeneral, TipoTienda::Peluqueria, u"select numerico1 from informes where numerico1 <> 0"},
    {u"K_caja_general_ticket.rpt", ListadoCajaGeneral, TipoTienda::Spa, u"select numerico3 from informes where numerico3 <> 0"},
    {u"T_caja_general_ticket.rpt", ListadoCajaGeneral, TipoTienda::Tpv, u"select numerico3 from informes where numerico3 <> 0"},
    {u"K_caja_tickets.rpt", ListadoCajaTickets, TipoTienda::Peluqueria, u"select numerico1 from informes"},
    {u"K_porservicios.rpt", ListadoPorServicios, TipoTienda::Peluqueria, u"select numerico2 from informes"},
    {u"K_porservicios_ticket.rpt", ListadoPorServicios, TipoTienda::Peluqueria,
     u"select sum(numerico2 + numerico3) from informes group by texto22"},
    {u"K_formapago.rpt", ListadoFormasPagoVentas, TipoTienda::Peluqueria, u"select numerico2 from informes"},
    {u"T_Albaranes.rpt", ListadoAlbaranes, TipoTienda::Tpv, u"select numerico2 from informes"},
};

/// "-1.326,25", as amounts stand on paper.
QString euros(double importe)
{
    QString cifras = QString::number(std::abs(importe), 'f', 2).replace(u'.', u',');
    for (qsizetype lugar = cifras.indexOf(u',') - 3; lugar > 0; lugar -= 3)
        cifras.insert(lugar, u'.');
    return (importe < 0 ? u"-"_s : u""_s) + cifras;
}

class CajaDeDemostracion : public testing::TestWithParam<Caso>
{
protected:
    CajaDeDemostracion()
    {
        prueba::llenaConDemostracion(m_bases, {.tipo = GetParam().tipo, .tamano = demo::Tamano::Dia});
        PreferenciasEnTabla preferencias{u"mostrador"_s};
        ConectorTiendaDsn conector;
        Principal principal{m_contexto, conector, preferencias, m_reloj};
        principal.AbreConexiones();
        principal.Inicializa();
        m_contexto.FechaDesde = m_contexto.FechaHasta = m_reloj.hoy();
        GetParam().constructor(m_listados);
    }

    /// The amounts that the rows hold, each as often as it occurs.
    QHash<QString, int> esperados()
    {
        QHash<QString, int> cuentas;
        Recordset filas;
        filas.Open(QString::fromUtf16(GetParam().importes), m_contexto.ConexionListados);
        for (Recordset& fila : filas) {
            if (const Valor importe = fila.Fields(0); !importe.esNulo())
                ++cuentas[euros(importe.doble())];
        }
        m_contexto.ConexionListados.Close();
        return cuentas;
    }

    prueba::TiendaDePrueba m_bases;
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 6, 14, 12)};
    prueba::ProgresoContado m_progreso;
    ContextoEjecucion m_contexto{m_bases.entorno()};
    Listados m_listados{m_contexto, m_progreso, m_reloj};
};

TEST_P(CajaDeDemostracion, EveryAmountOfTheRowsStandsOnPaperAsOftenAsTheyHaveIt)
{
    const QHash<QString, int> importes = esperados();
    ASSERT_FALSE(importes.isEmpty());
    const prueba::PapelDeCaja papel = prueba::imprimeCaja(m_bases, QString::fromUtf16(GetParam().layout));
    QHash<QString, int> impresos;
    for (const prueba::PaginaLeida& pagina : papel.paginas) {
        for (const prueba::Palabra& palabra : pagina)
            ++impresos[palabra.texto];
    }
    for (const auto& [importe, veces] : importes.asKeyValueRange())
        EXPECT_GE(impresos.value(importe), veces) << importe.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Layouts, CajaDeDemostracion, testing::ValuesIn(Casos),
                         [](const auto& caso) { return QString::fromUtf16(caso.param.layout).chopped(4).toStdString(); });

} // namespace
} // namespace kestrane
