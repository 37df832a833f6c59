#include "platform/report/medidor_bandas.h"

#include "platform/report/filas_agrupadas.h"
#include "platform/report/informe_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

/// 10 points: a line of DejaVu Sans is 2384 of 2048 units high.
constexpr double Renglon = 10 * 25.4 / 72 * 2384 / 2048;

class MedidorBandasTest : public testing::Test
{
protected:
    /// Measures the layout's detail for the first of the rows.
    std::optional<BandaMedida> mide(const CopiaFilas& copia)
    {
        m_informe = std::make_unique<InformeEnlazado>(
            m_prueba.layout, [&](const Layout& layout) { return std::make_unique<FilasAgrupadas>(layout, copia, m_regional); },
            m_estilos);
        return m_medidor.mide(*m_informe, m_informe->detalle().front(), {});
    }
    /// A band of 6 mm with a text of that many lines that grows.
    BandaMedida conRenglones(int cuantos, double altoCaja = 4)
    {
        Banda banda;
        banda.alto = 6;
        Texto texto = m_prueba.crece(u"t"_s, 100);
        texto.caja.setHeight(altoCaja);
        banda.elementos.emplace_back(texto);
        m_prueba.layout.detalle = {banda};
        return *mide(prueba::copiaDe({u"t"_s}, {{QStringList{cuantos, u"x"_s}.join(u'\n')}}));
    }

    prueba::LayoutDePrueba m_prueba;
    ConfiguracionRegional m_regional = ConfiguracionRegional::espania();
    TablaEstilos m_estilos;
    MedidorBandas m_medidor{m_estilos, m_regional};
    std::unique_ptr<InformeEnlazado> m_informe;
};

TEST_F(MedidorBandasTest, ABandOfFixedHeightIsNotMeasured)
{
    m_prueba.layout.detalle.push_back(m_prueba.banda(7, u"n"_s));
    const auto medida = mide(prueba::copiaNumerada(1));
    EXPECT_EQ(medida->alto, 7);
    EXPECT_TRUE(medida->textos.empty());
    EXPECT_FALSE(medida->esDivisible());
}

TEST_F(MedidorBandasTest, AHiddenBandIsNone)
{
    m_prueba.layout.detalle.push_back(m_prueba.banda(7, u"n"_s));
    m_prueba.layout.detalle.back().mostrar = m_prueba.expresion(u"n = 2"_s);
    EXPECT_FALSE(mide(prueba::copiaNumerada(1)));
    EXPECT_TRUE(mide(prueba::copiaDe({u"n"_s}, {{2}})));
}

TEST_F(MedidorBandasTest, LinesBeyondTheFirstMakeABandHigher)
{
    EXPECT_EQ(conRenglones(0).alto, 6);
    EXPECT_EQ(conRenglones(1).alto, 6);
    EXPECT_NEAR(conRenglones(3).alto, 6 + 2 * Renglon, 0.01);
}

TEST_F(MedidorBandasTest, ABoxForSeveralLinesIsFilledFirst)
{
    EXPECT_EQ(conRenglones(2, 20).alto, 20);
    EXPECT_NEAR(conRenglones(6, 20).alto, 6 * Renglon, 0.01);
}

TEST_F(MedidorBandasTest, CutsLeaveLinesWhole)
{
    const BandaMedida banda = conRenglones(10);
    const CorteBanda corte = m_medidor.corta(banda, 0, 3.5 * Renglon);
    EXPECT_TRUE(corte.cabeAlgo);
    EXPECT_NEAR(corte.hasta, 3 * Renglon, 0.01);
    EXPECT_NEAR(corte.siguiente, 3 * Renglon, 0.01);
    const CorteBanda resto = m_medidor.corta(banda, corte.hasta, corte.siguiente + 100);
    EXPECT_TRUE(resto.cabeAlgo);
    EXPECT_GE(resto.siguiente, banda.alto);
}

TEST_F(MedidorBandasTest, TooLittleRoomForALineIsTold)
{
    const CorteBanda corte = m_medidor.corta(conRenglones(10), 0, Renglon / 2);
    EXPECT_FALSE(corte.cabeAlgo);
    EXPECT_NEAR(corte.primero, Renglon, 0.01);
}

TEST_F(MedidorBandasTest, TheFirstConditionThatHoldsGivesTheStyle)
{
    Texto texto = m_prueba.texto(u"n"_s);
    Estilo rojo = texto.estilo;
    rojo.color = Qt::red;
    Estilo azul = texto.estilo;
    azul.color = Qt::blue;
    texto.variantes = {{m_prueba.expresion(u"n < 0"_s), rojo}, {m_prueba.expresion(u"n < 10"_s), azul}};
    Banda banda;
    banda.elementos.emplace_back(texto);
    m_prueba.layout.detalle = {banda};
    static_cast<void>(mide(prueba::copiaDe({u"n"_s}, {{-1}, {5}, {50}, {Valor{}}})));
    const auto color = [this](qsizetype fila) {
        const Contexto contexto{fila};
        const AmbitoFila ambito{m_informe->filas(), contexto};
        return m_estilos.estilo(estiloDe(m_informe->detalle()[0].elementos[0], ambito, m_regional)).color;
    };
    EXPECT_EQ(color(0), Qt::red);
    EXPECT_EQ(color(1), Qt::blue);
    EXPECT_EQ(color(2), Qt::black);
    EXPECT_EQ(color(3), Qt::black);
}

} // namespace
} // namespace kestrane::report
