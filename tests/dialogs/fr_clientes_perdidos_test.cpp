#include "dialogs/fr_clientes_perdidos.h"

#include "dialogs/forma_de_prueba.h"
#include "platform/controls/ficha.h"

#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrClientesPerdidosTest : public prueba::FormaTest
{
protected:
    FrClientesPerdidos& abre()
    {
        forma.carga();
        forma.show();
        return forma;
    }
    Calendario& desde() { return control<Calendario>(forma, u"cld_Desde"_s); }

    FrClientesPerdidos forma{m_servicios};
};

TEST_F(FrClientesPerdidosTest, ItOpensOnTodayUnderItsTitle)
{
    m_contexto.FiltroAceptado = true;
    abre();
    EXPECT_EQ(forma.windowTitle(), u"Clientes perdidos"_s);
    EXPECT_EQ(control<QLabel>(forma, u"Label1"_s).text(), u"SELECCIONE LAS FECHAS DEL LISTADO"_s);
    EXPECT_EQ(desde().fecha(), dia(15));
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    EXPECT_EQ(forma.findChild<QWidget*>(u"cld_Hasta"_s), nullptr);
    EXPECT_EQ(m_aspecto.pasos,
              (QStringList{u"PintarForm frClientesPerdidos"_s, u"EscalarForm frClientesPerdidos de 15360x11085 a 15360x11085"_s}));
}

TEST_F(FrClientesPerdidosTest, ADateInTheFutureIsAcceptedAndTheLastDayIsNotTouched)
{
    m_contexto.FechaHasta = dia(2);
    abre();
    desde().pon(*Fecha::deCalendario(2031, 1, 1));
    QTest::mouseClick(&control(forma, u"Command1"_s), Qt::LeftButton);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_TRUE(m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.FechaDesde, *Fecha::deCalendario(2031, 1, 1));
    EXPECT_EQ(m_contexto.FechaHasta, dia(2));
    EXPECT_TRUE(m_mensajes.dichos.isEmpty());
}

TEST_F(FrClientesPerdidosTest, EnterAcceptsWhatWasTyped)
{
    abre();
    QDateEdit& escrita = desde().escrita();
    escrita.setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(&escrita, u"03"_s);
    QTest::keyClick(&escrita, Qt::Key_Return);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(m_contexto.FechaDesde, dia(3));
}

TEST_F(FrClientesPerdidosTest, LeavingKeepsTheDayOfBefore)
{
    m_contexto.FechaDesde = dia(1);
    abre();
    QTest::mouseClick(&control(forma, u"cmd_Salir"_s), Qt::LeftButton);
    EXPECT_FALSE(forma.isVisible() || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.FechaDesde, dia(1));
}

TEST_F(FrClientesPerdidosTest, OnTheServerAStoreIsChosenBesideTheDay)
{
    enServidorCon({u"Sur"_s});
    abre();
    auto& panel = control<TilePanel>(forma, u"PanelTiendas"_s);
    QTest::mouseClick(panel.fichas()[1], Qt::LeftButton);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
    EXPECT_EQ(control<QLabel>(forma, u"lblInfoTienda"_s).text(), u"Sur"_s);
    EXPECT_TRUE(forma.isVisible());
}

} // namespace
} // namespace kestrane
