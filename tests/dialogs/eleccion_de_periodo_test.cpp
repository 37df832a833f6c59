#include "dialogs/eleccion_de_periodo.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class EleccionDePeriodoTest : public testing::Test
{
protected:
    EleccionDePeriodoTest()
    {
        periodo.carga();
        periodo.show();
    }
    static Fecha dia(int mes, int dia) { return *Fecha::deCalendario(2024, mes, dia); }
    Calendario& calendario(const QString& nombre) { return *periodo.findChild<Calendario*>(nombre); }

    RelojFijo reloj{*Fecha::deCalendario(2024, 3, 15, 18, 30)};
    EleccionDePeriodo periodo{reloj, nullptr};
};

TEST_F(EleccionDePeriodoTest, BothDatesBeginOnToday)
{
    EXPECT_EQ(periodo.desde(), dia(3, 15));
    EXPECT_EQ(periodo.hasta(), dia(3, 15));
}

TEST_F(EleccionDePeriodoTest, ADateIsTypedDayFirst)
{
    QDateEdit& escrita = calendario(u"cld_Desde"_s).escrita();
    escrita.setFocus();
    escrita.setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(&escrita, u"02"_s);
    EXPECT_EQ(periodo.desde(), dia(3, 2));
    EXPECT_EQ(periodo.hasta(), dia(3, 15));
}

TEST_F(EleccionDePeriodoTest, AQuickPeriodSetsBothDates)
{
    QTest::mouseClick(periodo.findChild<QPushButton*>(u"periodo Mes anterior"_s), Qt::LeftButton);
    EXPECT_EQ(periodo.desde(), dia(2, 1));
    EXPECT_EQ(periodo.hasta(), dia(2, 29));
}

TEST_F(EleccionDePeriodoTest, InALowWindowTheCalendarsHaveAHeightOfTheirOwn)
{
    periodo.ajustaAlto(11085);
    EXPECT_GT(calendario(u"cld_Hasta"_s).mes().maximumHeight(), 10000);
    periodo.ajustaAlto(11084);
    EXPECT_EQ(calendario(u"cld_Hasta"_s).mes().maximumHeight(), 254); // 3810 twips
}

TEST_F(EleccionDePeriodoTest, EachCalendarHasItsLabel)
{
    EXPECT_EQ(periodo.findChild<QLabel*>(u"cld_Desde_rotulo"_s)->text(), u"Desde"_s);
    EXPECT_EQ(periodo.findChild<QLabel*>(u"cld_Hasta_rotulo"_s)->buddy(), &calendario(u"cld_Hasta"_s));
}

} // namespace
} // namespace kestrane
