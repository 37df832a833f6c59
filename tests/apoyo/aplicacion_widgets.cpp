#include <gmock/gmock.h>

#include <QApplication>

/// Without a screen, whatever the machine has.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacion{argc, argv};
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
