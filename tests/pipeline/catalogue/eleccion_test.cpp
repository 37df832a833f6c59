#include "pipeline/catalogue/catalogo.h"
#include "platform/database/entorno_datos.h"

#include <gtest/gtest.h>

/// Which of its layouts and builders a row takes.
namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

/// The layout that a row takes, and "!" where it goes to the ticket printer; "" when it shows nothing.
class DisenosTest : public testing::Test
{
protected:
    std::string diseno(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.TipoPrograma = tipoPrograma;
        const Diseno* const elegido = primera(busca(control)->disenos, m_contexto);
        if (!elegido)
            return {};
        return (elegido->fichero.toString() + (elegido->impresora == ImpresoraDe::Ticket ? u"!"_s : u""_s)).toStdString();
    }

    std::string enTicket(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.FormatoTicket = true;
        const std::string elegido = diseno(control, tipoPrograma);
        m_contexto.FormatoTicket = false;
        return elegido;
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

struct FicherosDeComercio
{
    QStringView control;
    std::string comercio;
    std::string base;
};

const FicherosDeComercio DeComercio[] = {
    {u"cmd_Caja1", "T_caja_diariageneral2.rpt", "K_caja_diariageneral2.rpt"},
    {u"cmdCajaDiariaResumido", "T_caja_diariaResumido.rpt", "K_caja_diariaResumido.rpt"},
    {u"cmd_Ventas3", "T_Listado_Historico.rpt", "K_Listado_Historico.rpt"},
    {u"cmd_Estadisticas5", "T_RankingFacturacion.rpt", "K_RankingFacturacion.rpt"},
    {u"cmd_Estadisticas7", "T_RankingVisitas.rpt", "K_RankingVisitas.rpt"},
    {u"Command18", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command17", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command16", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command15", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command14", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command13", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command12", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command11", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
    {u"Command19", "T_EntradaStock.rpt", "K_EntradaStock.rpt"},
};

TEST_F(DisenosTest, RetailFlavoursTakeTheFileWithTheirPrefixAndTheOthersTheBaseOne)
{
    for (const FicherosDeComercio& fila : DeComercio) {
        SCOPED_TRACE(fila.control.toString().toStdString());
        for (const QString& sabor : {u"PERFUMERIA"_s, u"TPV"_s, u"TALLACOLOR"_s, u"ZAPATERIA"_s, u"SUPERMERCADO"_s, u"PANADERIA"_s})
            EXPECT_EQ(diseno(fila.control, sabor), fila.comercio) << sabor.toStdString();
        for (const QString& sabor : {u"PELUQUERIA"_s, u"SPA"_s, u"ESTETICA"_s, u"CLINICAS"_s, u"tpv"_s})
            EXPECT_EQ(diseno(fila.control, sabor), fila.base) << sabor.toStdString();
        EXPECT_EQ(enTicket(fila.control, u"TPV"_s), fila.comercio);
    }
}

TEST_F(DisenosTest, TheTicketFormatHasItsFileAndItsPrinter)
{
    EXPECT_EQ(diseno(u"cmd_Ventas1", u"SPA"_s), "K_porservicios.rpt");
    EXPECT_EQ(enTicket(u"cmd_Ventas1", u"SPA"_s), "K_porservicios_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Ventas4", u"TPV"_s), "K_porPackSpa_ticket.rpt!");
    EXPECT_EQ(diseno(u"cmd_Caja4", u"SPA"_s), "K_caja_tickets.rpt!");
}

TEST_F(DisenosTest, TheGeneralCashTellsTheRetailFlavoursApartOnTicketsAlone)
{
    EXPECT_EQ(diseno(u"cmd_Caja3", u"SPA"_s), "K_caja_general.rpt");
    EXPECT_EQ(diseno(u"cmd_Caja3", u"TPV"_s), "K_caja_general.rpt");
    EXPECT_EQ(enTicket(u"cmd_Caja3", u"SPA"_s), "K_caja_general_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Caja3", u"TPV"_s), "T_caja_general_ticket.rpt!");
}

TEST_F(DisenosTest, SalesByProductHaveFourFiles)
{
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"SPA"_s), "K_porproductos.rpt");
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"TALLACOLOR"_s), "TC_porproductos.rpt");
    EXPECT_EQ(diseno(u"cmd_Ventas5", u"SUPERMERCADO"_s), "K_porproductos_S.rpt");
    EXPECT_EQ(enTicket(u"cmd_Ventas5", u"SUPERMERCADO"_s), "K_porproductos_ticket.rpt!");
    EXPECT_EQ(enTicket(u"cmd_Ventas5", u"TALLACOLOR"_s), "K_porproductos_ticket.rpt!");
}

TEST_F(DisenosTest, TheEmployeeHistoryFollowsWhatTheDialogAnswered)
{
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp3.rpt");
    m_contexto.filtros.empleado = 3;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp3.rpt");
    m_contexto.filtros.totalizado = true;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp2.rpt");
    m_contexto.filtros.empleado = -1;
    EXPECT_EQ(diseno(u"cmd_Ventas6", u"SPA"_s), "K_ListadoHisXEmp1.rpt");
}

TEST_F(DisenosTest, DeliveryNotesAreShownInRetailFlavoursAlone)
{
    EXPECT_EQ(diseno(u"cmdAlbaranes", u"TALLACOLOR"_s), "T_Albaranes.rpt");
    EXPECT_EQ(diseno(u"cmdAlbaranes", u"PELUQUERIA"_s), "");
}

/// The builder that a row takes.
class ConstructoresTest : public DisenosTest
{
protected:
    std::string constructor(QStringView control, const QString& tipoPrograma)
    {
        m_contexto.TipoPrograma = tipoPrograma;
        const OpcionConstructor* const elegido = primera(busca(control)->constructores, m_contexto);
        return elegido ? elegido->nombre.toString().toStdString() : std::string{};
    }
};

TEST_F(ConstructoresTest, TheFlavourChoosesTheBuilder)
{
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"PERFUMERIA"_s), "ListadoPorProductos");
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"ZAPATERIA"_s), "ListadoPorProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Ventas5", u"PELUQUERIA"_s), "ListadoPorProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Generales2", u"ZAPATERIA"_s), "ListadoProductosTallaColor");
    EXPECT_EQ(constructor(u"cmd_Generales14", u"TPV"_s), "ListadoProductosGeneral");
}

TEST_F(ConstructoresTest, TheDialogsAnswerChoosesTheBuilder)
{
    EXPECT_EQ(constructor(u"cmd_Ventas6", u"SPA"_s), "ListadoHistoricoEmpleadosTodos");
    m_contexto.filtros.totalizado = true;
    EXPECT_EQ(constructor(u"cmd_Ventas6", u"SPA"_s), "ListadoHistoricoEmpleadosSeleccion");
    EXPECT_EQ(constructor(u"cmd_Caja5", u"SPA"_s), "");
    m_contexto.ReimprimirFactura = true;
    EXPECT_EQ(constructor(u"cmd_Caja5", u"SPA"_s), "ListadoFactura");
}

} // namespace
} // namespace kestrane::catalogue
