#include "cash/vocabulary/costes.h"

#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class CostesTest : public prueba::PruebaVocabulario
{
protected:
    CostesTest()
    {
        ejecuta({u"insert into productos (codigo, coste) values (7, 10.5)"_s,
                 u"insert into productos (codigo, coste) values (8, null)"_s,
                 u"insert into productostextil (codigopadre, codigohijo, coste) values (7, '71', 4.25)"_s,
                 u"insert into productostextil (codigopadre, codigohijo, coste) values (7, '71', 99)"_s,
                 u"insert into productostextil (codigopadre, codigohijo, coste) values (7, '-1', 50)"_s,
                 u"insert into productostextil (codigopadre, codigohijo, coste) values (8, '81', null)"_s});
    }

    /// The cost of a unit of a line of product 7 with that child code, as it stands in a statement.
    double deLinea(const QString& sabor, const QString& hijo)
    {
        m_puesto.contexto.TipoPrograma = sabor;
        ejecuta({u"delete from detalle_factura"_s,
                 u"insert into detalle_factura (codigo, codproductotextil) values (7, %1)"_s.arg(hijo)});
        double hallado = -1;
        porCadaFila(u"Select * from detalle_factura"_s, [&](Recordset& linea) { hallado = costeDeLinea(m_listados, linea); });
        return hallado;
    }
};

TEST_F(CostesTest, AProductCostsWhatTheCatalogueSaysAndAnUnknownOneNothing)
{
    EXPECT_EQ(CosteProducto(m_listados, qint32{7}), 10.5);
    EXPECT_EQ(CosteProducto(m_listados, qint32{99}), 0);
}

TEST_F(CostesTest, AVariantHasACostOfItsOwnTheFirstRowsAndMinusOneIsNone)
{
    EXPECT_EQ(CosteVariante(m_listados, qint32{7}, u"71"_s), 4.25);
    EXPECT_EQ(CosteVariante(m_listados, qint32{7}, u"-1"_s), 10.5);
    EXPECT_EQ(CosteVariante(m_listados, qint32{7}, u"72"_s), 0);
    EXPECT_EQ(CosteVariante(m_listados, qint32{8}, u"71"_s), 0);
    EXPECT_EQ(CosteVariante(m_listados, qint32{7}, u""_s), 0);
}

TEST_F(CostesTest, ANullCostEndsTheRun)
{
    EXPECT_EQ(numeroDeError([&] { return CosteProducto(m_listados, qint32{8}); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(numeroDeError([&] { return CosteVariante(m_listados, qint32{8}, u"81"_s); }), ErrorEjecucion::UsoNoValidoDeNull);
}

TEST_F(CostesTest, ANullCodeAndAnApostropheAreRefused)
{
    EXPECT_EQ(numeroDeError([&] { return CosteProducto(m_listados, m_nulo); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return CosteVariante(m_listados, m_nulo, u"71"_s); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return CosteVariante(m_listados, m_nulo, u"-1"_s); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(numeroDeError([&] { return CosteVariante(m_listados, qint32{7}, u"7'1"_s); }), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(CostesTest, OnlyShopsOfSizesAndColoursCostALineByItsVariant)
{
    for (const QString& sabor : {u"ZAPATERIA"_s, u"TALLACOLOR"_s}) {
        EXPECT_EQ(deLinea(sabor, u"'71'"_s), 4.25);
        EXPECT_EQ(deLinea(sabor, u"'-1'"_s), 10.5);
        EXPECT_EQ(deLinea(sabor, u"null"_s), 10.5);
        EXPECT_EQ(deLinea(sabor, u"'72'"_s), 0);
    }
    for (const QString& sabor : {u"TPV"_s, u"PERFUMERIA"_s, u"SPA"_s, u"PELUQUERIA"_s})
        EXPECT_EQ(deLinea(sabor, u"'71'"_s), 10.5);
}

} // namespace
} // namespace kestrane
