#include "platform/suite/windows/paleta_colores.h"

#include "platform/suite/apariencia.h"
#include "platform/suite/paleta.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QColor color(Rgb rgb)
{
    return QColor::fromRgb(rgb);
}

/// A window with a card, a button on the card and a label beside it.
class PaletaColoresTest : public testing::Test
{
protected:
    PaletaColoresTest()
    {
        auto* columna = new QVBoxLayout{&ventana};
        columna->addWidget(grupo);
        columna->addWidget(rotulo);
        (new QVBoxLayout{grupo})->addWidget(boton);
        ventana.resize(300, 200);
    }
    void pinta(qint32 tema) { paleta.PintarForm(ventana, tema); }

    PaletaColores paleta;
    QWidget ventana;
    QGroupBox* grupo = new QGroupBox;
    QPushButton* boton = new QPushButton;
    QLabel* rotulo = new QLabel;
};

TEST_F(PaletaColoresTest, WindowCardAndButtonTakeTheColoursOfTheTheme)
{
    for (const qint32 tema : Temas) {
        pinta(tema);
        const Paleta& colores = paletaDe(tema);
        EXPECT_EQ(ventana.palette().color(QPalette::Window), color(colores.fondo)) << tema;
        EXPECT_EQ(grupo->palette().color(QPalette::Window), color(colores.tarjeta)) << tema;
        EXPECT_EQ(boton->palette().color(QPalette::Button), color(colores.boton)) << tema;
        EXPECT_EQ(rotulo->palette().color(QPalette::WindowText), color(colores.texto)) << tema;
        EXPECT_EQ(ventana.grab().toImage().pixelColor(1, 1), color(colores.fondo)) << tema;
    }
}

TEST_F(PaletaColoresTest, WhatStandsOnACardHasTheColourOfTheCardBehindIt)
{
    pinta(3);
    EXPECT_EQ(boton->palette().color(QPalette::Window), color(paletaDe(3).tarjeta));
}

TEST_F(PaletaColoresTest, AColourThatTheWindowGivesAfterwardsStays)
{
    pinta(1);
    QPalette propia = boton->palette();
    propia.setColor(QPalette::Button, Qt::red);
    boton->setPalette(propia);
    EXPECT_EQ(boton->palette().color(QPalette::Button), QColor{Qt::red});
    const QImage imagen = boton->grab().toImage();
    EXPECT_EQ(imagen.pixelColor(imagen.rect().center()), QColor{Qt::red});
}

TEST_F(PaletaColoresTest, AnotherThemeLeavesNothingOfTheOldOne)
{
    pinta(1);
    QPalette propia = boton->palette();
    propia.setColor(QPalette::Button, Qt::red);
    boton->setPalette(propia);
    pinta(4);
    QWidget nueva;
    QPushButton enNueva{&nueva};
    paleta.PintarForm(nueva, 4);
    for (int papel = 0; papel < QPalette::NColorRoles; ++papel) {
        const auto cual = static_cast<QPalette::ColorRole>(papel);
        EXPECT_EQ(ventana.palette().color(cual), nueva.palette().color(cual)) << papel;
        EXPECT_EQ(rotulo->palette().color(cual), nueva.palette().color(cual)) << papel;
    }
    EXPECT_EQ(boton->palette().color(QPalette::Button), enNueva.palette().color(QPalette::Button));
}

TEST_F(PaletaColoresTest, NotesStepBackAndWarningsStandOut)
{
    rotulo->setProperty(propiedades::TextoSuave, true);
    QLabel aviso{&ventana};
    aviso.setProperty(propiedades::TextoAviso, true);
    pinta(2);
    EXPECT_EQ(rotulo->palette().color(QPalette::WindowText), color(paletaDe(2).textoSuave));
    EXPECT_EQ(aviso.palette().color(QPalette::WindowText), color(paletaDe(2).aviso));
}

TEST_F(PaletaColoresTest, ASmallWindowHasTheBackOfSmallWindows)
{
    ventana.setProperty(propiedades::VentanaPequena, true);
    pinta(3);
    EXPECT_EQ(ventana.palette().color(QPalette::Window), color(paletaDe(3).fondoPequeno));
}

TEST_F(PaletaColoresTest, FramesThatSaySoAreCards)
{
    auto* marco = new QFrame{&ventana};
    marco->setProperty(propiedades::Tarjeta, true);
    pinta(2);
    EXPECT_EQ(marco->palette().color(QPalette::Window), color(paletaDe(2).tarjeta));
}

TEST_F(PaletaColoresTest, WhatBelongsToNoWindowFollows)
{
    pinta(3);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), color(paletaDe(3).fondo));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), color(paletaDe(3).texto));
    pinta(1);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), color(paletaDe(1).fondo));
}

TEST_F(PaletaColoresTest, LinksAreReadAnewInTheColourOfTheTheme)
{
    rotulo->setText(u"<a href=\"ayuda\">Ayuda</a>"_s);
    rotulo->resize(rotulo->sizeHint());
    const auto pintadoCon = [&](qint32 tema) {
        const QImage imagen = rotulo->grab().toImage();
        for (int y = 0; y < imagen.height(); ++y) {
            for (int x = 0; x < imagen.width(); ++x) {
                if (imagen.pixelColor(x, y) == color(paletaDe(tema).foco))
                    return true;
            }
        }
        return false;
    };
    pinta(1);
    EXPECT_TRUE(pintadoCon(1));
    pinta(4);
    EXPECT_TRUE(pintadoCon(4));
    EXPECT_FALSE(pintadoCon(1));
}

TEST_F(PaletaColoresTest, WindowsAskForTouchTargets)
{
    ventana.setProperty(propiedades::Tactil, true);
    pinta(1);
    EXPECT_EQ(boton->minimumHeight(), 44);
}

TEST_F(PaletaColoresTest, ColoursForWindowsAreDecimalTextsWithRedInTheLowestByte)
{
    EXPECT_EQ(paleta.DarColorFondo(4), u"0"_s);
    EXPECT_EQ(paleta.DarColorResalte(4), u"19789"_s);        // 0x4d4d00: 77 + 77 * 256
    EXPECT_EQ(paleta.DarColorBoton(4), u"3357696"_s);        // 0x003c33: 60 * 256 + 51 * 65536
    EXPECT_EQ(paleta.DarColorPredefinido1(4), u"6697728"_s); // 0x003366: 51 * 256 + 102 * 65536
    EXPECT_EQ(paleta.DarColorPredefinido2(4), u"2441728"_s); // 0x004225: 66 * 256 + 37 * 65536
    EXPECT_EQ(paleta.DarColorPredefinido3(4), u"14426"_s);   // 0x5a3800: 90 + 56 * 256
    EXPECT_EQ(paleta.DarColorPredefinido4(4), u"5570635"_s); // 0x4b0055: 75 + 85 * 65536
}

TEST_F(PaletaColoresTest, AThemeThatIsNoneIsTheFirst)
{
    for (const qint32 tema : {0, -1, 99}) {
        EXPECT_EQ(paleta.DarColorFondo(tema), paleta.DarColorFondo(1));
        EXPECT_EQ(coloresDe(tema), coloresDe(1));
    }
}

} // namespace
} // namespace kestrane
