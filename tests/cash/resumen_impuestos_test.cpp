#include "cash/resumen_impuestos.h"

#include "cash/prueba_caja.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class ResumenImpuestosTest : public prueba::PruebaCaja
{
protected:
    /// Sale 101 is of the period and of the store Centro, 102 of the store Sur, 103 of the day after.
    ResumenImpuestosTest()
    {
        alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda"_s, u"101, #03/15/2024#, 'Centro'"_s);
        alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda"_s, u"102, #03/15/2024#, 'Sur'"_s);
        alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda"_s, u"103, #03/16/2024#, 'Centro'"_s);
    }
    void linea(const QString& tipoImpuesto, const QString& precio, int venta = 101, const QString& codigo = u"7"_s,
               const QString& tipo = u"P"_s, const QString& impuesto = u"0"_s)
    {
        alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tipoimpuesto, precio, impuesto"_s,
             u"%1, %2, '%3', %4, %5, %6"_s.arg(venta).arg(codigo, tipo, tipoImpuesto, precio, impuesto));
    }
    void escribe() { escribeResumenDeImpuestos(m_listados); }
    int error()
    {
        return numeroDeError([&] { escribe(); });
    }
    /// "rate|gross|tax" of all rows.
    QStringList filas() { return m_puesto.filas(u"texto3,numerico5,numerico4"_s, u"subinformes"_s); }
};

TEST_F(ResumenImpuestosTest, EachRateIsARowWithItsTaxWorkedBackFromTheGrossAmount)
{
    linea(u"21"_s, u"60.5"_s, 101, u"7"_s, u"P"_s, u"99"_s);
    linea(u"10"_s, u"11"_s);
    linea(u"21"_s, u"60.5"_s, 101, u"8"_s);
    linea(u"0"_s, u"5"_s);
    linea(u"0"_s, u"2.5"_s);
    escribe();
    EXPECT_EQ(filas(), (QStringList{u" al 0% |7,5|0"_s, u" al 10% |11|1"_s, u" al 21% |121|21"_s}));
    EXPECT_EQ(m_puesto.progreso.pasos, 5);
}

TEST_F(ResumenImpuestosTest, AFirstLineOfAnotherRateLeavesTheEmptyRowOfRateZero)
{
    linea(u"10.5"_s, u"221"_s);
    escribe();
    EXPECT_EQ(filas(), (QStringList{u" al 0% |0|0"_s, u" al 10,5% |221|21"_s}));
}

TEST_F(ResumenImpuestosTest, WithoutALineThereIsNoRowAndWithLinesThatAreAllSkippedTheEmptyOne)
{
    m_contexto.ConexionListados.Execute(u"insert into subinformes (texto1) values ('vieja')"_s);
    escribe();
    EXPECT_EQ(filas(), QStringList{});
    linea(u"21"_s, u"50"_s, 101, u"2"_s, u"S"_s);
    escribe();
    EXPECT_EQ(filas(), QStringList{u" al 0% |0|0"_s});
    EXPECT_EQ(m_puesto.progreso.pasos, 1);
}

TEST_F(ResumenImpuestosTest, OnlyTheServiceTwoIsMoneyForADeposit)
{
    linea(u"0"_s, u"1"_s, 101, u"2"_s, u"S"_s);
    linea(u"0"_s, u"10"_s, 101, u"2"_s, u"P"_s);
    linea(u"0"_s, u"100"_s, 101, u"3"_s, u"S"_s);
    escribe();
    EXPECT_EQ(filas(), QStringList{u" al 0% |110|0"_s});
}

TEST_F(ResumenImpuestosTest, ALineReturnedEvenInPartIsLeftOutWhole)
{
    linea(u"0"_s, u"1"_s, 101, u"7"_s);
    linea(u"0"_s, u"10"_s, 101, u"8"_s);
    linea(u"0"_s, u"100"_s, 102, u"7"_s);
    alta(u"detalle_abono"_s, u"num_factura, codigo, precio"_s, u"101, 7, 0.25"_s);
    escribe();
    EXPECT_EQ(filas(), QStringList{u" al 0% |110|0"_s});
    EXPECT_TRUE(TieneDetalleAbono(m_listados, qint32{101}, qint32{7}));
    EXPECT_FALSE(TieneDetalleAbono(m_listados, qint32{101}, qint32{8}));
    EXPECT_FALSE(TieneDetalleAbono(m_listados, qint32{102}, qint32{7}));
}

TEST_F(ResumenImpuestosTest, AllStoresAreInItAndOtherDaysAreNot)
{
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    linea(u"0"_s, u"1"_s, 101);
    linea(u"0"_s, u"10"_s, 102);
    linea(u"0"_s, u"100"_s, 103);
    escribe();
    EXPECT_EQ(filas(), QStringList{u" al 0% |11|0"_s});
}

TEST_F(ResumenImpuestosTest, AGroupOfANegativeRateLeavesNoRow)
{
    linea(u"-5"_s, u"9"_s);
    linea(u"10"_s, u"11"_s);
    escribe();
    EXPECT_EQ(filas(), (QStringList{u" al 0% |0|0"_s, u" al 10% |11|1"_s}));
    ejecuta({u"delete from detalle_factura where tipoimpuesto = 10"_s});
    escribe();
    EXPECT_EQ(filas(), QStringList{u" al 0% |0|0"_s});
}

TEST_F(ResumenImpuestosTest, ANullRateEndsTheRunBehindTheFirstGroup)
{
    linea(u"null"_s, u"9"_s);
    linea(u"0"_s, u"1"_s);
    EXPECT_EQ(error(), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(filas(), QStringList{u" al 0% |0|0"_s});
}

TEST_F(ResumenImpuestosTest, ANullPriceOrTaxEndsTheRun)
{
    linea(u"0"_s, u"null"_s);
    EXPECT_EQ(error(), ErrorEjecucion::UsoNoValidoDeNull);
    ejecuta({u"delete from detalle_factura"_s});
    linea(u"0"_s, u"1"_s, 101, u"7"_s, u"P"_s, u"null"_s);
    EXPECT_EQ(error(), ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(ResumenImpuestosTest, ALineWithoutACodeIsRefused)
{
    linea(u"0"_s, u"1"_s, 101, u"null"_s);
    EXPECT_EQ(error(), ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
