#include "platform/controls/calendario.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QTextCharFormat>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class CalendarioTest : public testing::Test
{
protected:
    static Fecha dia(int dia) { return *Fecha::deCalendario(2024, 3, dia); }

    Calendario calendario{u"cld_Desde"_s, nullptr};
};

TEST_F(CalendarioTest, ItHoldsTheDayThatItIsGivenInBothItsParts)
{
    calendario.pon(dia(15));
    EXPECT_EQ(calendario.fecha(), dia(15));
    EXPECT_EQ(calendario.escrita().text(), u"15/03/2024"_s);
    EXPECT_EQ(calendario.mes().selectedDate(), QDate(2024, 3, 15));
}

TEST_F(CalendarioTest, ADayIsTypedAsDayMonthAndYear)
{
    calendario.show();
    calendario.pon(dia(15));
    calendario.escrita().setFocus();
    calendario.escrita().setSelectedSection(QDateTimeEdit::DaySection); // as the tabulator does
    QTest::keyClicks(&calendario.escrita(), u"07022023"_s);
    QTest::keyClick(&calendario.escrita(), Qt::Key_Tab);
    EXPECT_EQ(calendario.fecha(), *Fecha::deCalendario(2023, 2, 7));
    EXPECT_EQ(calendario.mes().selectedDate(), QDate(2023, 2, 7));
}

TEST_F(CalendarioTest, ADayPressedInTheMonthIsTheChosenOne)
{
    calendario.pon(dia(15));
    const QSignalSpy avisos{&calendario, &Calendario::cambiada};
    calendario.mes().setSelectedDate({2024, 3, 20});
    EXPECT_EQ(calendario.fecha(), dia(20));
    EXPECT_EQ(avisos.count(), 1);
}

TEST_F(CalendarioTest, WeeksBeginOnMonday)
{
    EXPECT_EQ(calendario.mes().firstDayOfWeek(), Qt::Monday);
}

TEST_F(CalendarioTest, TodayIsMarkedAndNoOtherDay)
{
    calendario.ponHoy(dia(15));
    EXPECT_TRUE(calendario.mes().dateTextFormat({2024, 3, 15}).fontUnderline());
    EXPECT_FALSE(calendario.mes().dateTextFormat({2024, 3, 16}).fontUnderline());
}

TEST_F(CalendarioTest, ADayIsAsWideAsAFinger)
{
    EXPECT_GE(calendario.mes().minimumWidth(), 7 * 44);
}

TEST_F(CalendarioTest, AGivenHeightIsTheGreatestOfTheMonth)
{
    calendario.ponAlto(254);
    calendario.resize(400, 800);
    calendario.show();
    EXPECT_EQ(calendario.mes().height(), 254);
}

} // namespace
} // namespace kestrane
