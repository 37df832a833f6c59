#include "cash/listado_caja_tickets.h"

#include "cash/ventas_de_prueba.h"

#include <QSet>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class ListadoCajaTicketsTest : public prueba::PruebaVentas
{
protected:
    void construye() { ListadoCajaTickets(m_listados); }
    int error()
    {
        return numeroDeError([&] { construye(); });
    }
    /// "number|mark|amount|in the till|code|form" of all rows.
    QStringList filas() { return m_puesto.filas(u"numerico2,texto2,numerico1,numerico22,numerico17,texto30"_s); }
};

TEST_F(ListadoCajaTicketsTest, TicketsStandByNumberWithTheirAmountAndFormOfPayment)
{
    venta(102, 2, u"20.5"_s);
    venta(101, 1, u"10"_s);
    venta(103, 6, u"5"_s);
    construye();
    EXPECT_EQ(filas(), (QStringList{u"101|nulo|10|10|1|Contado"_s, u"102|nulo|20,5|20,5|2|Tarjeta"_s, u"103|nulo|5|5|6|"_s}));
}

TEST_F(ListadoCajaTicketsTest, ADeliveryNoteWinsOverAReturnAndOtherMarksAreNone)
{
    for (int numero = 101; numero <= 106; ++numero)
        venta(numero, 1, u"10"_s);
    ejecuta({u"update cabecera_factura set caracteristicaventa = 'DV' where numero = 101"_s,
             u"update cabecera_factura set num_albaran = 7 where numero = 102"_s,
             u"update cabecera_factura set caracteristicaventa = 'DV', num_albaran = 8 where numero = 103"_s,
             u"update cabecera_factura set num_albaran = 0 where numero = 104"_s,
             u"update cabecera_factura set caracteristicaventa = 'dv', num_albaran = -1 where numero = 105"_s,
             u"update cabecera_factura set caracteristicaventa = 'XX' where numero = 106"_s});
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,texto2"_s),
              (QStringList{u"101|Abono"_s, u"102|Albaran"_s, u"103|Albaran"_s, u"104|nulo"_s, u"105|nulo"_s, u"106|nulo"_s}));
}

TEST_F(ListadoCajaTicketsTest, ATicketPaidFromDepositIsZeroButItsReturnIsNot)
{
    venta(101, 4, u"30"_s);
    abono(5, 101, 4, u"30"_s);
    construye();
    EXPECT_EQ(filas(), (QStringList{u"101|nulo|0|0|4|Deposito"_s, u"5| / 101 Abono|-30|-30|4|Deposito"_s}));
}

TEST_F(ListadoCajaTicketsTest, WhatWasLeftUnpaidDoesNotEnterTheTill)
{
    venta(101, 1, u"100"_s);
    venta(102, 2, u"50"_s);
    venta(103, 4, u"40"_s);
    deuda(1, 101, u"30"_s);
    deuda(2, 103, u"15"_s);
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,numerico1,numerico22,numerico13"_s),
              (QStringList{u"101|100|70|-45"_s, u"102|50|50|-45"_s, u"103|0|-15|-45"_s}));
}

TEST_F(ListadoCajaTicketsTest, ADebtOfAnotherStoreIsNone)
{
    venta(101, 1, u"100"_s);
    ejecuta({u"insert into cabecera_pago (num_pago, num_factura, importe, tienda) values (1, 101, 30, 'Sur')"_s});
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico22,numerico13"_s), QStringList{u"100|0"_s});
}

TEST_F(ListadoCajaTicketsTest, AnnulledTicketsCountOnlyInTheWholeCash)
{
    anulada(-1, 1, u"10"_s, 0);
    construye();
    EXPECT_EQ(filas(), QStringList{u"nulo|nulo|nulo|nulo|nulo|nulo"_s}) << "the row of an empty report";
    m_contexto.CajaCompleta = true;
    construye();
    EXPECT_EQ(filas(), QStringList{u"-1| Eliminado|10|10|1|Contado"_s});
}

TEST_F(ListadoCajaTicketsTest, AnnulledTicketsStandBehindTheOthersAndKeepWhatWasLeftUnpaid)
{
    m_contexto.CajaCompleta = true;
    venta(200, 1, u"1"_s);
    anulada(150, 2, u"100"_s, -1);
    anulada(-3, 4, u"60"_s, 0);
    anulada(151, 1, u"99"_s, 0);
    ejecuta({u"update cabecera_factura_anulaciones set caracteristicaventa = 'DV', num_albaran = 4 where numero = 150"_s});
    deuda(1, 150, u"30"_s);
    construye();
    EXPECT_EQ(filas(),
              (QStringList{u"200|nulo|1|1|1|Contado"_s, u"-3| Eliminado|0|0|4|Deposito"_s, u"150| Eliminado|100|100|2|Tarjeta"_s}));
    EXPECT_EQ(m_puesto.filas(u"numerico13"_s), QStringList(3, u"-30"_s)) << "their debt is in the total";
}

TEST_F(ListadoCajaTicketsTest, ReturnsStandByNumberAndNameTheirSale)
{
    abono(7, 101, 2, u"25.5"_s);
    abono(6, 102, 1, u"-5"_s);
    construye();
    EXPECT_EQ(filas(), (QStringList{u"6| / 102 Abono|5|5|1|Contado"_s, u"7| / 101 Abono|-25,5|-25,5|2|Tarjeta"_s}));
}

TEST_F(ListadoCajaTicketsTest, TheOpeningCashIsTheFirstOfTheDayAndNamesNoStore)
{
    m_contexto.MultiTienda = true;
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    movimiento(u"caja_inicial"_s, u"99"_s, u"#03/14/2024#"_s);
    movimiento(u"caja_inicial"_s, u"150.25"_s);
    movimiento(u"caja_inicial"_s, u"70"_s);
    venta(101, 1, u"10"_s);
    construye();
    EXPECT_EQ(filas(), (QStringList{u"101|nulo|10|10|1|Contado"_s, u"0|Caja Inicial|150,25|nulo|nulo|nulo"_s}));
    EXPECT_EQ(m_puesto.filas(u"texto33,Fecha1,fecha2,TEXTO35,TEXTO34"_s),
              (QStringList{u"Tienda = Centro|15/03/2024|15/03/2024|Peluquería Ñandú|Calle Mayor, 1"_s,
                           u"nulo|15/03/2024|15/03/2024|Peluquería Ñandú|Calle Mayor, 1"_s}));
}

TEST_F(ListadoCajaTicketsTest, ALongerPeriodHasNoOpeningCashAndNoWithdrawals)
{
    movimiento(u"caja_inicial"_s, u"150"_s);
    movimiento(u"retiradas"_s, u"40"_s);
    venta(101, 1, u"10"_s);
    marzo();
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,numerico10,numerico20"_s), QStringList{u"101|10|0"_s});
}

TEST_F(ListadoCajaTicketsTest, TheStoreIsAnyThatEndsInTheChosenOne)
{
    const QStringList tiendas{u"'Centro'"_s, u"'Gran Centro'"_s, u"'Centro Sur'"_s, u"null"_s};
    for (int i = 0; i < 4; ++i) {
        venta(101 + i, 1, u"10"_s);
        ejecuta({u"update cabecera_factura set tienda = %1 where numero = %2"_s.arg(tiendas[i]).arg(101 + i)});
    }
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,numerico10,texto33"_s), (QStringList{u"101|20|nulo"_s, u"102|20|nulo"_s}));
    m_contexto.TiendaSeleccionada.clear();
    m_contexto.MultiTienda = true;
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,texto33"_s), (QStringList{u"101|Tienda = "_s, u"102|Tienda = "_s, u"103|Tienda = "_s}));
}

TEST_F(ListadoCajaTicketsTest, OnlyTheColumnsOfTheReportAreWritten)
{
    venta(101, 1, u"10"_s);
    abono(5, 101, 1, u"1"_s);
    movimiento(u"caja_inicial"_s, u"1"_s);
    construye();
    const QStringList comunes{u"texto1"_s,     u"texto34"_s,    u"texto35"_s,    u"numerico1"_s,  u"numerico2"_s, u"numerico3"_s,
                              u"numerico10"_s, u"numerico11"_s, u"numerico12"_s, u"numerico20"_s, u"fecha1"_s,    u"fecha2"_s};
    const auto escritas = [&](int fila) {
        const QStringList nombres = m_puesto.escritas(fila);
        return QSet<QString>(nombres.begin(), nombres.end());
    };
    const auto con = [&](const QStringList& otras) {
        const QStringList todas = comunes + otras;
        return QSet<QString>(todas.begin(), todas.end());
    };
    EXPECT_EQ(escritas(0), con({u"texto30"_s, u"numerico13"_s, u"numerico17"_s, u"numerico22"_s}));
    EXPECT_EQ(escritas(1), con({u"texto2"_s, u"texto30"_s, u"numerico17"_s, u"numerico22"_s}));
    EXPECT_EQ(escritas(2), con({u"texto2"_s}));
}

TEST_F(ListadoCajaTicketsTest, ANullTotalStaysNullAndANullCodeIsRefused)
{
    m_contexto.CajaCompleta = true;
    anulada(-1, 2, u"null"_s, 0);
    abono(5, 101, 6, u"null"_s);
    venta(101, 6, u"null"_s);
    deuda(1, 101, u"5"_s);
    construye();
    EXPECT_EQ(m_puesto.filas(u"numerico2,numerico1,numerico22"_s),
              (QStringList{u"101|nulo|nulo"_s, u"-1|nulo|nulo"_s, u"5|nulo|nulo"_s}));
    ejecuta({u"insert into cabecera_factura (Numero, fechaventa, tienda, total) values (102, #03/15/2024#, 'Centro', 1)"_s});
    EXPECT_EQ(error(), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(m_puesto.filas(u"numerico2"_s), QStringList{u"101"_s}) << "rows written so far stay";
}

TEST_F(ListadoCajaTicketsTest, AnApostropheInTheStoreEndsTheRunWithTheReportCleared)
{
    m_puesto.contexto.ConexionListados.Execute(u"insert into informes (texto1) values ('vieja')"_s);
    m_contexto.TiendaSeleccionada = u"O'Donnell"_s;
    EXPECT_EQ(error(), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(filas(), QStringList{});
}

} // namespace
} // namespace kestrane
