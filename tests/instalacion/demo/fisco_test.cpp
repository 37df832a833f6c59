#include "instalacion/demo/fisco.h"

#include "instalacion/demo/mes_de_cada_sabor.h"

#include <cmath>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(ImpuestosDeLaDemo);

TEST(FiscoDeLaDemo, CarriesWhatRoundingLeavesToTheNextLine)
{
    Fisco fisco;
    double suma = 0;
    for (int i = 0; i < 10; ++i) {
        Linea linea;
        linea.precio = Dinero::euros(12.5); // 2.1694 of tax
        fisco.grava(linea, false);
        EXPECT_TRUE(linea.impuesto == Dinero::euros(2) || linea.impuesto == Dinero::euros(2.25));
        suma += linea.impuesto.enEuros();
    }
    EXPECT_NEAR(suma, 21.694, 0.13);
}

TEST(FiscoDeLaDemo, PutsTheTaxOnTopForThoseWhoBuyToSell)
{
    Fisco fisco;
    Linea linea;
    linea.unitario = Dinero::euros(24.25); // 20.04 without tax: 20
    linea.unidades = 2;
    fisco.gravaAparte(linea, true);
    EXPECT_EQ(linea.unitario.enEuros(), 20);
    EXPECT_EQ(linea.impuesto.enEuros(), 8.5);  // 8.40
    EXPECT_EQ(linea.impuesto2.enEuros(), 2.0); // 5.2 % of 40: 2.08
    EXPECT_EQ(linea.precio.enEuros(), 50.5);
}

TEST_P(ImpuestosDeLaDemo, TheTaxOfALineIsItsRateToTheQuarter)
{
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const double tipo = linea.doble("tipoimpuesto");
        const double neto = linea.doble("precio") - linea.doble("impuesto") - linea.doble("impuesto_2");
        ASSERT_TRUE(std::set<double>({0, 4, 10, 21}).contains(tipo));
        EXPECT_LT(std::abs(neto * tipo / 100 - linea.doble("impuesto")), 0.45) << linea.texto("producto").toStdString() << neto;
    }
}

TEST_P(ImpuestosDeLaDemo, TaxesAddUpOverManyLines)
{
    double impuestos = 0;
    double exactos = 0;
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const double neto = linea.doble("precio") - linea.doble("impuesto_2");
        impuestos += linea.doble("impuesto");
        exactos += neto - neto / (1 + linea.doble("tipoimpuesto") / 100);
    }
    EXPECT_NEAR(impuestos, exactos, exactos * 0.03);
}

} // namespace
} // namespace kestrane::demo::pruebas
