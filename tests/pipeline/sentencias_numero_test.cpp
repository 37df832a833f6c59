#include "pipeline/sentencias_numero.h"

#include "apoyo/motor_anotado.h"
#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

class SentenciasNumero : public testing::Test
{
protected:
    void total(double valor, QStringView principio = u"update informes set numerico8= ")
    {
        ejecutaConNumero(m_puesto.listados, principio, valor);
    }

    PuestoDePrueba m_puesto;
};

TEST_F(SentenciasNumero, ATotalOfAnEmptyReportChangesNothingAndIsNoError)
{
    total(12.5);
    EXPECT_EQ(m_puesto.filas(u"numerico8"_s), QStringList{});
}

/// What reaches the engine with regional settings of the test's own. The engine is the embedded one, whose text is written down.
class SentenciasAnotadas : public testing::Test
{
protected:
    QString total(double valor, const ConfiguracionRegional& regional, QStringView principio = u"update informes set numerico8= ")
    {
        database::OpcionesDatos opciones = m_tienda.opciones(prueba::anotaEn(m_anotaciones));
        opciones.regional = regional;
        EntornoDatos entorno{opciones};
        ContextoEjecucion contexto{entorno};
        contexto.ConexionListados.Open(u"dsn=ListKestrane"_s);
        Listados listados{contexto, m_progreso, m_reloj};
        m_anotaciones.clear();
        ejecutaConNumero(listados, principio, valor);
        return m_anotaciones.join(u'\n');
    }

    prueba::TiendaDePrueba m_tienda{jet::Motor::Sqlite};
    QStringList m_anotaciones;
    prueba::ProgresoContado m_progreso;
    RelojFijo m_reloj{prueba::dia(2024, 3, 15)};
};

TEST_F(SentenciasAnotadas, OneStatementWithOneNumberIsSentWhateverTheDecimalMarkOfTheMachine)
{
    const QString enviada = u"ListKestrane: UPDATE informes SET numerico8 = 1234,5"_s; // as the recording engine writes the double
    EXPECT_EQ(total(1234.5, prueba::es()), enviada);
    EXPECT_EQ(total(1234.5, prueba::enUs()), enviada);
}

TEST_F(SentenciasAnotadas, NegativeAndSmallNumbersToo)
{
    for (const ConfiguracionRegional& regional : {prueba::es(), prueba::enUs()}) {
        EXPECT_EQ(total(-0.25, regional), u"ListKestrane: UPDATE informes SET numerico8 = -0,25"_s);
        EXPECT_EQ(total(0.00001234, regional), u"ListKestrane: UPDATE informes SET numerico8 = 1,234E-05"_s);
    }
}

TEST_F(SentenciasNumero, WithDecimalCommaTheNumberIsWrittenWithAPoint)
{
    m_puesto.tienda.ejecutaListados(
        {u"insert into informes (texto1) values ('a')"_s, u"insert into informes (texto1) values ('b')"_s});
    total(1234.5);
    EXPECT_EQ(m_puesto.filas(u"texto1,numerico8"_s), (QStringList{u"a|1234,5"_s, u"b|1234,5"_s}));
}

TEST_F(SentenciasNumero, TheSignOfTheStatementAndThatOfTheNumberAddUp)
{
    m_puesto.tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    total(-5.5, u"update informes set numerico3 = -");
    EXPECT_EQ(m_puesto.filas(u"numerico3"_s), QStringList{u"5,5"_s});
    total(0, u"update informes set numerico3 = -");
    EXPECT_EQ(m_puesto.filas(u"numerico3"_s), QStringList{u"0"_s});
}

TEST_F(SentenciasNumero, TheRestOfASumGoesInAsItIs)
{
    m_puesto.tienda.ejecutaListados(u"insert into informes (texto1) values ('a')"_s);
    total(-0.00000001);
    EXPECT_EQ(m_puesto.filas(u"numerico8"_s), QStringList{u"-1E-08"_s});
}

TEST_F(SentenciasNumero, WhatIsNoNumberEndsTheRun)
{
    EXPECT_THROW(total(std::numeric_limits<double>::infinity()), ErrorEjecucion);
}

TEST_F(SentenciasNumero, TheSummaryHoldsTheAmountsAboveZeroInTheirOrder)
{
    const std::array<LineaResumen, 5> lineas{{
        {u"insert into subinformes (numerico1,texto1) values (-", 0.25, u",'Ventas no Cobradas:')"},
        {u"insert into subinformes (numerico1,texto1) values (-", 0, u",'Gastos del Dia:')"},
        {u"insert into subinformes (numerico1,texto1) values (", -3, u",'Cobros de deudas Pendientes:')"},
        {u"insert into subinformes (numerico1,texto1) values (", 50, u",'Caja Inicial:')"},
        {u"insert into subinformes (numerico1,texto1) values (-", 1000.75, u",'Retiradas del dia:')"},
    }};
    escribeResumen(m_puesto.listados, lineas);
    EXPECT_EQ(m_puesto.filas(u"texto1,numerico1"_s, u"subinformes"_s),
              (QStringList{u"Ventas no Cobradas:|-0,25"_s, u"Caja Inicial:|50"_s, u"Retiradas del dia:|-1000,75"_s}));
}

} // namespace
} // namespace kestrane
