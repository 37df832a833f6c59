#include "escritorio/aplicacion.h"

#include <gmock/gmock.h>

/// The program's own application, without a screen, whatever the machine has.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const kestrane::escritorio::Aplicacion aplicacion{argc, argv};
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
