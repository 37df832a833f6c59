#include "dialogs/rotulo_pulsable.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace kestrane {
namespace {

TEST(RotuloPulsableTest, OnlyTheLeftButtonReleasedOverItCounts)
{
    RotuloPulsable rotulo{nullptr};
    rotulo.resize(100, 44);
    const QSignalSpy pulsaciones{&rotulo, &RotuloPulsable::pulsado};
    QTest::mouseClick(&rotulo, Qt::LeftButton);
    EXPECT_EQ(pulsaciones.count(), 1);
    QTest::mouseClick(&rotulo, Qt::RightButton);
    QTest::mousePress(&rotulo, Qt::LeftButton);
    QTest::mouseRelease(&rotulo, Qt::LeftButton, {}, {300, 300});
    EXPECT_EQ(pulsaciones.count(), 1);
}

} // namespace
} // namespace kestrane
