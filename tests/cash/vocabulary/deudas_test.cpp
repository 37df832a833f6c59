#include "cash/vocabulary/deudas.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::numeroDeError;

class DeudasTest : public prueba::PruebaVocabulario
{
protected:
    void deuda(int numero, int venta, const QString& importe, const QString& tienda)
    {
        ejecuta({u"insert into cabecera_pago (num_pago, num_factura, cliente, importe, tienda) values (%1, %2, 40, %3, %4)"_s
                     .arg(numero)
                     .arg(venta)
                     .arg(importe, tienda)});
    }
    void pago(int deuda, const QString& fecha, const QString& importe)
    {
        ejecuta({u"insert into detalle_pago (num_pago, fecha, importe) values (%1, %2, %3)"_s.arg(deuda).arg(fecha, importe)});
    }
    bool pendiente(int venta) { return TienePagoPendiente(m_listados, qint32{venta}); }
};

TEST_F(DeudasTest, ASaleIsUnpaidInTheStoresThatEndInTheChosenOne)
{
    deuda(1, 101, u"10"_s, u"'Centro'"_s);
    deuda(2, 102, u"10"_s, u"'Gran Centro'"_s);
    deuda(3, 103, u"10"_s, u"'Centro Sur'"_s);
    deuda(4, 104, u"10"_s, u"null"_s);
    EXPECT_TRUE(pendiente(101) && pendiente(102) && pendiente(103));
    EXPECT_FALSE(pendiente(104)) << "a store that is Null matches no pattern";
    EXPECT_FALSE(pendiente(105));
    eligeTienda(u"Centro"_s);
    EXPECT_TRUE(pendiente(101) && pendiente(102));
    EXPECT_FALSE(pendiente(103));
}

TEST_F(DeudasTest, TheAmountIsTheFirstDebtsWhateverTheStore)
{
    deuda(1, 101, u"12.5"_s, u"'Sur'"_s);
    deuda(2, 101, u"99"_s, u"'Centro'"_s);
    eligeTienda(u"Centro"_s);
    EXPECT_EQ(ImportePendiente(m_listados, qint32{101}), 12.5);
    EXPECT_EQ(ImportePendiente(m_listados, qint32{102}), 0);
}

TEST_F(DeudasTest, ADebtHasItsSaleAndItsClientAndAnUnknownOneHasZero)
{
    deuda(7, 101, u"10"_s, u"'Centro'"_s);
    EXPECT_EQ(FacturaDelPago(m_listados, qint32{7}), 101);
    EXPECT_EQ(ClienteDelPago(m_listados, qint32{7}), 40);
    EXPECT_EQ(FacturaDelPago(m_listados, qint32{8}), 0);
    EXPECT_EQ(ClienteDelPago(m_listados, qint32{8}), 0);
}

TEST_F(DeudasTest, TheLastPaymentIsTheLatestDayAndWithoutOneTheFirstOfTwoThousand)
{
    pago(7, u"#03/01/2024#"_s, u"1"_s);
    pago(7, u"#03/20/2024#"_s, u"1"_s);
    pago(7, u"#02/28/2024#"_s, u"1"_s);
    EXPECT_EQ(UltimaFechaPago(m_listados, qint32{7}), dia(2024, 3, 20));
    EXPECT_EQ(UltimaFechaPago(m_listados, qint32{8}), dia(2000, 1, 1));
}

TEST_F(DeudasTest, WhatWasPaidIsAddedUpAndTheBarGoesOnWithEachPayment)
{
    pago(7, u"#03/01/2024#"_s, u"10.25"_s);
    pago(7, u"#03/02/2024#"_s, u"-0.5"_s);
    pago(8, u"#03/02/2024#"_s, u"99"_s);
    EXPECT_EQ(TotalPagado(m_listados, qint32{7}), 9.75);
    EXPECT_EQ(m_puesto.progreso.pasos, 2);
    EXPECT_EQ(TotalPagado(m_listados, qint32{9}), 0);
    EXPECT_EQ(m_puesto.progreso.pasos, 2);
}

TEST_F(DeudasTest, ANullNumberEndsTheRun)
{
    ejecuta({u"insert into cabecera_pago (num_pago, num_factura, tienda) values (7, 101, 'Centro')"_s,
             u"insert into cabecera_pago (num_pago, tienda) values (8, 'Centro')"_s});
    pago(7, u"null"_s, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { return ImportePendiente(m_listados, qint32{101}); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return FacturaDelPago(m_listados, qint32{8}); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return ClienteDelPago(m_listados, qint32{8}); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return UltimaFechaPago(m_listados, qint32{7}); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return TotalPagado(m_listados, qint32{7}); }), ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(DeudasTest, ANullCodeIsRefused)
{
    EXPECT_EQ(numeroDeError([&] { return TienePagoPendiente(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return ImportePendiente(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return FacturaDelPago(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return ClienteDelPago(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return UltimaFechaPago(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return TotalPagado(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(DeudasTest, AnApostropheInTheStoreIsRefusedWhereTheStoreIsAsked)
{
    deuda(1, 101, u"10"_s, u"'Centro'"_s);
    eligeTienda(u"O'Donnell"_s);
    EXPECT_EQ(numeroDeError([&] { return pendiente(101); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(ImportePendiente(m_listados, qint32{101}), 10);
}

TEST_F(DeudasTest, WhatABuilderAnnouncesIsWhatTheLookupAsks)
{
    eligeTienda(u"Centro"_s);
    EXPECT_EQ(consultaDePagoPendiente(m_listados.contexto).sentencia(m_listados, qint32{118}),
              u"Select num_pago from cabecera_pago where num_factura= 118 and tienda like '%Centro'"_s);
    EXPECT_EQ(consultaDeImportePendiente().sentencia(m_listados, qint32{118}),
              u"Select importe from cabecera_pago where num_factura = 118"_s);
    EXPECT_EQ(consultaDeFacturaDelPago().sentencia(m_listados, qint32{3}),
              u"Select num_factura from cabecera_pago where num_pago = 3"_s);
    EXPECT_EQ(consultaDeClienteDelPago().sentencia(m_listados, qint32{3}),
              u"Select cliente from cabecera_pago where num_pago = 3"_s);
}

} // namespace
} // namespace kestrane
