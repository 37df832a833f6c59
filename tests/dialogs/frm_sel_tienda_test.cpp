#include "dialogs/frm_sel_tienda.h"

#include "dialogs/forma_de_prueba.h"
#include "platform/controls/ficha.h"

#include <QScrollBar>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmSelTiendaTest : public prueba::FormaTest
{
protected:
    void abre()
    {
        m_contexto.FiltroAceptado = true;
        forma.carga();
        forma.show();
    }
    TilePanel& panel() { return control<TilePanel>(forma, u"PanelTiendas"_s); }
    void pulsa(int cual) { QTest::mouseClick(panel().fichas()[cual], Qt::LeftButton); }

    FrmSelTienda forma{m_servicios};
};

TEST_F(FrmSelTiendaTest, ItStandsWhereTheProgressWindowDoes)
{
    enServidorCon({u"Sur"_s});
    abre();
    EXPECT_EQ(forma.pos(), QPoint(103, 222)); // (100, 200), and 50 and 330 twips more
    EXPECT_EQ(forma.windowTitle(), QString{});
    EXPECT_EQ(control<QLabel>(forma, u"Label1"_s).text(), u"Seleccione la tienda"_s);
    EXPECT_EQ(forma.findChild<QWidget*>(u"cmd_Salir"_s), nullptr);
}

TEST_F(FrmSelTiendaTest, APressChoosesTheStoreAndCloses)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    abre();
    pulsa(2);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmSelTiendaTest, AllStoresIsNoStore)
{
    enServidorCon({u"Sur"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    abre();
    EXPECT_EQ(control<QLabel>(forma, u"lblInfoTienda"_s).text(), u"Sur"_s);
    pulsa(0);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, QString{});
    EXPECT_FALSE(forma.isVisible());
}

TEST_F(FrmSelTiendaTest, EscapeAndItsFrameChangeNothing)
{
    enServidorCon({u"Sur"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    for (const bool conEscape : {true, false}) {
        abre();
        if (conEscape)
            QTest::keyClick(&forma, Qt::Key_Escape);
        else
            forma.close();
        EXPECT_FALSE(forma.isVisible());
        EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
        EXPECT_TRUE(m_contexto.FiltroAceptado);
    }
}

TEST_F(FrmSelTiendaTest, WithTheKeyboardAloneEnterTakesTheStoreThatHasIt)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    abre();
    EXPECT_EQ(forma.focusWidget(), panel().fichas()[0]);
    QTest::keyClick(forma.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(forma.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
}

TEST_F(FrmSelTiendaTest, AServerWithoutAListShowsAnEmptyPanel)
{
    m_contexto.NombreTienda = u"Servidor"_s;
    m_contexto.MultiTienda = true;
    abre();
    EXPECT_TRUE(forma.isVisible());
    EXPECT_TRUE(panel().fichas().isEmpty());
}

TEST_F(FrmSelTiendaTest, TwoHundredStoresAreScrolledAndLongNamesAreWhole)
{
    QStringList tiendas;
    for (int i = 0; i < 200; ++i)
        tiendas += u"Tienda & Taller de la calle Mayor del Puerto de Santa María %1"_s.arg(i).left(60);
    enServidorCon(tiendas);
    abre();
    EXPECT_EQ(panel().fichas().size(), 201);
    EXPECT_GT(panel().verticalScrollBar()->maximum(), 0);
    const Ficha& ultima = *panel().fichas().last();
    EXPECT_GE(ultima.height(), ultima.heightForWidth(ultima.width()));
    panel().ensureWidgetVisible(panel().fichas().last());
    pulsa(200);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, tiendas.last());
}

} // namespace
} // namespace kestrane
