// The report-wide columns of the cash by ticket: what is in them, in which rows, and in what order they are written.

#include "cash/listado_caja_tickets.h"

#include "cash/tienda_escuchada.h"
#include "cash/ventas_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class CajaTicketsTotalesTest : public prueba::PruebaVentas
{
protected:
    void construye() { ListadoCajaTickets(m_listados); }
    /// "unpaid|cash|card|expenses|withdrawals|debts collected" of all rows.
    QStringList totales() { return m_puesto.filas(u"numerico13,numerico10,numerico11,numerico3,numerico20,numerico12"_s); }
};

TEST_F(CajaTicketsTotalesTest, AllTotalsStandInTheRowsThatThereWereAtThatMoment)
{
    movimiento(u"caja_inicial"_s, u"100"_s);
    movimiento(u"gastos"_s, u"12.5"_s);
    movimiento(u"gastos"_s, u"2.5"_s);
    movimiento(u"retiradas"_s, u"40"_s);
    venta(101, 1, u"60"_s);
    venta(102, 2, u"30"_s);
    deuda(1, 101, u"20"_s);
    abono(5, 90, 1, u"10"_s);
    cobro(2, u"8"_s);
    construye();
    // Cash 100 + 60 - 10, card 30 + 8.
    EXPECT_EQ(totales(), (QStringList{u"-20|150|38|-15|-40|8"_s, u"-20|150|38|-15|-40|8"_s, u"nulo|150|38|-15|-40|8"_s,
                                      u"nulo|150|38|-15|-40|8"_s}));
}

TEST_F(CajaTicketsTotalesTest, NegativeTotalsMeetTheSignOfTheStatement)
{
    venta(101, 1, u"60"_s);
    deuda(1, 101, u"-20.5"_s);
    movimiento(u"gastos"_s, u"-7.25"_s);
    movimiento(u"retiradas"_s, u"-3"_s);
    construye();
    EXPECT_EQ(totales(), QStringList{u"20,5|60|0|7,25|3|0"_s});
}

TEST_F(CajaTicketsTotalesTest, ADayWithDebtsCollectedAloneHasOneRowWithThemAlone)
{
    m_contexto.MultiTienda = true;
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    cobro(1, u"25.5"_s);
    cobro(2, u"4.5"_s);
    construye();
    EXPECT_EQ(totales(), QStringList{u"nulo|nulo|nulo|nulo|nulo|30"_s});
    EXPECT_EQ(m_puesto.filas(u"texto33,TEXTO35,Fecha1,fecha2,numerico2,texto2"_s),
              QStringList{u"Tienda = Centro|Peluquería Ñandú|15/03/2024|15/03/2024|nulo|nulo"_s});
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"Observaciones de Caja: \r\n"_s}) << "the notes come after it";
}

TEST_F(CajaTicketsTotalesTest, ADayWithNothingAtAllHasThatRowWithZero)
{
    construye();
    EXPECT_EQ(totales(), QStringList{u"nulo|nulo|nulo|nulo|nulo|0"_s});
}

TEST_F(CajaTicketsTotalesTest, TheBarGoesOnWithEachRowThatIsReadAndNotWithTheOpeningCash)
{
    m_contexto.CajaCompleta = true;
    venta(101, 1, u"60"_s);
    venta(102, 3, u"30"_s, u"10"_s, u"20"_s);
    anulada(-1, 1, u"5"_s, 0);
    abono(5, 90, 2, u"10"_s);
    cobro(1, u"8"_s);
    movimiento(u"caja_inicial"_s, u"100"_s);
    movimiento(u"gastos"_s, u"1"_s);
    movimiento(u"retiradas"_s, u"40"_s);
    ejecuta(
        {u"insert into observacioncaja (fecha, tienda, observacion) values (#03/15/2024#, 'Centro', 'Nota')"_s,
         u"insert into detalle_factura (num_factura, codigo, tipo_venta, tipoimpuesto, impuesto, precio) values (101, 2, 'S', 0, 0, 60)"_s,
         u"insert into detalle_factura (num_factura, codigo, tipo_venta, tipoimpuesto, impuesto, precio) values (102, 7, 'P', 0, 0, 30)"_s});
    construye();
    // Rows 2 + 1 + 1; cash 2 sales, 1 payment; card 1 sale, 1 return; notes 1 + 1; lines 2.
    EXPECT_EQ(m_puesto.progreso.pasos, 4 + 3 + 2 + 2 + 2);
}

TEST_F(CajaTicketsTotalesTest, AnApostropheInARemarkEndsTheRunAndRowsSoFarStay)
{
    venta(101, 1, u"60"_s);
    ejecuta({u"insert into observacioncaja (fecha, tienda, observacion) values (#03/15/2024#, 'Centro', 'vino O''Donnell')"_s});
    m_contexto.ConexionListados.Execute(u"insert into subinformes (texto1) values ('vieja')"_s);
    EXPECT_EQ(numeroDeError([&] { construye(); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(totales(), QStringList{u"0|60|0|0|0|0"_s});
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{u"nulo"_s});
    EXPECT_EQ(m_puesto.filas(u"texto1"_s, u"subinformes"_s), QStringList{u"vieja"_s}) << "the summary had not begun";
}

TEST_F(CajaTicketsTotalesTest, ANullOpeningCashEndsTheRunBehindItsRow)
{
    venta(101, 1, u"60"_s);
    movimiento(u"caja_inicial"_s, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { construye(); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(totales(), (QStringList{u"0|nulo|nulo|nulo|nulo|nulo"_s, u"nulo|nulo|nulo|nulo|nulo|nulo"_s}));
    EXPECT_EQ(m_puesto.filas(u"texto2,numerico1"_s), (QStringList{u"nulo|60"_s, u"Caja Inicial|nulo"_s}));
}

TEST(CajaTicketsSentenciasDeListadosTest, TheReportsDatabaseIsWrittenInThisOrder)
{
    prueba::TiendaEscuchada tienda;
    tienda.puesto.contexto.FechaDesde = tienda.puesto.contexto.FechaHasta = prueba::dia(2024, 3, 15);
    tienda.tienda.ejecuta(
        {u"insert into formapago (codigo, Nombre) values (1, 'Contado')"_s,
         u"insert into cabecera_factura (Numero, fechaventa, tienda, pago, total) values (101, #03/15/2024#, '', 1, 5.5)"_s,
         u"insert into gastos (fecha, tienda, importe, motivo) values (#03/15/2024#, '', 1.25, 'Pan')"_s});
    EXPECT_EQ(tienda.cambios(ListadoCajaTickets),
              (QStringList{u"DELETE FROM informes"_s, u"filas en informes"_s, u"UPDATE informes SET numerico13 = 0"_s,
                           u"UPDATE informes SET numerico10 = 5,5"_s, u"UPDATE informes SET numerico11 = 0"_s,
                           u"UPDATE informes SET numerico3 = -1,25"_s, u"UPDATE informes SET numerico20 = 0"_s,
                           u"UPDATE informes SET numerico12 = 0"_s,
                           u"UPDATE informes SET texto1 = 'Observaciones de Caja: \r\nGastos: 1 Pan\r\n'"_s,
                           u"DELETE FROM subinformes"_s}));
}

} // namespace
} // namespace kestrane
