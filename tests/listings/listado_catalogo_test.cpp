#include "listings/listado_catalogo.h"

#include "apoyo/motor_interrumpido.h"
#include "listings/puesto_envuelto.h"
#include "pipeline/hay_datos.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::listings {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

constexpr Copia Copias[] = {{u"codigocliente", u"texto1"}, {u"nombre", u"texto2"}};
constexpr ListadoCatalogo Secciones{u"Select * from seccion where borrar = 0", Copias};

class ListadoCatalogoTest : public testing::Test
{
protected:
    PuestoDePrueba m_puesto;
};

TEST_F(ListadoCatalogoTest, AStatementThatTheShopRefusesEndsTheRunAndLeavesTheReportEmpty)
{
    m_puesto.tienda.ejecutaListados(u"insert into informes (texto1) values ('antes')"_s);
    constexpr ListadoCatalogo mal{u"Select * from seccion where nada = 0", Copias};
    EXPECT_THROW(escribeListado(m_puesto.listados, mal), ErrorEjecucion);
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{});
}

TEST_F(ListadoCatalogoTest, AFieldThatTheResultDoesNotHaveIsError3265)
{
    m_puesto.tienda.ejecuta(u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s);
    constexpr Copia copias[] = {{u"apellidos", u"texto1"}};
    try {
        escribeListado(m_puesto.listados, {u"Select * from seccion", copias});
        FAIL() << "no error";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::CampoInexistente);
    }
}

TEST_F(ListadoCatalogoTest, AnEmptyTableGivesAnEmptyReportWithoutAStepOfTheBar)
{
    escribeListado(m_puesto.listados, Secciones);
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{});
    EXPECT_EQ(m_puesto.progreso.pasos, 0);
    EXPECT_FALSE(HayDatos(m_puesto.contexto.ConexionListados));
}

TEST_F(ListadoCatalogoTest, RowsLeftInSubinformesAreNotClearedAndCountAsData)
{
    m_puesto.tienda.ejecutaListados(u"insert into subinformes (texto1) values ('antes')"_s);
    escribeListado(m_puesto.listados, Secciones);
    EXPECT_EQ(m_puesto.filas(u"texto1"_s, u"subinformes"_s), QStringList{u"antes"_s});
    EXPECT_TRUE(HayDatos(m_puesto.contexto.ConexionListados));
}

TEST_F(ListadoCatalogoTest, OneRowAndOneStepOfTheBarForEachRecordInStoredOrder)
{
    m_puesto.tienda.ejecuta({u"insert into seccion (codigo, codigocliente, nombre) values (2, 'B', 'Color')"_s,
                             u"insert into seccion (codigo, codigocliente, nombre) values (1, 'A', 'Corte')"_s});
    escribeListado(m_puesto.listados, Secciones);
    EXPECT_EQ(m_puesto.filas(u"TEXTO35,TEXTO34,texto1,texto2"_s),
              (QStringList{u"Peluquería Ñandú|Calle Mayor, 1|B|Color"_s, u"Peluquería Ñandú|Calle Mayor, 1|A|Corte"_s}));
    EXPECT_EQ(m_puesto.progreso.pasos, 2);
}

TEST_F(ListadoCatalogoTest, TheBarMovesWhenTheNextRecordIsThere)
{
    m_puesto.tienda.ejecuta({u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s,
                             u"insert into seccion (codigo, nombre) values (2, 'Color')"_s});
    prueba::PuestoEnvuelto puesto{m_puesto.tienda, prueba::interrumpeTras(1, u"TiendaKestrane"_s)};
    EXPECT_THROW(escribeListado(puesto.listados, Secciones), ErrorEjecucion);
    EXPECT_EQ(puesto.progreso.pasos, 0);
    puesto.contexto.ConexionListados.Close();
    EXPECT_EQ(m_puesto.filas(u"texto2"_s), QStringList{u"Corte"_s}) << "the row was written before";
}

TEST_F(ListadoCatalogoTest, NeitherStoreNorPeriodIsWritten)
{
    m_puesto.contexto.MultiTienda = true;
    m_puesto.contexto.TiendaSeleccionada = u"Centro"_s;
    m_puesto.contexto.FechaDesde = *Fecha::deCalendario(2024, 3, 1);
    m_puesto.tienda.ejecuta(u"insert into seccion (codigo, codigocliente, nombre) values (1, 'A', 'Corte')"_s);
    escribeListado(m_puesto.listados, Secciones);
    EXPECT_EQ(m_puesto.escritas(0), (QStringList{u"texto1"_s, u"texto2"_s, u"texto34"_s, u"texto35"_s}));
}

/// texto5 of a service with that `mostrarencaja`.
QString mostrado(const QString& mostrarencaja)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta(u"insert into servicios (codigo, mostrarencaja) values (1, "_s + mostrarencaja + u')');
    escribeListado(puesto.listados, {u"Select * from servicios", {}, ponMostrarEnCaja});
    return puesto.filas(u"texto5"_s).join(u',');
}

TEST(MostrarEnCaja, ZeroShowsNoAndAnyOtherValueSi)
{
    EXPECT_EQ(mostrado(u"0"_s), u"No"_s);
    EXPECT_EQ(mostrado(u"1"_s), u"Si"_s);
    EXPECT_EQ(mostrado(u"-1"_s), u"Si"_s);
    EXPECT_EQ(mostrado(u"2"_s), u"Si"_s);
    EXPECT_EQ(mostrado(u"null"_s), u"Si"_s);
}

} // namespace
} // namespace kestrane::listings
