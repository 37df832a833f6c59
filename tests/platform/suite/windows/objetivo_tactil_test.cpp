#include "platform/suite/windows/objetivo_tactil.h"

#include "platform/suite/windows/escalador_ventanas.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(ObjetivoTactilTest, WhereTheWindowAsksWhatAFingerHitsIsHighEnough)
{
    QWidget ventana;
    ventana.setProperty(propiedades::Tactil, true);
    QPushButton boton{&ventana};
    QLineEdit campo{&ventana};
    QCheckBox casilla{&ventana};
    QSpinBox contador{&ventana};
    QLabel rotulo{&ventana};
    daObjetivosTactiles(ventana);
    for (const QWidget* control : {static_cast<QWidget*>(&boton), static_cast<QWidget*>(&campo), static_cast<QWidget*>(&casilla),
                                   static_cast<QWidget*>(&contador)})
        EXPECT_EQ(control->minimumHeight(), 44) << control->metaObject()->className();
    EXPECT_EQ(rotulo.minimumHeight(), 0);
    EXPECT_EQ(contador.findChild<QLineEdit*>()->minimumHeight(), 0); // a part of the counter
}

TEST(ObjetivoTactilTest, TheArrowsOfACalendarAreForFingersToo)
{
    QWidget ventana;
    ventana.setProperty(propiedades::Tactil, true);
    QCalendarWidget calendario{&ventana};
    daObjetivosTactiles(ventana);
    for (const QString& nombre : {u"qt_calendar_prevmonth"_s, u"qt_calendar_nextmonth"_s, u"qt_calendar_monthbutton"_s})
        EXPECT_EQ(calendario.findChild<QToolButton*>(nombre)->minimumHeight(), 44) << nombre.toStdString();
}

TEST(ObjetivoTactilTest, WhereOneControlAsksItIsThatOne)
{
    QWidget ventana;
    QPushButton pide{&ventana};
    pide.setProperty(propiedades::Tactil, true);
    QPushButton otro{&ventana};
    daObjetivosTactiles(ventana);
    EXPECT_EQ(pide.minimumHeight(), 44);
    EXPECT_EQ(otro.minimumHeight(), 0);
}

TEST(ObjetivoTactilTest, HigherControlsAndFixedOnesStayAsTheyAre)
{
    QWidget ventana;
    ventana.setProperty(propiedades::Tactil, true);
    QPushButton alto{&ventana};
    alto.setMinimumHeight(60);
    QPushButton fijo{&ventana};
    fijo.setFixedHeight(30);
    daObjetivosTactiles(ventana);
    EXPECT_EQ(alto.minimumHeight(), 60);
    EXPECT_EQ(fijo.height(), 30);
    EXPECT_EQ(fijo.maximumHeight(), 30);
}

TEST(ObjetivoTactilTest, TheHeightIsGivenOnceAndScaledWithTheRest)
{
    QWidget ventana;
    ventana.setProperty(propiedades::Tactil, true);
    QPushButton boton{&ventana};
    daObjetivosTactiles(ventana);
    EscaladorVentanas{}.EscalarForm(ventana, {15000, 15000}, {20000, 20000});
    daObjetivosTactiles(ventana);
    EXPECT_EQ(boton.minimumHeight(), 33);
    EscaladorVentanas{}.EscalarForm(ventana, {20000, 20000}, {15000, 15000});
    EXPECT_EQ(boton.minimumHeight(), 44);
}

} // namespace
} // namespace kestrane
