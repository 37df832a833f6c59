#include "pipeline/forms/menu_de_prueba.h"

#include <QMenu>
#include <QPixmap>
#include <QTemporaryFile>
#include <QTest>

/// What the menu does when it loads and when something of its own is pressed.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

QColor fondo(const QWidget& quien)
{
    return quien.palette().color(quien.backgroundRole());
}

TEST_F(MenuTest, TheLoadTakesItsStepsInTheirOrder)
{
    abre();
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"TraducirForm frmListados"_s, u"PintarForm frmListados"_s, u"DarColorResalte"_s,
                                            u"DarColorBoton"_s, u"EscalarForm frmListados de 15360x11085 a 15360x11085"_s,
                                            u"AplicarLetra frmListados"_s, u"AplicarPermisos frmListados"_s}));
}

TEST_F(MenuTest, TheHelpIsPlacedBeforeTheRightsAndFlavourAndHandOffComeAfterThem)
{
    m_contexto.TipoPrograma = u"TPV"_s;
    m_tienda.ejecuta(u"insert into pasardatos (terminal, texto2, indice, texto1) values ('MOSTRADOR', 'Listado', 1, 'LstGen')"_s);
    construye();
    bool visto = false;
    m_aspecto.alAplicarPermisos = [&](QWidget& menu) {
        visto = true;
        EXPECT_EQ(menu.findChild<QWidget*>(u"Open1"_s)->y(), menu.height());
        EXPECT_FALSE(menu.findChild<QWidget*>(u"cmd_Ventas1"_s)->isHidden());
        EXPECT_NE(fondo(*menu.findChild<QWidget*>(u"Frame3"_s)), QColor(Qt::yellow));
    };
    m_menu->carga();
    EXPECT_TRUE(visto);
    EXPECT_TRUE(control(u"cmd_Ventas1"_s).isHidden());
    EXPECT_EQ(fondo(control(u"Frame3"_s)), QColor(Qt::yellow));
}

TEST_F(MenuTest, TheHeadTellsWhoseShopItIsAndOfSeveralStoresWhich)
{
    m_contexto.NombreEmpresa = u"Peluquería <Ana> & Co"_s;
    m_contexto.NombreTienda = u"Centro"_s;
    abre();
    EXPECT_EQ(control<QLabel>(u"lblEmpresa"_s).text(), u"Peluquería <Ana> & Co"_s);
    EXPECT_EQ(control<QLabel>(u"lblEmpresa"_s).textFormat(), Qt::PlainText);
    m_contexto.MultiTienda = true;
    abre();
    EXPECT_EQ(control<QLabel>(u"lblEmpresa"_s).text(), u"Peluquería <Ana> & Co · Centro"_s);
}

TEST_F(MenuTest, WithoutAFlagThereIsNoPictureAndNoToolTip)
{
    m_contexto.NombreRegional = u"España"_s;
    abre();
    EXPECT_TRUE(control<QLabel>(u"Bandera"_s).pixmap().isNull());
    EXPECT_TRUE(control(u"Bandera"_s).toolTip().isEmpty());
}

TEST_F(MenuTest, TheFlagStandsAtTheRightEdgeOfItsFrameWithItsName)
{
    QPixmap dibujo{60, 40};
    dibujo.fill(Qt::red);
    m_contexto.RutaBandera = m_tienda.carpeta() + u"/bandera.png"_s;
    ASSERT_TRUE(dibujo.save(m_contexto.RutaBandera));
    m_contexto.NombreRegional = u"España"_s;
    abre();
    const auto& bandera = control<QLabel>(u"Bandera"_s);
    EXPECT_EQ(bandera.pixmap().width(), 60);
    EXPECT_EQ(bandera.toolTip(), u"España"_s);
    EXPECT_EQ(bandera.geometry().right(), control(u"Frame8"_s).contentsRect().right() - 12); // its margin
}

TEST_F(MenuTest, AFlagMayLieInTheProgramsFolder)
{
    QPixmap dibujo{30, 20};
    dibujo.fill(Qt::red);
    ASSERT_TRUE(dibujo.save(m_tienda.carpeta() + u"/bandera.png"_s));
    m_contexto.CarpetaPrograma = m_tienda.carpeta();
    m_contexto.RutaBandera = u"bandera.png"_s;
    abre();
    EXPECT_FALSE(control<QLabel>(u"Bandera"_s).pixmap().isNull());
}

TEST_F(MenuTest, APictureThatIsNoneLeavesTheFlagOutOfSight)
{
    m_contexto.RutaBandera = m_tienda.carpeta() + u"/rota.png"_s;
    QFile rota{m_contexto.RutaBandera};
    ASSERT_TRUE(rota.open(QIODevice::WriteOnly));
    rota.write("no es una imagen");
    rota.close();
    abre();
    EXPECT_FALSE(control(u"Bandera"_s).isVisible());
}

TEST_F(MenuTest, InnerFramesAndOptionsTakeTheirColourFromWhatTheyStandIn)
{
    construye();
    const auto pinta = [this](const QString& nombre, const QColor& color) {
        QPalette colores = control(nombre).palette();
        colores.setColor(control(nombre).backgroundRole(), color);
        control(nombre).setPalette(colores);
    };
    const QStringList interiores{
        u"Frame12"_s,         u"Frameb"_s,         u"Framec"_s,    u"Framed"_s,     u"Framee"_s,          u"optTodos"_s,
        u"OptCPostal"_s,      u"optConsumo"_s,     u"optCumple"_s, u"optVisitas"_s, u"OptMayorConsumo"_s, u"OptMenoConsumo"_s,
        u"OptMayorVisitas"_s, u"optMenoVisitas"_s, u"Frame13"_s,   u"Frame14"_s,    u"Frame15"_s,         u"Frame16"_s};
    for (const QString& nombre : interiores)
        pinta(nombre, Qt::red);
    pinta(u"frAviso"_s, Qt::green);
    pinta(u"Frame5"_s, Qt::blue);
    m_menu->carga();
    for (const QString& nombre : interiores)
        EXPECT_EQ(fondo(control(nombre)), QColor(Qt::green)) << nombre.toStdString();
    EXPECT_EQ(fondo(control(u"frBotVentas"_s)), QColor(Qt::blue));
    EXPECT_EQ(fondo(control(u"cmdListados"_s)), QColor(255, 0, 0));
}

TEST_F(MenuTest, ThePanelOfClientLabelsCoversTheGeneralListings)
{
    abre();
    m_menu->Haz(AccionMenu::EtiquetasDeClientes);
    const QWidget& aviso = control(u"frAviso"_s);
    EXPECT_TRUE(aviso.isVisible());
    EXPECT_EQ(aviso.pos(), control(u"Frame3"_s).pos());
    EXPECT_TRUE(aviso.parentWidget()->rect().contains(aviso.geometry()));
    for (const QWidget* const hijo : aviso.findChildren<QWidget*>()) {
        if (!hijo->isVisible())
            continue;
        EXPECT_GE(hijo->width(), hijo->minimumSizeHint().width()) << hijo->objectName().toStdString();
    }
}

TEST_F(MenuTest, AnotherWindowSizeKeepsTheOwnSizeOfTheMomentAsTheDesign)
{
    abre().resize(1100, 800);
    m_aspecto.pasos.clear();
    QTest::mouseClick(&control(u"fr_Zoom1"_s), Qt::LeftButton);
    EXPECT_EQ(m_contexto.AnchoDiseno, 16500); // 1100 points of 15 twips
    EXPECT_EQ(m_contexto.AltoDiseno, 12000);
    EXPECT_EQ(m_contexto.AnchoVentana, 19200);
    EXPECT_EQ(m_contexto.AltoVentana, 14400);
    EXPECT_EQ(m_aspecto.pasos, QStringList{u"EscalarForm frmListados de 16500x12000 a 19200x14400"_s});
}

TEST_F(MenuTest, AWindowSizeThatDoesNotChangeScalesNothing)
{
    abre();
    m_preferencias.cambia = false;
    m_aspecto.pasos.clear();
    QTest::mouseClick(&control(u"fr_Zoom1"_s), Qt::LeftButton);
    EXPECT_TRUE(m_aspecto.pasos.isEmpty());
}

TEST_F(MenuTest, AnotherFontSettingHoldsForTheRunAndIsApplied)
{
    abre();
    m_aspecto.pasos.clear();
    QTest::mouseClick(&control(u"fr_Zoom2"_s), Qt::LeftButton);
    EXPECT_EQ(m_contexto.TamanoLetra, 14);
    EXPECT_EQ(m_aspecto.pasos, QStringList{u"AplicarLetra frmListados"_s});
}

TEST_F(MenuTest, AnotherThemeHoldsForTheRunAndIsPainted)
{
    abre();
    m_aspecto.pasos.clear();
    QTest::mouseClick(&control(u"fr_Zoom3"_s), Qt::LeftButton);
    EXPECT_EQ(m_contexto.Tema, 3);
    EXPECT_EQ(m_aspecto.pasos, QStringList{u"PintarForm frmListados"_s});
}

TEST_F(MenuTest, APressDoesWhatTheCatalogueSaysForThatButton)
{
    abre();
    QTest::mouseClick(&control(u"cmd_Generales3"_s), Qt::LeftButton);
    QTest::mouseClick(&control(u"Command8"_s), Qt::LeftButton);
    QTest::mouseClick(&control(u"cmd_Ayuda"_s), Qt::LeftButton);
    QTest::mouseClick(&control(u"cmd_Salir"_s), Qt::LeftButton);
    EXPECT_EQ(m_pulsados, (QStringList{u"cmd_Generales3"_s, u"Command8"_s, u"cmd_Ayuda"_s, u"cmd_Salir"_s}));
}

TEST_F(MenuTest, LeavingAndClosingEndTheProgramAtOnce)
{
    abre().Haz(AccionMenu::Salir);
    EXPECT_EQ(m_finales, 1);
    m_menu->close();
    EXPECT_EQ(m_finales, 2);
}

TEST_F(MenuTest, WindowsThatAreNotThereYetSaySo)
{
    abre();
    for (const AccionMenu accion : {AccionMenu::Carteles, AccionMenu::EtiquetasDeProductos, AccionMenu::EtiquetasDeProductosTPV})
        m_menu->Haz(accion);
    EXPECT_EQ(m_mensajes.dichos, QStringList(3, u"Listados: Este listado todavía no está disponible."_s));
}

TEST_F(MenuTest, TheNoticeOfALongReportIsShownAndHiddenAndMovesNothing)
{
    abre();
    const QPoint lugar = control(u"cmd_Caja1"_s).mapToGlobal(QPoint{});
    EXPECT_FALSE(control(u"lblInfo"_s).isVisible());
    m_menu->MuestraInfo();
    asienta();
    EXPECT_TRUE(control(u"lblInfo"_s).isVisible());
    EXPECT_EQ(control(u"cmd_Caja1"_s).mapToGlobal(QPoint{}), lugar);
    m_menu->OcultaInfo();
    EXPECT_FALSE(control(u"lblInfo"_s).isVisible());
}

TEST_F(MenuTest, TheCaptionOfAButtonIsTheOneThatItBearsNow)
{
    abre();
    EXPECT_EQ(m_menu->Leyenda(u"cmd_Ventas1"), u"Por Servicios"_s);
    control<QPushButton>(u"cmd_Ventas1"_s).setText(u"Per serveis"_s);
    EXPECT_EQ(m_menu->Leyenda(u"cmd_Ventas1"), u"Per serveis"_s);
    EXPECT_EQ(m_menu->Leyenda(u"cmd_Nada"), QString{});
}

} // namespace
} // namespace kestrane
