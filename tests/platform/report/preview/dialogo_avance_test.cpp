#include "platform/report/preview/dialogo_avance.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include <stdexcept>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class DialogoAvanceTest : public testing::Test
{
protected:
    DialogoAvance dialogo{u"Exportando"_s, nullptr};
    QProgressBar* barra = dialogo.findChild<QProgressBar*>(u"barraAvance"_s);
};

TEST_F(DialogoAvanceTest, ShowsHowFarTheWorkIs)
{
    QList<int> vistos;
    EXPECT_TRUE(dialogo.haz([&](const AvanceExportacion& avance) {
        for (const double parte : {0.25, 0.5, 1.}) {
            EXPECT_TRUE(avance(parte));
            vistos += barra->value();
        }
        return true;
    }));
    EXPECT_EQ(vistos, (QList<int>{25, 50, 100}));
    EXPECT_TRUE(dialogo.isVisible());
}

TEST_F(DialogoAvanceTest, TheButtonBreaksItOff)
{
    EXPECT_FALSE(dialogo.haz([&](const AvanceExportacion& avance) {
        QTest::mouseClick(dialogo.findChild<QPushButton*>(u"cancelaAvance"_s), Qt::LeftButton);
        return avance(0.5);
    }));
}

TEST_F(DialogoAvanceTest, EscapeBreaksItOff)
{
    EXPECT_FALSE(dialogo.haz([&](const AvanceExportacion& avance) {
        QTest::keyClick(&dialogo, Qt::Key_Escape);
        return avance(0.5);
    }));
}

TEST_F(DialogoAvanceTest, WhatTheWorkThrowsRises)
{
    EXPECT_THROW(dialogo.haz([](const AvanceExportacion&) -> bool { throw std::runtime_error{"x"}; }), std::runtime_error);
}

TEST_F(DialogoAvanceTest, EventsAreServedWhileItWorks)
{
    bool servido = false;
    QMetaObject::invokeMethod(
        &dialogo, [&servido] { servido = true; }, Qt::QueuedConnection);
    dialogo.haz([](const AvanceExportacion& avance) { return avance(0.5); });
    EXPECT_TRUE(servido);
}

} // namespace
} // namespace kestrane::report
