#include "cash/movimientos_de_caja.h"

#include "cash/tienda_de_caja.h"
#include "cash/vocabulary/alcance.h"

#include <gtest/gtest.h>

namespace kestrane::cash {
namespace {

using namespace Qt::StringLiterals;

class MovimientosDeCajaTest : public testing::Test
{
protected:
    prueba::TiendaDeCaja m_tienda;
};

TEST_F(MovimientosDeCajaTest, TheOpeningCashIsTheFirstOfTheDayAndNoneOverALongerPeriod)
{
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 0);
    m_tienda.mueve(u"caja_inicial"_s, 50.25);
    m_tienda.mueve(u"caja_inicial"_s, 7);
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 50.25);
    m_tienda.periodo(15, 16);
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 0);
}

TEST_F(MovimientosDeCajaTest, TheOpeningCashIsThatOfAStoreThatEndsInTheChosenOne)
{
    m_tienda.tienda.ejecuta({u"insert into caja_inicial (fecha, tienda, importe) values (#03/15/2024#, 'Centro Sur', 1)"_s,
                             u"insert into caja_inicial (fecha, tienda, importe) values (#03/15/2024#, null, 2)"_s,
                             u"insert into caja_inicial (fecha, tienda, importe) values (#03/15/2024#, 'Gran Centro', 30)"_s,
                             u"insert into caja_inicial (fecha, tienda, importe) values (#03/15/2024#, 'Centro', 400)"_s});
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 30);
    m_tienda.contexto.TiendaSeleccionada = u"Sur"_s;
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 1);
}

TEST_F(MovimientosDeCajaTest, AnOpeningCashWithoutAnAmountEndsTheRun)
{
    Recordset cajas;
    EXPECT_FALSE(abreCajaInicial(m_tienda.listados, cajas));
    m_tienda.tienda.ejecuta(u"insert into caja_inicial (fecha, tienda) values (#03/15/2024#, 'Centro')"_s);
    EXPECT_TRUE(abreCajaInicial(m_tienda.listados, cajas));
    EXPECT_EQ(m_tienda.error([](Listados& listados) { static_cast<void>(cajaInicialDelDia(listados)); }),
              ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(MovimientosDeCajaTest, APeriodIsOneDayWhateverItsTimes)
{
    m_tienda.contexto.FechaDesde = *Fecha::deCalendario(2024, 3, 15, 23);
    m_tienda.contexto.FechaHasta = *Fecha::deCalendario(2024, 3, 15, 8);
    EXPECT_TRUE(esDeUnDia(m_tienda.contexto));
    m_tienda.contexto.FechaHasta = *Fecha::deCalendario(2024, 3, 16);
    EXPECT_FALSE(esDeUnDia(m_tienda.contexto));
}

TEST_F(MovimientosDeCajaTest, WhatWasLeftUnpaidIsThatOfThePeriodsSales)
{
    m_tienda.vende({.numero = 1});
    m_tienda.vende({.numero = 2});
    m_tienda.vende({.numero = 3, .dia = u"#03/14/2024#"_s});
    m_tienda.debe(10, 1, 4.5);
    m_tienda.debe(11, 3, 100);
    m_tienda.debe(12, 2, 0.25);
    EXPECT_EQ(totalNoCobrado(m_tienda.listados), 4.75);
}

TEST_F(MovimientosDeCajaTest, SumsAreOfThePeriodAndTheStoreAndNoneIsZero)
{
    EXPECT_EQ(sumaDeImportes(m_tienda.listados, u"gastos"_s), 0);
    m_tienda.mueve(u"gastos"_s, 4.5);
    m_tienda.mueve(u"gastos"_s, 1.25);
    m_tienda.mueve(u"gastos"_s, 100, u"#03/16/2024#"_s);
    EXPECT_EQ(sumaDeImportes(m_tienda.listados, u"gastos"_s), 5.75);
    EXPECT_EQ(importesDe(m_tienda.listados, u"gastos"_s), 5.75);
    m_tienda.contexto.TiendaSeleccionada = u"Sur"_s;
    EXPECT_EQ(sumaDeImportes(m_tienda.listados, u"gastos"_s), 0);
    EXPECT_EQ(importesDe(m_tienda.listados, u"gastos"_s), 0);
}

TEST_F(MovimientosDeCajaTest, TheDatabasesSumSkipsANullAndTheRowByRowSumEndsTheRun)
{
    m_tienda.mueve(u"gastos"_s, 4.5);
    m_tienda.tienda.ejecuta(u"insert into gastos (fecha, tienda) values (#03/15/2024#, 'Centro')"_s);
    m_tienda.mueve(u"gastos"_s, 1.25);
    EXPECT_EQ(sumaDeImportes(m_tienda.listados, u"gastos"_s), 5.75);
    EXPECT_EQ(m_tienda.error([](Listados& listados) { static_cast<void>(importesDe(listados, u"gastos"_s)); }),
              ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(MovimientosDeCajaTest, APeriodFromADayToAnEarlierOneIsNotOneDay)
{
    m_tienda.periodo(16, 15);
    m_tienda.mueve(u"caja_inicial"_s, 50, u"#03/16/2024#"_s);
    EXPECT_FALSE(esDeUnDia(m_tienda.contexto));
    EXPECT_EQ(cajaInicialDelDia(m_tienda.listados), 0);
}

TEST_F(MovimientosDeCajaTest, TheProgressBarGoesOnWithEachRowOnlyWhenItIsTo)
{
    m_tienda.mueve(u"gastos"_s, 1);
    m_tienda.mueve(u"gastos"_s, 1);
    EXPECT_EQ(importesDe(m_tienda.listados, u"gastos"_s), 2);
    EXPECT_EQ(sumaDeImportes(m_tienda.listados, u"gastos"_s), 2);
    EXPECT_EQ(m_tienda.progreso.pasos, 0);
    EXPECT_EQ(importesDe(m_tienda.listados, u"gastos"_s, Avance::Cuenta), 2);
    EXPECT_EQ(m_tienda.progreso.pasos, 2);
}

} // namespace
} // namespace kestrane::cash
