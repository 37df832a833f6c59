// Bar codes on a machine that has the shops' bar code font: another font stands for it here, under its name.

#include "platform/report/codigo39.h"
#include "platform/report/informe_de_prueba.h"
#include "platform/report/letra_renombrada.h"
#include "platform/report/pintor.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::copiaDe;
using prueba::LayoutDePrueba;
using prueba::PaginasDePrueba;

class LetraCodigo39 : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(hayLetraCodigo39()) << "the machine has it itself";
        QFile fichero{u"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"_s};
        ASSERT_TRUE(fichero.open(QIODevice::ReadOnly));
        m_letra = QFontDatabase::addApplicationFontFromData(prueba::letraRenombrada(fichero.readAll(), u"c39hrp24dhtt"_s));
        ASSERT_NE(m_letra, -1);
        ASSERT_TRUE(hayLetraCodigo39());
    }
    void TearDown() override { QFontDatabase::removeApplicationFont(m_letra); }

    /// A page with the bar code of a row at (10, 10).
    static PaginaCompuesta pagina(const QString& valor, double ancho, bool leyenda = true)
    {
        LayoutDePrueba prueba;
        Codigo39 codigo;
        codigo.caja = {0, 0, ancho, 10};
        codigo.valor = prueba.expresion(u"t"_s);
        codigo.leyenda = leyenda;
        Banda banda;
        banda.alto = 10;
        banda.elementos.emplace_back(codigo);
        prueba.layout.detalle.push_back(banda);
        return PaginasDePrueba{prueba.layout, copiaDe({u"t"_s}, {{valor}})}.paginas().front();
    }

    int m_letra = -1;
};

TEST_F(LetraCodigo39, TheCodeIsATextOfThatFontBetweenItsMarks)
{
    const PaginaCompuesta una = pagina(u"a-12"_s, 100);
    ASSERT_EQ(una.primitivas.size(), 1U);
    const auto* const texto = std::get_if<TextoCompuesto>(&una.primitivas.front());
    ASSERT_NE(texto, nullptr);
    EXPECT_EQ(texto->texto, u"*A-12*"_s);
    const Estilo& estilo = una.estilos->at(static_cast<size_t>(texto->estilo));
    EXPECT_EQ(estilo.familia, u"c39hrp24dhtt"_s);
    EXPECT_NEAR(estilo.cuerpo, 10 / 25.4 * 72, 1e-9) << "as high as its box";
    EXPECT_NEAR(texto->base.x() + texto->ancho / 2, 60, 1e-6) << "in the middle of it";
}

TEST_F(LetraCodigo39, ItIsPaintedWithIt)
{
    const PaginaCompuesta una = pagina(u"A-12"_s, 100);
    const Estilo estilo = una.estilos->at(static_cast<size_t>(std::get<TextoCompuesto>(una.primitivas.front()).estilo));
    EXPECT_EQ(QFontInfo{MedidaEstilo{estilo}.letra()}.family(), u"c39hrp24dhtt"_s) << "no other takes its place";
    QImage papel{600, 120, QImage::Format_RGB32};
    papel.fill(Qt::white);
    QPainter pintor{&papel};
    PintorPaginas{}.pinta(pintor, una, 5);
    pintor.end();
    const QRect caja{50, 50, 500, 50};
    int tinta = 0;
    for (int y = caja.top(); y <= caja.bottom(); ++y)
        for (int x = caja.left(); x <= caja.right(); ++x)
            tinta += papel.pixelColor(x, y).lightness() < 128 ? 1 : 0;
    EXPECT_GT(tinta, 500) << "six signs of ten millimetres";
}

TEST_F(LetraCodigo39, WhatIsWiderThanItsBoxIsDrawnBarByBar)
{
    const PaginaCompuesta una = pagina(u"ABC"_s, 30);
    EXPECT_TRUE(std::holds_alternative<BarrasCompuestas>(una.primitivas.front()));
}

TEST_F(LetraCodigo39, WithoutALegendItIsDrawnBarByBarForTheFontAlwaysWritesOne)
{
    const PaginaCompuesta una = pagina(u"A1"_s, 100, false);
    ASSERT_EQ(una.primitivas.size(), 1U);
    EXPECT_TRUE(std::holds_alternative<BarrasCompuestas>(una.primitivas.front()));
}

TEST_F(LetraCodigo39, WhatIsNoCode39IsNotWrittenWithIt)
{
    const PaginaCompuesta una = pagina(u"AÑO"_s, 100);
    EXPECT_TRUE(std::holds_alternative<MarcoCompuesto>(una.primitivas.front()));
}

} // namespace
} // namespace kestrane::report
