#include "run_context/contexto_ejecucion.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ContextoEjecucionTest : public testing::Test
{
protected:
    EntornoDatos m_entorno{database::OpcionesDatos{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(ContextoEjecucionTest, NothingIsOpenAndThereIsNoListOfStores)
{
    EXPECT_FALSE(m_contexto.ConexionTienda.abierta());
    EXPECT_FALSE(m_contexto.ConexionListados.abierta());
    EXPECT_FALSE(m_contexto.Tiendas.reservado());
}

TEST_F(ContextoEjecucionTest, TextsThatNothingHasSuppliedAreEmpty)
{
    using C = ContextoEjecucion;
    QString C::*const textos[] = {
        &C::CarpetaPrograma,
        &C::IdentificadorEquipo,
        &C::List1,
        &C::ClaveInstancia,
        &C::RutaFotos,
        &C::RutaBandera,
        &C::NombreRegional,
        &C::NombreTerminal,
        &C::ImpresoraTicket,
        &C::ImpresoraListados,
        &C::ImpresoraEtiquetas,
        &C::TipoPrograma,
        &C::NombreEmpresa,
        &C::DireccionEmpresa,
        &C::PoblacionEmpresa,
        &C::ProvinciaEmpresa,
        &C::CPEmpresa,
        &C::CifEmpresa,
        &C::Moneda,
        &C::SimboloMoneda,
        &C::IdentificacionFiscal,
        &C::NombreTienda,
        &C::TiendaSeleccionada,
        &C::ModoBusqueda,
        &C::ClienteBuscado,
        &C::NumeroReimpresion,
    };
    for (QString C::*const texto : textos)
        EXPECT_EQ(m_contexto.*texto, QString{}) << "at place " << &texto - textos;
}

TEST_F(ContextoEjecucionTest, NumbersThatNothingHasSuppliedAreZero)
{
    EXPECT_EQ(m_contexto.Tema, 0);
    EXPECT_EQ(m_contexto.AnchoVentana, 0);
    EXPECT_EQ(m_contexto.AltoVentana, 0);
    EXPECT_EQ(m_contexto.AnchoDiseno, 0);
    EXPECT_EQ(m_contexto.AltoDiseno, 0);
    EXPECT_EQ(m_contexto.TamanoLetra, 0);
    EXPECT_EQ(m_contexto.EmpleadoTerminal, 0);
    EXPECT_EQ(m_contexto.NumDecimales, 0);
}

TEST_F(ContextoEjecucionTest, FlagsThatNothingHasSuppliedAreFalse)
{
    EXPECT_FALSE(m_contexto.MigracionVentas);
    EXPECT_FALSE(m_contexto.UtilizaColoresEmpleados);
    EXPECT_FALSE(m_contexto.MultiTienda);
    EXPECT_FALSE(m_contexto.PermiteListadoVariosDias);
    EXPECT_FALSE(m_contexto.ModuloFacturas);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    EXPECT_FALSE(m_contexto.FormatoTicket);
    EXPECT_FALSE(m_contexto.CajaCompleta);
    EXPECT_FALSE(m_contexto.ReimprimirFactura);
    EXPECT_FALSE(m_contexto.SoloBajoMinimos);
}

TEST_F(ContextoEjecucionTest, DatesThatNoDialogHasWrittenAreTheZeroDate)
{
    EXPECT_EQ(m_contexto.FechaDesde, prueba::dia(1899, 12, 30));
    EXPECT_EQ(m_contexto.FechaHasta, prueba::dia(1899, 12, 30));
    EXPECT_EQ(m_contexto.FechaMigracionVentas, prueba::dia(1899, 12, 30));
}

TEST_F(ContextoEjecucionTest, FiltersThatADialogResetsToAllBeginThereAndTheOthersEmptyZeroOrFalse)
{
    const Filtros& filtros = m_contexto.filtros;
    EXPECT_EQ(filtros.seccion, -1);
    EXPECT_EQ(filtros.proveedor, -1);
    EXPECT_EQ(filtros.proveedorBajoMinimos, -1);

    EXPECT_EQ(filtros.cliente, QString{});
    EXPECT_EQ(filtros.empleado, 0);
    EXPECT_EQ(filtros.mes, 0);
    EXPECT_EQ(filtros.anio, 0);
    EXPECT_EQ(filtros.TarifaAplicada, 0) << "the labels that read no tariff look for tariff 0";
    EXPECT_EQ(filtros.claseProducto, QString{});
    EXPECT_EQ(filtros.columnaOrden, QString{});
    EXPECT_EQ(filtros.titulo, QString{});
    EXPECT_FALSE(filtros.todasLasSecciones);
    EXPECT_FALSE(filtros.soloProductos);
    EXPECT_FALSE(filtros.soloServicios);
    EXPECT_FALSE(filtros.totalizado);
    EXPECT_FALSE(filtros.bajoMinimos);
    EXPECT_FALSE(filtros.cumpleanios);
    EXPECT_FALSE(filtros.soloConEmail);
}

} // namespace
} // namespace kestrane
