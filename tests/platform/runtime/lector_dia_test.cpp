#include "platform/runtime/lector_dia.h"

#include <gtest/gtest.h>

#include <QString>

namespace kestrane {
namespace {

TEST(LeeDia, OnlyTheOneSpellingOfARealDayCounts)
{
    for (const QStringView texto : {u"2023-02-29", u"2024-13-01", u"2024-2-29", u"24-02-29", u"2024/02/29", u"2024-02-29 ", u"",
                                    u"hoy", u"2024-0a-01", u"20240-2-29"})
        EXPECT_FALSE(leeDia(texto)) << texto.toString().toStdString();
}

TEST(LeeDia, BlanksSignsAndOtherDigitsAreNoDigits)
{
    for (const QStringView texto : {u"2024- 3- 5", u"2024-+3-+5", u" 024-03-05", u"+024-03-05", u"-024-03-05", u"٢٠٢٤-03-05"})
        EXPECT_FALSE(leeDia(texto)) << texto.toString().toStdString();
}

TEST(LeeDia, ADayIsReadWithItsMidnight)
{
    EXPECT_EQ(leeDia(u"2024-02-29"), Fecha::deCalendario(2024, 2, 29));
    EXPECT_EQ(leeDia(u"0100-01-01"), Fecha::deCalendario(100, 1, 1));
}

} // namespace
} // namespace kestrane
