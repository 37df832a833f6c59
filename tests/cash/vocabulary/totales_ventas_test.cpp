#include "cash/vocabulary/totales_ventas.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

const Valor Contado = qint16{1};
const Valor Deposito = qint16{4};

class TotalesVentasTest : public prueba::PruebaVocabulario
{
protected:
    TotalesVentasTest()
    {
        ejecuta({u"insert into productos (codigo, coste) values (7, 2.5)"_s,
                 u"insert into productostextil (codigopadre, codigohijo, coste) values (7, '71', 4)"_s});
    }

    template<class Accion>
    void conLinea(const QString& tipo, const QString& codigo, const QString& unidades, const QString& precio, Accion accion)
    {
        ejecuta(
            {u"delete from detalle_factura"_s,
             u"insert into detalle_factura (tipo_venta, codigo, unidades, precio, codproductotextil) values (%1, %2, %3, %4, '71')"_s
                 .arg(tipo, codigo, unidades, precio)});
        porCadaFila(u"Select * from detalle_factura"_s, accion);
    }
    void vende(const QString& tipo, const QString& unidades, const QString& precio, const Valor& pago = Contado,
               QStringView packSpa = pack_spa::Corriente, const QString& codigo = u"7"_s)
    {
        conLinea(u"'%1'"_s.arg(tipo), codigo, unidades, precio,
                 [&](Recordset& linea) { sumaLineaVendida(m_listados, m_totales, pago, linea, packSpa); });
    }
    void devuelve(const QString& tipo, const QString& unidades, const QString& precio, QStringView packSpa = pack_spa::Corriente,
                  const QString& codigo = u"7"_s)
    {
        conLinea(u"'%1'"_s.arg(tipo), codigo, unidades, precio,
                 [&](Recordset& linea) { restaLineaDevuelta(m_listados, m_totales, linea, packSpa); });
    }

    /// "services packs spa products cost units" since the last call.
    std::string sumas()
    {
        const auto texto = [](double numero) { return aTexto(numero, ConfiguracionRegional::espania()); };
        const QStringList todas{texto(m_totales.TotalServicios), texto(m_totales.TotalPacks),
                                texto(m_totales.TotalPacksSpa),  texto(m_totales.TotalProductos),
                                texto(m_totales.CosteProductos), texto(m_totales.UnidadesServicios.valor())};
        m_totales = {};
        return todas.join(u' ').toStdString();
    }

    TotalesVentas m_totales;
};

struct SumaEsperada
{
    QString tipo;
    std::string vendida;
    std::string deDeposito;
    std::string devuelta;
};

TEST_F(TotalesVentasTest, EachKindAddsToItsFamilyAndFromADepositToUnitsAndCostAlone)
{
    const std::string nada = "0 0 0 0 0 0";
    const SumaEsperada esperadas[] = {
        {u"S"_s, "10,5 0 0 0 0 3", "0 0 0 0 0 3", "-10,5 0 0 0 0 -3"},
        {u"B"_s, "10,5 0 0 0 0 1", "0 0 0 0 0 1", "-10,5 0 0 0 0 -3"},
        {u"CB"_s, "10,5 0 0 0 0 3", "0 0 0 0 0 3", "-10,5 0 0 0 0 -3"},
        {u"P"_s, "0 0 0 10,5 7,5 0", "0 0 0 0 7,5 0", "0 0 0 -10,5 -7,5 0"},
        {u"F"_s, "0 10,5 0 0 0 0", nada, "0 -10,5 0 0 0 0"},
        {u"BF"_s, "0 10,5 0 0 0 0", nada, "0 -10,5 0 0 0 0"},
        {u"CBF"_s, "0 10,5 0 0 0 0", nada, "0 -10,5 0 0 0 0"},
        {u"PSPA"_s, "0 0 10,5 0 0 0", nada, "0 0 -10,5 0 0 0"},
        {u"CPSPA"_s, nada, nada, nada},
        {u"SF"_s, nada, nada, nada},
        {u"CSF"_s, nada, nada, nada},
        {u"SP"_s, nada, nada, nada},
        {u"s"_s, nada, nada, nada},
    };
    for (const SumaEsperada& esperada : esperadas) {
        vende(esperada.tipo, u"3"_s, u"10.5"_s);
        EXPECT_EQ(sumas(), esperada.vendida) << esperada.tipo.toStdString();
        vende(esperada.tipo, u"3"_s, u"10.5"_s, Deposito);
        EXPECT_EQ(sumas(), esperada.deDeposito) << esperada.tipo.toStdString();
        devuelve(esperada.tipo, u"3"_s, u"10.5"_s);
        EXPECT_EQ(sumas(), esperada.devuelta) << esperada.tipo.toStdString();
    }
}

TEST_F(TotalesVentasTest, WhereSPIsTheSpaPackPSPACountsInNothing)
{
    vende(u"SP"_s, u"3"_s, u"10.5"_s, Contado, pack_spa::DeFormasDePago);
    EXPECT_EQ(sumas(), "0 0 10,5 0 0 0");
    devuelve(u"SP"_s, u"3"_s, u"10.5"_s, pack_spa::DeFormasDePago);
    EXPECT_EQ(sumas(), "0 0 -10,5 0 0 0");
    vende(u"PSPA"_s, u"3"_s, u"10.5"_s, Contado, pack_spa::DeFormasDePago);
    EXPECT_EQ(sumas(), "0 0 0 0 0 0");
}

TEST_F(TotalesVentasTest, AnUnknownPaymentCodeIsMoneyAndANullOneIsNot)
{
    vende(u"S"_s, u"1"_s, u"10"_s, qint16{6});
    EXPECT_EQ(sumas(), "10 0 0 0 0 1");
    vende(u"S"_s, u"1"_s, u"10"_s, m_nulo);
    EXPECT_EQ(sumas(), "0 0 0 0 0 1");
}

TEST_F(TotalesVentasTest, MoneyPaidIntoADepositCountsInNothingUntilItIsReturned)
{
    vende(u"S"_s, u"1"_s, u"50"_s, Contado, pack_spa::Corriente, u"2"_s);
    EXPECT_EQ(sumas(), "0 0 0 0 0 0");
    vende(u"CB"_s, u"1"_s, u"50"_s, Contado, pack_spa::Corriente, u"2"_s);
    EXPECT_EQ(sumas(), "50 0 0 0 0 1") << "code 2 of another kind is a line like others";
    vende(u"S"_s, u"1"_s, u"50"_s, Contado, pack_spa::Corriente, u"null"_s);
    EXPECT_EQ(sumas(), "50 0 0 0 0 1");
    devuelve(u"S"_s, u"1"_s, u"50"_s, pack_spa::Corriente, u"2"_s);
    EXPECT_EQ(sumas(), "-50 0 0 0 0 -1");
}

TEST_F(TotalesVentasTest, ALineOfNullKindCountsInNothing)
{
    conLinea(u"null"_s, u"2"_s, u"3"_s, u"10"_s, [&](Recordset& linea) {
        EXPECT_FALSE(esIngresoEnDeposito(m_listados, linea));
        sumaLineaVendida(m_listados, m_totales, Contado, linea);
        restaLineaDevuelta(m_listados, m_totales, linea);
    });
    EXPECT_EQ(sumas(), "0 0 0 0 0 0");
}

TEST_F(TotalesVentasTest, ShopsOfSizesAndColoursCostTheVariant)
{
    for (const QString& sabor : {u"ZAPATERIA"_s, u"TALLACOLOR"_s}) {
        m_puesto.contexto.TipoPrograma = sabor;
        vende(u"P"_s, u"3"_s, u"10"_s);
        EXPECT_EQ(sumas(), "0 0 0 10 12 0");
        devuelve(u"P"_s, u"0.5"_s, u"10"_s);
        EXPECT_EQ(sumas(), "0 0 0 -10 -2 0");
    }
}

TEST_F(TotalesVentasTest, UnitsAreRoundedHalfToEvenAtEachLine)
{
    vende(u"S"_s, u"0.5"_s, u"1"_s);
    EXPECT_EQ(m_totales.UnidadesServicios.valor(), 0);
    vende(u"S"_s, u"1.5"_s, u"1"_s);
    EXPECT_EQ(m_totales.UnidadesServicios.valor(), 2);
    vende(u"S"_s, u"0.5"_s, u"1"_s);
    EXPECT_EQ(m_totales.UnidadesServicios.valor(), 2);
    vende(u"S"_s, u"0.75"_s, u"1"_s);
    EXPECT_EQ(m_totales.UnidadesServicios.valor(), 3);
    devuelve(u"S"_s, u"0.5"_s, u"1"_s);
    EXPECT_EQ(m_totales.UnidadesServicios.valor(), 2);
}

TEST_F(TotalesVentasTest, UnitsPastSixteenBitsEndTheRun)
{
    vende(u"S"_s, u"32767"_s, u"1"_s);
    EXPECT_EQ(numeroDeError([&] { vende(u"B"_s, u"1"_s, u"1"_s); }), ErrorEjecucion::Desbordamiento);
    m_totales = {};
    EXPECT_EQ(numeroDeError([&] { devuelve(u"S"_s, u"32769"_s, u"1"_s); }), ErrorEjecucion::Desbordamiento);
}

TEST_F(TotalesVentasTest, ANullAmountThatIsAddedEndsTheRun)
{
    EXPECT_EQ(numeroDeError([&] { vende(u"S"_s, u"1"_s, u"null"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { vende(u"S"_s, u"null"_s, u"1"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { vende(u"P"_s, u"null"_s, u"1"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { devuelve(u"F"_s, u"1"_s, u"null"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
    m_totales = {};
    vende(u"S"_s, u"1"_s, u"null"_s, Deposito);
    vende(u"B"_s, u"null"_s, u"1"_s);
    EXPECT_EQ(sumas(), "1 0 0 0 0 2") << "a Null that is not added does no harm";
}

TEST_F(TotalesVentasTest, PacksJoinTheServices)
{
    m_totales.TotalServicios = 1;
    m_totales.TotalPacks = 20;
    m_totales.TotalPacksSpa = 300;
    m_totales.TotalProductos = 4000;
    juntaServiciosYPacks(m_totales);
    EXPECT_EQ(m_totales.TotalServicios, 321);
    EXPECT_EQ(m_totales.TotalProductos, 4000);
}

} // namespace
} // namespace kestrane
