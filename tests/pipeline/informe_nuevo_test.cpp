#include "pipeline/informe_nuevo.h"

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

class InformeNuevoTest : public testing::Test
{
protected:
    InformeNuevoTest()
    {
        m_puesto.contexto.FechaDesde = *Fecha::deCalendario(2024, 3, 1);
        m_puesto.contexto.FechaHasta = *Fecha::deCalendario(2024, 3, 31);
    }

    /// The columns that one row with `cabecera` has got.
    QStringList cabecera(Cabecera cabecera)
    {
        InformeNuevo informe{m_puesto.listados, cabecera};
        informe.AddNew();
        informe.Fields(u"texto1") = u"x"_s;
        informe.Update();
        return m_puesto.escritas(0);
    }

    PuestoDePrueba m_puesto;
};

TEST_F(InformeNuevoTest, TheRowsOfTheReportBeforeAreClearedAndThoseOfSubinformesStay)
{
    m_puesto.tienda.ejecutaListados(
        {u"insert into informes (texto1) values ('antes')"_s, u"insert into subinformes (texto1) values ('antes')"_s});
    InformeNuevo informe{m_puesto.listados, cabeceras::Completa};
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{});
    EXPECT_EQ(m_puesto.filas(u"texto1"_s, u"subinformes"_s), QStringList{u"antes"_s});
}

TEST_F(InformeNuevoTest, EachHeaderWritesItsColumnsAndNoOther)
{
    m_puesto.contexto.MultiTienda = true;
    EXPECT_EQ(cabecera({}), (QStringList{u"texto1"_s}));
    EXPECT_EQ(cabecera(cabeceras::Empresa), (QStringList{u"texto1"_s, u"texto34"_s, u"texto35"_s}));
    EXPECT_EQ(cabecera(cabeceras::EmpresaYTienda), (QStringList{u"texto1"_s, u"texto33"_s, u"texto34"_s, u"texto35"_s}));
    EXPECT_EQ(cabecera(cabeceras::EmpresaYPeriodo),
              (QStringList{u"texto1"_s, u"texto34"_s, u"texto35"_s, u"fecha1"_s, u"fecha2"_s}));
    EXPECT_EQ(cabecera(cabeceras::Completa),
              (QStringList{u"texto1"_s, u"texto33"_s, u"texto34"_s, u"texto35"_s, u"fecha1"_s, u"fecha2"_s}));
}

TEST_F(InformeNuevoTest, TheHeaderHoldsCompanyStoreAndPeriod)
{
    m_puesto.contexto.MultiTienda = true;
    m_puesto.contexto.TiendaSeleccionada = u"Centro"_s;
    cabecera(cabeceras::Completa);
    EXPECT_EQ(m_puesto.filas(u"TEXTO35,TEXTO34,texto33,Fecha1,fecha2"_s),
              QStringList{u"Peluquería Ñandú|Calle Mayor, 1|Tienda = Centro|01/03/2024|31/03/2024"_s});
}

TEST_F(InformeNuevoTest, WithAllStoresTheStoreLineHasNothingBehindTheEqualsSign)
{
    m_puesto.contexto.MultiTienda = true;
    cabecera(cabeceras::Completa);
    EXPECT_EQ(m_puesto.filas(u"texto33"_s), QStringList{u"Tienda = "_s});
}

TEST_F(InformeNuevoTest, WhereThereIsOneStoreTheStoreLineStaysNull)
{
    m_puesto.contexto.TiendaSeleccionada = u"Centro"_s;
    cabecera(cabeceras::Completa);
    EXPECT_EQ(m_puesto.filas(u"texto33"_s), QStringList{u"nulo"_s});
}

TEST_F(InformeNuevoTest, AnEmptyAddressIsATextAndNotNull)
{
    cabecera(ColumnaCabecera::Empresa | ColumnaCabecera::DireccionVacia);
    EXPECT_EQ(m_puesto.filas(u"TEXTO35,TEXTO34"_s), QStringList{u"Peluquería Ñandú|"_s});
}

TEST_F(InformeNuevoTest, ASingleRowMayCarryAnotherHeader)
{
    m_puesto.contexto.MultiTienda = true;
    InformeNuevo informe{m_puesto.listados, cabeceras::Completa};
    informe.AddNew(cabeceras::EmpresaYPeriodo);
    informe.Update();
    informe.AddNew();
    informe.Update();
    EXPECT_EQ(m_puesto.filas(u"texto33"_s), (QStringList{u"nulo"_s, u"Tienda = "_s}));
}

TEST_F(InformeNuevoTest, AColumnOfTheRowThatIsBeingAddedIsReadBack)
{
    m_puesto.contexto.MultiTienda = true;
    InformeNuevo informe{m_puesto.listados, cabeceras::Completa};
    informe.AddNew();
    EXPECT_EQ(informe.Fields(u"texto33").texto(), u"Tienda = "_s);
    EXPECT_TRUE(informe.Fields(u"texto1").esNulo());
}

/// What the store line holds after a tax number was joined to it.
class LineaDeTienda : public InformeNuevoTest
{
protected:
    QStringList conCif(const QString& cif)
    {
        InformeNuevo informe{m_puesto.listados, cabeceras::Completa};
        informe.AddNew();
        informe.anade(u"texto33", u" "_s + cif);
        informe.Update();
        return m_puesto.filas(u"texto33"_s);
    }
};

TEST_F(LineaDeTienda, ATextIsJoinedToWhatTheColumnHolds)
{
    m_puesto.contexto.MultiTienda = true;
    EXPECT_EQ(conCif(u"B12"_s), QStringList{u"Tienda =  B12"_s});
    m_puesto.contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(conCif(u"B12"_s), QStringList{u"Tienda = Centro B12"_s});
    EXPECT_EQ(conCif({}), QStringList{u"Tienda = Centro "_s});
}

TEST_F(LineaDeTienda, WhereTheColumnIsStillNullTheTextStandsAlone)
{
    EXPECT_EQ(conCif(u"B12"_s), QStringList{u" B12"_s});
    EXPECT_EQ(conCif({}), QStringList{u" "_s});
}

TEST_F(InformeNuevoTest, WhatIsJoinedTwiceStandsInItsOrder)
{
    InformeNuevo informe{m_puesto.listados, {}};
    informe.AddNew();
    informe.Fields(u"texto3") = u"Corte"_s;
    informe.anade(u"texto3", u" + (Vale Descuento)"_s);
    informe.anade(u"texto3", u"!"_s);
    informe.Update();
    EXPECT_EQ(m_puesto.filas(u"texto3"_s), QStringList{u"Corte + (Vale Descuento)!"_s});
}

TEST_F(InformeNuevoTest, ABuilderMayWriteThroughAConnectionOfItsOwn)
{
    m_puesto.tienda.ejecutaListados(u"insert into informes (texto1) values ('antes')"_s);
    {
        Conexion propia{m_puesto.tienda.entorno()};
        propia.Open(u"dsn=ListKestrane"_s);
        InformeNuevo informe{m_puesto.listados, {}, propia};
        informe.AddNew();
        informe.Fields(u"texto1") = u"por la otra"_s;
        informe.Update();
        EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"por la otra"_s});
    }
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"por la otra"_s});
}

TEST_F(InformeNuevoTest, AConnectionOfItsOwnThatIsNotOpenIsTheDatabasesError)
{
    Conexion cerrada{m_puesto.tienda.entorno()};
    EXPECT_EQ(prueba::numeroDeError([&] {
                  const InformeNuevo informe{m_puesto.listados, {}, cerrada};
                  return 0;
              }),
              ErrorEjecucion::ConexionImposible);
}

TEST_F(InformeNuevoTest, RowsWrittenBeforeAnErrorStay)
{
    InformeNuevo informe{m_puesto.listados, cabeceras::Empresa};
    informe.AddNew();
    informe.Fields(u"texto1") = u"primera"_s;
    informe.Update();
    informe.AddNew();
    EXPECT_THROW(informe.Fields(u"texto31") = u"no existe"_s, ErrorEjecucion);
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"primera"_s});
}

} // namespace
} // namespace kestrane
