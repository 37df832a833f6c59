#include "cash/vocabulary/importes.h"

#include "cash/vocabulary/prueba_vocabulario.h"

#include <cmath>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ImportesTest : public prueba::PruebaVocabulario
{
protected:
    /// `importe` of a line with these amounts.
    Valor de(Valor (*importe)(Recordset&), const QString& precio, const QString& impuesto, const QString& segundo)
    {
        ejecuta(
            {u"delete from detalle_factura"_s,
             u"insert into detalle_factura (precio, impuesto, impuesto_2) values (%1, %2, %3)"_s.arg(precio, impuesto, segundo)});
        Valor hallado;
        porCadaFila(u"Select * from detalle_factura"_s, [&](Recordset& linea) { hallado = importe(linea); });
        return hallado;
    }
};

TEST_F(ImportesTest, ANetAmountIsThePriceLessBothTaxes)
{
    EXPECT_EQ(de(netoDeLinea, u"121.5"_s, u"21"_s, u"0.5"_s), Valor{100.0});
    EXPECT_EQ(de(impuestosDeLinea, u"121.5"_s, u"21"_s, u"0.5"_s), Valor{21.5});
    EXPECT_EQ(de(netoDeLinea, u"-10"_s, u"0"_s, u"0"_s), Valor{-10.0});
}

TEST_F(ImportesTest, ANullAmountMakesTheResultNull)
{
    EXPECT_EQ(de(netoDeLinea, u"null"_s, u"21"_s, u"0.5"_s), Valor{});
    EXPECT_EQ(de(netoDeLinea, u"121"_s, u"null"_s, u"0"_s), Valor{});
    EXPECT_EQ(de(netoDeLinea, u"121"_s, u"21"_s, u"null"_s), Valor{});
    EXPECT_EQ(de(impuestosDeLinea, u"121"_s, u"21"_s, u"null"_s), Valor{});
}

TEST_F(ImportesTest, TheSecondTaxOfAReturnIsZeroWhenItIsNull)
{
    EXPECT_EQ(de(impuestosDeAbono, u"121"_s, u"21"_s, u"null"_s), Valor{21.0});
    EXPECT_EQ(de(impuestosDeAbono, u"121"_s, u"21"_s, u"0.5"_s), Valor{21.5});
    EXPECT_EQ(de(impuestosDeAbono, u"121"_s, u"null"_s, u"0.5"_s), Valor{});
}

TEST_F(ImportesTest, TheOppositeOfNothingHasNoSign)
{
    EXPECT_FALSE(std::signbit(importes::opuesto(0.0).doble()));
    EXPECT_TRUE(std::signbit(importes::opuesto(1.0).doble()));
}

TEST_F(ImportesTest, ArithmeticOfNullIsNull)
{
    EXPECT_EQ(importes::suma(1.5, 2.25), Valor{3.75});
    EXPECT_EQ(importes::resta(1.5, 2.25), Valor{-0.75});
    EXPECT_EQ(importes::opuesto(1.5), Valor{-1.5});
    EXPECT_EQ(importes::suma(m_nulo, 1.0), Valor{});
    EXPECT_EQ(importes::suma(1.0, m_nulo), Valor{});
    EXPECT_EQ(importes::resta(m_nulo, 1.0), Valor{});
    EXPECT_EQ(importes::resta(1.0, m_nulo), Valor{});
    EXPECT_EQ(importes::opuesto(m_nulo), Valor{});
}

} // namespace
} // namespace kestrane
