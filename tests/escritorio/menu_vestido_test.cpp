#include "apoyo/tienda_de_prueba.h"
#include "pipeline/catalogue/catalogo.h"
#include "pipeline/forms/frm_listados.h"
#include "pipeline/forms/mensajes_en_ventana.h"
#include "platform/suite/conector_tienda.h"
#include "platform/suite/preferencias_en_tabla.h"
#include "platform/suite/windows/aspecto_de_suite.h"

#include <gtest/gtest.h>

#include <QTest>

#include <optional>

/// The menu in the suite's own dress: themes, letters, sizes and rights.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class MenuVestidoTest : public testing::Test
{
protected:
    MenuVestidoTest()
    {
        ConectorTiendaDsn{}.AbrirConexion({}, m_contexto.ConexionTienda);
        m_contexto.TipoPrograma = u"PELUQUERIA"_s;
        m_contexto.Tema = 1;
        m_contexto.TamanoLetra = 10;
        m_contexto.AnchoVentana = m_contexto.AnchoDiseno = 15360;
        m_contexto.AltoVentana = m_contexto.AltoDiseno = 11085;
    }

    FrmListados& abre()
    {
        m_menu.emplace(ServiciosMenu{.contexto = m_contexto,
                                     .aspecto = m_aspecto,
                                     .preferencias = m_preferencias,
                                     .reloj = m_reloj,
                                     .mensajes = m_mensajes,
                                     .ObtenerList1 = [] { return QString{}; },
                                     .pulsa = [](const auto&) {},
                                     .termina = [] {}});
        m_aspecto.ponPrincipal(&*m_menu, m_menu->marcoExterior(), m_menu->marcoInterior());
        m_menu->carga();
        m_menu->show();
        asienta();
        return *m_menu;
    }
    static void asienta()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }
    QWidget& control(const QString& nombre) { return *m_menu->findChild<QWidget*>(nombre); }
    void niega(const QString& nombre)
    {
        m_tienda.ejecuta(u"insert into permisos_listados (empleado, control, permitido) values (0, '"_s + nombre + u"', 0)"_s);
    }
    /// Of each visible button whether its caption is whole and it overlaps no other.
    void compruebaBotones()
    {
        QList<QRect> cajas;
        for (const BotonMenu* const boton : m_menu->findChildren<BotonMenu*>()) {
            if (!boton->isVisible())
                continue;
            const QRect caja{boton->mapTo(&*m_menu, QPoint{}), boton->size()};
            EXPECT_GE(boton->height(), boton->heightForWidth(boton->width())) << boton->objectName().toStdString();
            EXPECT_GE(boton->width(), boton->minimumSizeHint().width()) << boton->objectName().toStdString();
            for (const QRect& otra : cajas)
                EXPECT_FALSE(caja.intersects(otra)) << boton->objectName().toStdString();
            cajas += caja;
        }
        EXPECT_GE(cajas.size(), 40);
    }

    prueba::TiendaDePrueba m_tienda;
    ContextoEjecucion m_contexto{m_tienda.entorno()};
    PreferenciasEnTabla m_preferencias{u"MOSTRADOR"_s};
    PermisosEnTabla m_permisos;
    TraductorCaptions m_traductor;
    AspectoDeSuite m_aspecto{m_contexto, m_permisos, m_traductor};
    RelojFijo m_reloj{*Fecha::deCalendario(2024, 3, 15)};
    MensajesEnVentana m_mensajes;
    std::optional<FrmListados> m_menu;
};

TEST_F(MenuVestidoTest, WhatAnEmployeeMayNotUseIsHiddenAndWhatTheFlavourShowsAgainStaysDead)
{
    niega(u"cmd_Caja1"_s);
    niega(u"CMD_VENTAS1"_s);
    abre();
    EXPECT_FALSE(control(u"cmd_Caja1"_s).isVisible());
    EXPECT_TRUE(control(u"cmd_Ventas1"_s).isVisible());
    EXPECT_FALSE(control(u"cmd_Ventas1"_s).isEnabled());
    EXPECT_TRUE(control(u"cmd_Ventas2"_s).isEnabled());
}

TEST_F(MenuVestidoTest, LettersOfAllSizesLeaveEveryCaptionWholeInEveryTheme)
{
    for (const qint32 tema : Temas) {
        for (const qint32 letra : Letras) {
            m_contexto.Tema = tema;
            m_contexto.TamanoLetra = letra;
            abre().resize(1024, 739);
            asienta();
            SCOPED_TRACE(testing::Message() << "theme " << tema << ", letters " << letra);
            compruebaBotones();
        }
    }
}

TEST_F(MenuVestidoTest, ThePressedZonesGoThroughSizesLettersAndThemesAndAreStored)
{
    abre();
    QTest::mouseClick(&control(u"fr_Zoom2"_s), Qt::LeftButton);
    QTest::mouseClick(&control(u"fr_Zoom3"_s), Qt::LeftButton);
    asienta();
    EXPECT_EQ(m_contexto.TamanoLetra, 12);
    EXPECT_EQ(m_contexto.Tema, 2);
    EXPECT_EQ(m_preferencias.DarLetra(m_contexto.ConexionTienda), 12);
    EXPECT_EQ(m_preferencias.DarTema(m_contexto.ConexionTienda), 2);
    EXPECT_DOUBLE_EQ(control(u"cmd_Caja1"_s).font().pointSizeF(), 12);
    compruebaBotones();
}

TEST_F(MenuVestidoTest, TheRoundOfWindowSizesEndsWhereItBeganThoughTheScreenHoldsTheWindowSmaller)
{
    abre();
    for (int vez = 0; vez < 6; ++vez) {
        QTest::mouseClick(&control(u"fr_Zoom1"_s), Qt::LeftButton);
        asienta();
    }
    EXPECT_EQ(m_contexto.AnchoVentana, 15360);
    EXPECT_DOUBLE_EQ(control(u"cmd_Caja1"_s).font().pointSizeF(), 10);
    compruebaBotones();
}

TEST_F(MenuVestidoTest, TheMenuNeverOpensLargerThanTheScreen)
{
    m_contexto.AnchoVentana = 28800;
    m_contexto.AltoVentana = 16200;
    const QRect pantalla = abre().screen()->availableGeometry();
    EXPECT_LE(m_menu->width(), pantalla.width());
    EXPECT_LE(m_menu->height(), pantalla.height());
    EXPECT_TRUE(pantalla.contains(m_menu->frameGeometry()));
}

TEST_F(MenuVestidoTest, InCatalanNoButtonKeepsItsSpanishCaption)
{
    const TraductorCaptions catalan{QStringLiteral(KESTRANE_TRADUCCIONES), {u"ca-ES"_s}};
    const QStringList iguales{u"Pack Spa"_s, {}}; // the same in both, and the button without a caption
    abre();
    catalan.TraducirForm(*m_menu);
    EXPECT_EQ(m_menu->Leyenda(u"cmd_Caja1"), u"Caixa Diària General"_s);
    for (const catalogue::FilaCatalogo& fila : catalogue::catalogo()) {
        const QString original = fila.leyenda.toString();
        if (iguales.contains(original))
            continue;
        EXPECT_NE(m_menu->Leyenda(fila.control), original) << fila.control.toString().toStdString();
    }
    asienta();
    compruebaBotones();
}

TEST_F(MenuVestidoTest, SmallWindowsArePlacedOverTheMenusButtons)
{
    abre();
    const QPoint esquina = m_menu->pos() + m_menu->marcoExterior()->pos() + m_menu->marcoInterior()->pos();
    EXPECT_EQ(m_aspecto.esquinaPrincipal(), esquina);
}

} // namespace
} // namespace kestrane
