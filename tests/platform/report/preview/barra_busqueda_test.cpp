#include "platform/report/preview/barra_busqueda.h"

#include "platform/report/preview/fuente_de_prueba.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class BarraBusquedaTest : public testing::Test
{
protected:
    BarraBusquedaTest()
    {
        QObject::connect(&barra, &BarraBusqueda::busquedaPedida, &barra, [this](const QString& pedido) {
            pedidas += pedido;
            buscador.busca(pedido, 0);
        });
        barra.abre();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&barra));
    }
    void escribe(const QString& buscado)
    {
        texto->setText(buscado);
        QTest::keyClick(texto, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([this] { return buscador.terminado(); }));
    }
    void pulsa(const QString& boton) { QTest::mouseClick(barra.findChild<QToolButton*>(boton), Qt::LeftButton); }

    prueba::FuenteDePrueba fuente{{{u"Corte"_s, u"corte"_s}, {u"Córte"_s}}};
    PaginasVista paginas{fuente, [](const QString&) {}};
    Buscador buscador{paginas};
    BarraBusqueda barra{buscador};
    QLineEdit* texto = barra.findChild<QLineEdit*>(u"textoBuscado"_s);
    QLabel* cuenta = barra.findChild<QLabel*>(u"cuentaAciertos"_s);
    QStringList pedidas;
};

TEST_F(BarraBusquedaTest, OpensWithTheKeyboardInItsField)
{
    EXPECT_TRUE(texto->hasFocus());
}

TEST_F(BarraBusquedaTest, CountsTheHits)
{
    escribe(u"corte"_s);
    EXPECT_EQ(cuenta->text(), u"1 de 3"_s);
}

TEST_F(BarraBusquedaTest, SaysThatThereIsNone)
{
    escribe(u"zapato"_s);
    EXPECT_EQ(cuenta->text(), u"Ningún acierto"_s);
}

TEST_F(BarraBusquedaTest, AsLongAsPagesComeNothingIsFinal)
{
    fuente.hechas = 1;
    escribe(u"zapato"_s);
    EXPECT_EQ(cuenta->text(), u"Buscando…"_s);
    escribe(u"corte"_s);
    EXPECT_EQ(cuenta->text(), u"1 de 2…"_s);
    fuente.hechas = 2;
    buscador.sigue();
    EXPECT_TRUE(QTest::qWaitFor([this] { return cuenta->text() == u"1 de 3"_s; }));
}

TEST_F(BarraBusquedaTest, TypingSearchesAfterABreath)
{
    QTest::keyClicks(texto, u"cort"_s);
    EXPECT_TRUE(pedidas.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return pedidas == QStringList{u"cort"_s}; }));
}

TEST_F(BarraBusquedaTest, EnterGoesToTheNextHitAndWithShiftBack)
{
    escribe(u"corte"_s);
    QTest::keyClick(texto, Qt::Key_Return);
    EXPECT_EQ(cuenta->text(), u"2 de 3"_s);
    QTest::keyClick(texto, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(cuenta->text(), u"1 de 3"_s);
}

TEST_F(BarraBusquedaTest, ItsButtonsGoOnAndBack)
{
    escribe(u"corte"_s);
    pulsa(u"anteriorAcierto"_s);
    EXPECT_EQ(cuenta->text(), u"3 de 3"_s);
    pulsa(u"siguienteAcierto"_s);
    EXPECT_EQ(cuenta->text(), u"1 de 3"_s);
}

TEST_F(BarraBusquedaTest, AnotherTextIsSearchedBeforeGoingOn)
{
    escribe(u"corte"_s);
    texto->setText(u"zapato"_s);
    pulsa(u"siguienteAcierto"_s);
    EXPECT_EQ(pedidas.last(), u"zapato"_s);
}

TEST_F(BarraBusquedaTest, ClosedItMarksNothingAnyMore)
{
    escribe(u"corte"_s);
    pulsa(u"cierraBusqueda"_s);
    EXPECT_FALSE(barra.isVisible());
    EXPECT_FALSE(buscador.activo());
    EXPECT_EQ(buscador.cuenta(), 0);
}

TEST_F(BarraBusquedaTest, SearchesAnewForWhatStandsThere)
{
    escribe(u"corte"_s);
    barra.repite();
    EXPECT_EQ(pedidas, (QStringList{u"corte"_s, u"corte"_s}));
    barra.cierra();
    barra.repite();
    EXPECT_EQ(pedidas.last(), QString{});
}

TEST_F(BarraBusquedaTest, TenThousandCharactersDoNoHarm)
{
    escribe(u"ñ"_s.repeated(10000));
    EXPECT_EQ(cuenta->text(), u"Ningún acierto"_s);
    EXPECT_LT(barra.minimumSizeHint().width(), 900);
}

} // namespace
} // namespace kestrane::report
