#include "platform/suite/windows/pinta_calendario.h"

#include "platform/suite/windows/paleta_colores.h"

#include <gtest/gtest.h>

#include <QTextCharFormat>
#include <QToolButton>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QToolButton& botonDe(const QCalendarWidget& calendario, const QString& nombre)
{
    return *calendario.findChild<QToolButton*>(nombre);
}

TEST(PintaCalendarioTest, WeekEndsAndTheBarFollowTheTheme)
{
    QCalendarWidget calendario;
    for (const qint32 tema : {1, 3, 4}) {
        const Paleta& paleta = paletaDe(tema);
        pintaCalendario(calendario, paleta);
        EXPECT_EQ(calendario.weekdayTextFormat(Qt::Sunday).foreground().color(), QColor::fromRgb(paleta.aviso));
        const QPalette deBarra = botonDe(calendario, u"qt_calendar_monthbutton"_s).palette();
        EXPECT_EQ(deBarra.color(QPalette::ButtonText), QColor::fromRgb(paleta.textoSeleccion));
        EXPECT_EQ(deBarra.color(QPalette::Button), QColor::fromRgb(paleta.seleccion));
    }
}

TEST(PintaCalendarioTest, TheArrowsAreOfTheColourOfTheTextBesideThem)
{
    QCalendarWidget calendario;
    pintaCalendario(calendario, paletaDe(4)); // black on yellow
    const QImage flecha = botonDe(calendario, u"qt_calendar_nextmonth"_s).icon().pixmap(20, 20).toImage();
    bool pintada = false;
    for (int y = 0; y < flecha.height(); ++y) {
        for (int x = 0; x < flecha.width(); ++x) {
            const QColor punto = flecha.pixelColor(x, y);
            pintada = pintada || punto.alpha() > 200;
            EXPECT_TRUE(punto.alpha() < 200 || punto.lightness() < 10) << x << ", " << y;
        }
    }
    EXPECT_TRUE(pintada);
}

TEST(PintaCalendarioTest, PaintingTheWindowPaintsItsCalendars)
{
    QWidget ventana;
    QCalendarWidget calendario{&ventana};
    PaletaColores{}.PintarForm(ventana, 4);
    EXPECT_EQ(botonDe(calendario, u"qt_calendar_yearbutton"_s).palette().color(QPalette::ButtonText), QColor{Qt::black});
    EXPECT_TRUE(esDeCalendario(botonDe(calendario, u"qt_calendar_yearbutton"_s)));
    EXPECT_FALSE(esDeCalendario(calendario));
}

} // namespace
} // namespace kestrane
