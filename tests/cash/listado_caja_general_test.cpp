#include "cash/listado_caja_general.h"

#include "cash/ventas_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class ListadoCajaGeneralTest : public prueba::PruebaVentas
{
protected:
    ListadoCajaGeneralTest()
    {
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"3, 'Ana', 'Paz'"_s);
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"7, 'Luis', 'Gil'"_s);
    }

    void linea(int venta, const QString& tipo, int codigo, int empleado, const QString& precio,
               const QString& tabla = u"detalle_factura"_s)
    {
        alta(tabla, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s,
             u"%1, %2, '%3', 'Centro', %4, %5"_s.arg(venta).arg(codigo).arg(tipo).arg(empleado).arg(precio));
    }
    /// A returned line that the statements find: its sale's number is that of the return.
    void devuelta(int abono, const QString& tipo, int codigo, int empleado, const QString& precio)
    {
        linea(abono, tipo, codigo, empleado, precio, u"detalle_abono"_s);
    }
    void lineaAnulada(int venta, const QString& tipo, int codigo, int empleado, const QString& precio)
    {
        linea(venta, tipo, codigo, empleado, precio, u"detalle_factura_anulaciones"_s);
    }

    void construye() { ListadoCajaGeneral(m_listados); }
    /// "key|products|services|packs|spa packs" of all rows.
    QStringList importes() { return m_puesto.filas(u"texto21,numerico3,numerico1,numerico2,numerico4"_s); }
    /// "line|amount" of the summary box.
    QStringList resumen() { return m_puesto.filas(u"texto1,numerico1"_s, u"subinformes"_s); }
};

TEST_F(ListadoCajaGeneralTest, EachKindOfLineGoesToItsFamily)
{
    venta(101, 1, u"0"_s);
    int peso = 1;
    for (const QString& tipo :
         {u"P"_s, u"S"_s, u"B"_s, u"CB"_s, u"CPSPA"_s, u"F"_s, u"BF"_s, u"CBF"_s, u"PSPA"_s, u"SF"_s, u"CSF"_s, u"SP"_s})
        linea(101, tipo, 9, 3, QString::number(peso++));
    construye();
    EXPECT_EQ(importes(), QStringList{u"3|1|14|21|9"_s}) << "S B CB CPSPA 2+3+4+5, F BF CBF 6+7+8";
    EXPECT_EQ(m_puesto.filas(u"TEXTO20,texto1,texto2,texto3,texto33"_s),
              QStringList{u"Ana P|Servicios|Pack Servicios|Pack Spa|Tienda = "_s});
}

TEST_F(ListadoCajaGeneralTest, ARowHoldsSalesLessReturnsPlusAnnulledSalesFamilyByFamily)
{
    m_contexto.CajaCompleta = true;
    venta(101, 1, u"0"_s);
    abono(5, 90, 1, u"0"_s);
    anulada(-1, 1, u"0"_s, 0);
    const QString tipos[] = {u"P"_s, u"S"_s, u"F"_s, u"PSPA"_s};
    for (int i = 0; i < 4; ++i) {
        linea(101, tipos[i], 9, 3, QString::number(100 + i));
        devuelta(5, tipos[i], 9, 3, QString::number(10 * (i + 1)));
        lineaAnulada(-1, tipos[i], 9, 3, QString::number(1000 * (i + 1)));
    }
    construye();
    EXPECT_EQ(importes(), QStringList{u"3|1090|2081|3072|4063"_s});
    m_contexto.CajaCompleta = false;
    construye();
    EXPECT_EQ(importes(), QStringList{u"3|90|81|72|63"_s});
}

TEST_F(ListadoCajaGeneralTest, SellersStandInTheOrderInWhichTheyTurnUp)
{
    venta(101, 1, u"0"_s);
    abono(5, 90, 1, u"0"_s);
    linea(101, u"P"_s, 9, 7, u"10"_s);
    devuelta(5, u"P"_s, 9, 8, u"2"_s);
    linea(101, u"S"_s, 9, 3, u"20"_s);
    linea(101, u"F"_s, 9, -1, u"30"_s);
    construye();
    EXPECT_EQ(m_puesto.filas(u"texto21,TEXTO20,numerico3,numerico1,numerico2"_s),
              (QStringList{u"7|Luis G|10|nulo|nulo"_s, u"8||-2|nulo|nulo"_s, u"3|Ana P|nulo|20|nulo"_s,
                           u"-1|Ventas Compartidas|nulo|nulo|30"_s}));
}

TEST_F(ListadoCajaGeneralTest, AnEmployeeWithOnlyAReturnHasANegativeRow)
{
    abono(5, 90, 1, u"0"_s);
    devuelta(5, u"S"_s, 9, 3, u"12.5"_s);
    construye();
    EXPECT_EQ(m_puesto.filas(u"texto21,TEXTO20,numerico1,texto1"_s), QStringList{u"3|Ana P|-12,5|Servicios"_s});
}

TEST_F(ListadoCajaGeneralTest, AReturnIsFoundByTheWrongNumberAndSoItStays)
{
    venta(90, 1, u"0"_s);
    abono(5, 90, 1, u"0"_s);
    alta(u"detalle_abono"_s, u"num_abono, num_factura, codigo, tipo_venta, tienda, codempleado, precio"_s,
         u"5, 90, 9, 'S', 'Centro', 3, 12"_s);
    construye();
    EXPECT_EQ(importes(), QStringList{});
}

TEST_F(ListadoCajaGeneralTest, SalesFromDepositAreInNoRowNorTheirReturnsNorAnnulledOnes)
{
    m_contexto.CajaCompleta = true;
    venta(101, 4, u"0"_s);
    abono(5, 90, 4, u"0"_s);
    anulada(-1, 4, u"0"_s, 0);
    for (const QString& tipo : {u"P"_s, u"S"_s, u"F"_s, u"PSPA"_s}) {
        linea(101, tipo, 9, 3, u"1"_s);
        devuelta(5, tipo, 9, 3, u"1"_s);
        lineaAnulada(-1, tipo, 9, 3, u"1"_s);
    }
    construye();
    EXPECT_EQ(importes(), QStringList{});
}

TEST_F(ListadoCajaGeneralTest, SharedProductsAndPacksAreOneSellerAndSharedServicesTheirCombination)
{
    m_contexto.CajaCompleta = true;
    venta(101, 1, u"0"_s);
    abono(5, 90, 1, u"0"_s);
    anulada(-1, 1, u"0"_s, 0);
    for (const QString& tipo : {u"P"_s, u"S"_s, u"F"_s})
        linea(101, tipo, 9, -1, u"10"_s);
    lineaAnulada(-1, u"S"_s, 9, -1, u"1000"_s);
    devuelta(5, u"S"_s, 9, -1, u"3"_s);
    for (const int empleado : {3, 7}) {
        alta(u"ventas_compartidas"_s, u"num_factura, cod_detalle, tipo_venta, cod_empleado, importe"_s,
             u"101, 9, 'S', %1, 5"_s.arg(empleado));
        alta(u"ventas_compartidas"_s, u"num_factura, cod_detalle, tipo_venta, cod_empleado, importe"_s,
             u"-1, 9, 'S', %1, 500"_s.arg(empleado));
    }
    construye();
    EXPECT_EQ(m_puesto.filas(u"texto21,TEXTO20,numerico3,numerico1,numerico2"_s),
              (QStringList{u"-1|Ventas Compartidas|10|-3|10"_s, u"1,3,7|ompartida,Ana P,Luis G|nulo|10|nulo"_s,
                           u"3,7|Ana P (Compartido con) Luis G|nulo|1000|nulo"_s}))
        << "returns of shared services fall on the key -1, annulled ones have a row of their own";
}

TEST_F(ListadoCajaGeneralTest, AnnulledSharesAreReadInTheWholeCashAlone)
{
    anulada(-1, 1, u"0"_s, 0);
    alta(u"ventas_compartidas"_s, u"num_factura, cod_detalle, tipo_venta, cod_empleado, importe"_s, u"-1, 9, 'S', 3, 5"_s);
    construye();
    EXPECT_EQ(importes(), QStringList{});
    m_contexto.CajaCompleta = true;
    construye();
    EXPECT_EQ(importes(), QStringList{u"3|nulo|5|nulo|nulo"_s});
}

TEST_F(ListadoCajaGeneralTest, MoneyForDepositsEntersTheBalanceWhateverItWasPaidWith)
{
    m_contexto.CajaCompleta = true;
    venta(101, 1, u"0"_s);
    venta(102, 4, u"0"_s);
    abono(5, 90, 4, u"0"_s);
    anulada(-1, 2, u"0"_s, 0);
    linea(101, u"S"_s, 2, 3, u"100"_s);
    linea(102, u"S"_s, 2, -1, u"10"_s);
    linea(102, u"CB"_s, 2, 3, u"9999"_s);
    devuelta(5, u"S"_s, 2, 3, u"30"_s);
    lineaAnulada(-1, u"S"_s, 2, 3, u"1000"_s);
    construye();
    EXPECT_EQ(resumen(), QStringList{u"Ingreso en Deposito:|1080"_s});
    EXPECT_EQ(importes(), QStringList{}) << "of code 2 only lines of kind S are a deposit, and 102 was paid from one";
    m_contexto.CajaCompleta = false;
    construye();
    EXPECT_EQ(resumen(), QStringList{u"Ingreso en Deposito:|80"_s});
}

TEST_F(ListadoCajaGeneralTest, AReturnedDepositReducesTheServices)
{
    abono(5, 90, 1, u"0"_s);
    devuelta(5, u"S"_s, 2, 3, u"30"_s);
    construye();
    EXPECT_EQ(importes(), QStringList{u"3|nulo|-30|nulo|nulo"_s});
    EXPECT_EQ(resumen(), QStringList{}) << "a negative line is not written";
    EXPECT_EQ(m_puesto.filas(u"numerico19"_s), QStringList{u"-30"_s});
}

TEST_F(ListadoCajaGeneralTest, TheBarDoesNotMove)
{
    m_contexto.CajaCompleta = true;
    venta(101, 1, u"10"_s);
    deuda(1, 101, u"5"_s);
    linea(101, u"S"_s, 9, 3, u"10"_s);
    cobro(1, u"5"_s);
    movimiento(u"gastos"_s, u"1"_s);
    construye();
    EXPECT_EQ(m_puesto.progreso.pasos, 0);
}

TEST_F(ListadoCajaGeneralTest, OnlyTheColumnsOfTheReportAreWritten)
{
    venta(101, 1, u"0"_s);
    linea(101, u"P"_s, 9, 3, u"10"_s);
    construye();
    EXPECT_EQ(m_puesto.escritas(0), (QStringList{u"texto20"_s, u"texto21"_s, u"texto33"_s, u"texto34"_s, u"texto35"_s,
                                                 u"numerico3"_s, u"numerico19"_s, u"fecha1"_s, u"fecha2"_s}));
    EXPECT_EQ(m_puesto.filas(u"TEXTO35,TEXTO34,Fecha1,fecha2"_s),
              QStringList{u"Peluquería Ñandú|Calle Mayor, 1|15/03/2024|15/03/2024"_s});
}

TEST_F(ListadoCajaGeneralTest, AnApostropheInTheStoreEndsTheRun)
{
    m_contexto.TiendaSeleccionada = u"O'Donnell"_s;
    EXPECT_EQ(numeroDeError([&] { construye(); }), ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
