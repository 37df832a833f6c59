// The balance of the general cash: what is in it, the summary box, and what is written into all rows at the end.

#include "cash/listado_caja_general.h"

#include "cash/ventas_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class CajaGeneralSaldoTest : public prueba::PruebaVentas
{
protected:
    void construye() { ListadoCajaGeneral(m_listados); }
    /// A product that employee 3 sold for 1 euro, so that there is a row.
    void vendeAlgo()
    {
        venta(101, 1, u"1"_s);
        alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s,
             u"101, 9, 'P', 'Centro', 3, 1"_s);
    }
    QString saldo() { return m_puesto.filas(u"numerico19"_s).join(u' '); }
    QStringList resumen() { return m_puesto.filas(u"texto1,numerico1"_s, u"subinformes"_s); }
    QString rotulos(const QString& sabor)
    {
        m_contexto.TipoPrograma = sabor;
        construye();
        return m_puesto.filas(u"texto1,texto2,texto3"_s).join(u' ');
    }
};

TEST_F(CajaGeneralSaldoTest, TheLinesOfTheSummaryStandInTheirOrderWithTheirSigns)
{
    vendeAlgo();
    deuda(1, 101, u"7.5"_s);
    alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s,
         u"101, 2, 'S', 'Centro', 3, 64"_s);
    movimiento(u"gastos"_s, u"16"_s);
    movimiento(u"gastos"_s, u"4"_s);
    cobro(2, u"32"_s);
    cobro(4, u"8"_s);
    movimiento(u"caja_inicial"_s, u"100"_s);
    movimiento(u"caja_inicial"_s, u"9999"_s);
    movimiento(u"retiradas"_s, u"50"_s);
    construye();
    EXPECT_EQ(resumen(), (QStringList{u"Ventas no Cobradas:|-7,5"_s, u"Gastos del Dia:|-20"_s, u"Cobros de deudas Pendientes:|40"_s,
                                      u"Caja Inicial:|100"_s, u"Ingreso en Deposito:|64"_s, u"Retiradas del dia:|-50"_s}));
    EXPECT_EQ(saldo(), u"126,5"_s); // -7.5 - 20 + 40 + 100 - 50 + 64
}

TEST_F(CajaGeneralSaldoTest, LinesThatAreNotAboveZeroAreNotWrittenButCount)
{
    vendeAlgo();
    movimiento(u"gastos"_s, u"-16"_s);
    cobro(2, u"-32"_s);
    movimiento(u"caja_inicial"_s, u"0"_s);
    construye();
    EXPECT_EQ(resumen(), QStringList{});
    EXPECT_EQ(saldo(), u"-16"_s);
}

TEST_F(CajaGeneralSaldoTest, ALongerPeriodHasNeitherOpeningCashNorWithdrawals)
{
    vendeAlgo();
    movimiento(u"caja_inicial"_s, u"100"_s);
    movimiento(u"retiradas"_s, u"50"_s);
    movimiento(u"gastos"_s, u"16"_s, u"#03/02/2024#"_s);
    marzo();
    construye();
    EXPECT_EQ(resumen(), QStringList{u"Gastos del Dia:|-16"_s});
    EXPECT_EQ(saldo(), u"-16"_s);
}

TEST_F(CajaGeneralSaldoTest, WithExpensesAloneThereIsNoRowButTheSummary)
{
    m_contexto.ConexionListados.Execute(u"insert into informes (texto1) values ('vieja')"_s);
    m_contexto.ConexionListados.Execute(u"insert into subinformes (texto1) values ('vieja')"_s);
    movimiento(u"gastos"_s, u"16"_s);
    construye();
    EXPECT_EQ(m_puesto.filas(u"texto1"_s), QStringList{});
    EXPECT_EQ(resumen(), QStringList{u"Gastos del Dia:|-16"_s});
}

TEST_F(CajaGeneralSaldoTest, UnpaidSalesStayInTheRowsAndAreTakenOffTheBalanceByStore)
{
    vendeAlgo();
    deuda(1, 101, u"7"_s);
    ejecuta({u"update cabecera_pago set tienda = 'Sur'"_s});
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    construye();
    EXPECT_EQ(saldo(), u"0"_s);
    m_contexto.TiendaSeleccionada.clear();
    construye();
    EXPECT_EQ(saldo(), u"-7"_s);
    EXPECT_EQ(m_puesto.filas(u"numerico3"_s), QStringList{u"1"_s});
}

TEST_F(CajaGeneralSaldoTest, EveryRowBearsTheFamiliesOfTheFlavour)
{
    vendeAlgo();
    EXPECT_EQ(rotulos(u"PELUQUERIA"_s), u"Servicios|nulo|nulo"_s);
    EXPECT_EQ(rotulos(u"ESTETICA"_s), u"Servicios|Pack Servicios|nulo"_s);
    EXPECT_EQ(rotulos(u"CLINICAS"_s), u"Servicios|Pack Servicios|nulo"_s);
    EXPECT_EQ(rotulos(u"SPA"_s), u"Servicios|Pack Servicios|Pack Spa"_s);
    for (const QString& sabor : {u"TPV"_s, u"PERFUMERIA"_s, u"ZAPATERIA"_s, u"TALLACOLOR"_s, u"SUPERMERCADO"_s, u"PANADERIA"_s})
        EXPECT_EQ(rotulos(sabor), u"nulo|nulo|nulo"_s) << sabor.toStdString();
}

TEST_F(CajaGeneralSaldoTest, ARetailShopHasTheLabelsOfRowsThatSoldInTheFamily)
{
    vendeAlgo();
    alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s, u"101, 9, 'S', 'Centro', 7, 1"_s);
    m_contexto.TipoPrograma = u"TPV"_s;
    construye();
    EXPECT_EQ(m_puesto.filas(u"texto21,texto1"_s), (QStringList{u"3|nulo"_s, u"7|Servicios"_s}));
}

TEST_F(CajaGeneralSaldoTest, TheStoreIsNamedWhateverTheNumberOfStores)
{
    vendeAlgo();
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    for (const bool varias : {false, true}) {
        m_contexto.MultiTienda = varias;
        construye();
        EXPECT_EQ(m_puesto.filas(u"texto33"_s), QStringList{u"Tienda = Centro"_s});
    }
}

TEST_F(CajaGeneralSaldoTest, NullAmountsOfDebtsAndOpeningCashEndTheRunAndRowsSoFarStay)
{
    vendeAlgo();
    movimiento(u"caja_inicial"_s, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { construye(); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(m_puesto.filas(u"texto21,numerico3,numerico19"_s), QStringList{u"3|1|nulo"_s});
    deuda(1, 101, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { construye(); }), ErrorEjecucion::UsoNoValidoDeNull);
}

} // namespace
} // namespace kestrane
