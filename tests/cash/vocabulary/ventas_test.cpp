#include "cash/vocabulary/ventas.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::numeroDeError;

class VentasTest : public prueba::PruebaVocabulario
{
protected:
    void linea(int factura, const QString& producto, const QString& tienda)
    {
        ejecuta({u"insert into detalle_factura (num_factura, producto, tienda) values (%1, %2, %3)"_s.arg(factura).arg(producto,
                                                                                                                       tienda)});
    }
    QString productos(int factura) { return ProductosDeFactura(m_listados, qint32{factura}); }
};

TEST_F(VentasTest, TheDescriptionsOfASaleAreJoinedInTheirStoredOrder)
{
    linea(105, u"'B'"_s, u"'Centro'"_s);
    linea(106, u"'otra'"_s, u"'Centro'"_s);
    linea(105, u"'A'"_s, u"'Centro'"_s);
    EXPECT_EQ(productos(105), u"B / A"_s);
    EXPECT_EQ(productos(106), u"otra"_s);
    EXPECT_EQ(productos(107), u""_s);
}

TEST_F(VentasTest, ANullDescriptionLeavesItsPlaceEmpty)
{
    linea(105, u"null"_s, u"'Centro'"_s);
    linea(105, u"'A'"_s, u"'Centro'"_s);
    EXPECT_EQ(productos(105), u" / A"_s);
}

TEST_F(VentasTest, OnlyLinesOfTheChosenStoreAreDescribed)
{
    linea(105, u"'A'"_s, u"'Centro'"_s);
    linea(105, u"'B'"_s, u"'Gran Centro'"_s);
    linea(105, u"'C'"_s, u"'Centro Sur'"_s);
    linea(105, u"'D'"_s, u"null"_s);
    EXPECT_EQ(productos(105), u"A / B / C"_s);
    eligeTienda(u"Centro"_s);
    EXPECT_EQ(productos(105), u"A / B"_s);
}

TEST_F(VentasTest, TheSessionsOfASoldBonoAreTheFirstOnesAsText)
{
    ejecuta({u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (1, 105, 10)"_s,
             u"insert into cabecera_bonos (numbono, num_factura, num_sesiones) values (2, 105, 5)"_s,
             u"insert into cabecera_bonos (numbono, num_factura) values (3, 106)"_s});
    EXPECT_EQ(SesionesBono(m_listados, qint32{105}), u"10"_s);
    EXPECT_EQ(SesionesBono(m_listados, qint32{106}), u""_s);
    EXPECT_EQ(SesionesBono(m_listados, qint32{107}), u""_s);
}

TEST_F(VentasTest, AVoucherCountsForTheSaleThatSpentIt)
{
    ejecuta({u"insert into vales_descuento (Num_Factura, num_Factura_aplicado) values (105, 113)"_s,
             u"insert into vales_descuento (Num_Factura) values (106)"_s});
    EXPECT_TRUE(TieneValeAplicado(m_listados, qint32{113}));
    EXPECT_FALSE(TieneValeAplicado(m_listados, qint32{105}));
    EXPECT_FALSE(TieneValeAplicado(m_listados, qint32{106}));
    EXPECT_EQ(consultaDeValeAplicado().sentencia(m_listados, qint32{113}),
              u"Select num_factura_aplicado from Vales_descuento where num_factura_aplicado = 113"_s);
}

TEST_F(VentasTest, AServiceWasSoldToAClientOnADayOrNot)
{
    ejecuta({u"insert into cabecera_factura (Numero, cliente, fechaventa) values (101, 4, #03/15/2024#)"_s,
             u"insert into detalle_factura (num_factura, codigo) values (101, 3)"_s});
    const auto vendido = [&](int cliente, Fecha cuando, int servicio) {
        return ServicioVendidoEnFecha(m_listados, qint32{cliente}, cuando, qint32{servicio});
    };
    EXPECT_TRUE(vendido(4, dia(2024, 3, 15), 3));
    EXPECT_FALSE(vendido(4, dia(2024, 3, 16), 3));
    EXPECT_FALSE(vendido(5, dia(2024, 3, 15), 3));
    EXPECT_FALSE(vendido(4, dia(2024, 3, 15), 5));
}

TEST_F(VentasTest, ANullCodeIsRefused)
{
    EXPECT_EQ(numeroDeError([&] { return ProductosDeFactura(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return SesionesBono(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return TieneValeAplicado(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return ServicioVendidoEnFecha(m_listados, m_nulo, dia(2024, 3, 15), qint32{3}); }),
              ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return ServicioVendidoEnFecha(m_listados, qint32{4}, dia(2024, 3, 15), m_nulo); }),
              ErrorEjecucion::SentenciaRechazada);
}

} // namespace
} // namespace kestrane
