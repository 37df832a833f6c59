#include "run_context/contexto_ejecucion.h"

#include "platform/runtime/soporte.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(ContextoEjecucion, WhatNothingHasSuppliedIsEmptyZeroOrFalse)
{
    EntornoDatos entorno{database::OpcionesDatos{}};
    const ContextoEjecucion contexto{entorno};
    EXPECT_FALSE(contexto.ConexionTienda.abierta());
    EXPECT_FALSE(contexto.ConexionListados.abierta());
    EXPECT_EQ(contexto.ClaveInstancia, QString{});
    EXPECT_EQ(contexto.NumDecimales, 0);
    EXPECT_FALSE(contexto.MultiTienda);
    EXPECT_FALSE(contexto.FiltroAceptado);
    EXPECT_EQ(contexto.TiendaSeleccionada, QString{});
    EXPECT_FALSE(contexto.Tiendas.reservado());
}

TEST(ContextoEjecucion, DatesThatNoDialogHasWrittenAreTheZeroDate)
{
    EntornoDatos entorno{database::OpcionesDatos{}};
    const ContextoEjecucion contexto{entorno};
    EXPECT_EQ(contexto.FechaDesde, prueba::dia(1899, 12, 30));
    EXPECT_EQ(contexto.FechaHasta, prueba::dia(1899, 12, 30));
    EXPECT_EQ(contexto.FechaMigracionVentas, prueba::dia(1899, 12, 30));
}

TEST(ContextoEjecucion, FiltersBeginAtAllClientsEmployeesSectionsAndSuppliers)
{
    EntornoDatos entorno{database::OpcionesDatos{}};
    const Filtros filtros = ContextoEjecucion{entorno}.filtros;
    EXPECT_EQ(filtros.cliente, -1);
    EXPECT_EQ(filtros.seccion, -1);
    EXPECT_EQ(filtros.empleado, -1);
    EXPECT_EQ(filtros.proveedor, -1);
    EXPECT_EQ(filtros.proveedorBajoMinimos, -1);
    EXPECT_EQ(filtros.TarifaAplicada, -1);
    EXPECT_EQ(filtros.claseProducto, QString{});
}

} // namespace
} // namespace kestrane
