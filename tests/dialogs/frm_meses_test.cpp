#include "dialogs/frm_meses.h"

#include "dialogs/forma_de_prueba.h"
#include "platform/controls/ficha.h"

#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmMesesTest : public prueba::FormaTest
{
protected:
    FrmMesesTest() { abre(); }
    void abre()
    {
        m_aspecto.pasos.clear();
        forma.carga();
        forma.show();
    }
    void pulsa(const QString& nombre) { QTest::mouseClick(&control(forma, nombre), Qt::LeftButton); }
    QString texto(const QString& nombre) { return control<QLineEdit>(forma, nombre).text(); }
    bool seVe(const QString& nombre) { return control(forma, nombre).isVisible(); }
    /// The three texts, month first.
    QStringList textos() { return {texto(u"txtnumMes"_s), texto(u"txtMes"_s), texto(u"txtAño"_s)}; }

    FrmMeses forma{m_servicios};
};

TEST_F(FrmMesesTest, ItOpensOnTheMonthOfToday)
{
    EXPECT_EQ(forma.windowTitle(), u"Listado x Meses"_s);
    EXPECT_EQ(control<QLabel>(forma, u"Label1"_s).text(), u"SELECCIONE EL MES DEL GRAFICO"_s);
    EXPECT_EQ(control<QLabel>(forma, u"Label2"_s).text(), u"SELECCIONE EL AÑO DEL GRAFICO"_s);
    EXPECT_EQ(textos(), (QStringList{u"3"_s, u"marzo"_s, u"2024"_s}));
    EXPECT_FALSE(seVe(u"txtnumMes"_s));
    EXPECT_TRUE(seVe(u"cmdSigMes"_s) && seVe(u"cmdSigAño"_s));
}

TEST_F(FrmMesesTest, ItsLoadTakesItsStepsInTheirOrder)
{
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"TraducirForm frmMeses"_s, u"AplicarLetra frmMeses"_s, u"PintarForm frmMeses"_s,
                                            u"EscalarForm frmMeses de 15360x11085 a 15360x11085"_s}));
}

TEST_F(FrmMesesTest, BackFromJanuaryIsDecemberOfTheSameYear)
{
    for (int vez = 0; vez < 3; ++vez)
        pulsa(u"cmdAntMes"_s);
    EXPECT_EQ(textos(), (QStringList{u"12"_s, u"diciembre"_s, u"2024"_s}));
    pulsa(u"cmdSigMes"_s);
    EXPECT_EQ(textos(), (QStringList{u"1"_s, u"enero"_s, u"2024"_s}));
}

TEST_F(FrmMesesTest, ForwardToTheMonthOfTodayHidesItsButtonInAnotherYearToo)
{
    pulsa(u"cmdAntAño"_s);
    pulsa(u"cmdAntMes"_s);
    pulsa(u"cmdSigMes"_s);
    EXPECT_FALSE(seVe(u"cmdSigMes"_s));
    EXPECT_TRUE(seVe(u"cmdSigAño"_s));
    EXPECT_EQ(textos(), (QStringList{u"3"_s, u"marzo"_s, u"2023"_s}));
    pulsa(u"cmdAntMes"_s);
    EXPECT_TRUE(seVe(u"cmdSigMes"_s));
}

TEST_F(FrmMesesTest, ForwardToTheYearOfTodayHidesItsButton)
{
    pulsa(u"cmdAntAño"_s);
    pulsa(u"cmdSigAño"_s);
    EXPECT_FALSE(seVe(u"cmdSigAño"_s));
    pulsa(u"cmdAntAño"_s);
    EXPECT_TRUE(seVe(u"cmdSigAño"_s));
}

TEST_F(FrmMesesTest, OnePressReachesWhatIsStillToComeAndItIsAccepted)
{
    pulsa(u"cmdSigMes"_s);
    pulsa(u"cmdSigAño"_s);
    pulsa(u"Command1"_s);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(m_contexto.filtros.mes, 4);
    EXPECT_EQ(m_contexto.filtros.anio, 2025);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmMesesTest, AButtonThatHidesLeavesTheOthersWhereTheyStand)
{
    const QRect antes = control(forma, u"cmdAntMes"_s).geometry();
    const QRect texto = control(forma, u"txtMes"_s).geometry();
    pulsa(u"cmdAntMes"_s);
    pulsa(u"cmdSigMes"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(control(forma, u"cmdAntMes"_s).geometry(), antes);
    EXPECT_EQ(control(forma, u"txtMes"_s).geometry(), texto);
}

TEST_F(FrmMesesTest, CompletenessIsOfferedInEveryShopAndForgottenAtTheLoad)
{
    EXPECT_FALSE(m_contexto.ModuloFacturas);
    QTest::keyClick(&control<QCheckBox>(forma, u"ch_Completo"_s), Qt::Key_Space);
    EXPECT_TRUE(m_contexto.CajaCompleta);
    abre();
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

TEST_F(FrmMesesTest, WithTheKeyboardAloneAMonthIsChosenAndAccepted)
{
    EXPECT_EQ(forma.focusWidget(), &control(forma, u"cmdAntMes"_s));
    QTest::keyClick(forma.focusWidget(), Qt::Key_Space);
    QTest::keyClick(forma.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_EQ(m_contexto.filtros.mes, 2);
}

TEST_F(FrmMesesTest, LeavingStoresNothing)
{
    m_contexto.filtros.mes = 7;
    pulsa(u"cmdAntMes"_s);
    QTest::keyClick(&forma, Qt::Key_Escape);
    EXPECT_FALSE(forma.isVisible() || m_contexto.FiltroAceptado);
    EXPECT_EQ(m_contexto.filtros.mes, 7);
}

TEST_F(FrmMesesTest, OnTheServerAStoreIsChosen)
{
    EXPECT_FALSE(seVe(u"PanelTiendas"_s));
    enServidorCon({u"Sur"_s});
    abre();
    QTest::mouseClick(control<TilePanel>(forma, u"PanelTiendas"_s).fichas()[1], Qt::LeftButton);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Sur"_s);
    EXPECT_EQ(control<QLabel>(forma, u"lblInfoTienda"_s).text(), u"Sur"_s);
}

TEST_F(FrmMesesTest, AForwardButtonThatGoesAwayLeavesTheKeyboardToItsTwin)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forma));
    for (const auto& [atras, adelante] : {std::pair{u"cmdAntMes"_s, u"cmdSigMes"_s}, {u"cmdAntAño"_s, u"cmdSigAño"_s}}) {
        pulsa(atras);
        QWidget& siguiente = control(forma, adelante);
        siguiente.setFocus();
        QTest::keyClick(&siguiente, Qt::Key_Space);
        EXPECT_FALSE(siguiente.isVisible());
        EXPECT_TRUE(control(forma, atras).hasFocus()) << adelante.toStdString();
    }
    EXPECT_FALSE(m_contexto.CajaCompleta);
}

} // namespace
} // namespace kestrane
