#include "platform/suite/windows/aplicador_letra.h"

#include <gtest/gtest.h>

#include <QLabel>

#include <limits>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(AplicadorLetraTest, AllLettersAreOfOneFamilyAndOfTheSetting)
{
    QWidget ventana;
    QLabel rotulo{&ventana};
    rotulo.setFont(QFont{u"DejaVu Serif"_s});
    AplicadorLetra{}.AplicarLetra(ventana, 14);
    EXPECT_EQ(rotulo.font().family(), u"DejaVu Sans"_s);
    EXPECT_DOUBLE_EQ(rotulo.font().pointSizeF(), 14);
    EXPECT_EQ(ventana.font().family(), u"DejaVu Sans"_s);
}

TEST(AplicadorLetraTest, ASettingThatIsNoSizeGivesThatOfANewTerminal)
{
    for (const qint32 letra : {0, -5, std::numeric_limits<qint32>::min()}) {
        QWidget ventana;
        AplicadorLetra{}.AplicarLetra(ventana, letra);
        EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), 10) << letra;
    }
}

} // namespace
} // namespace kestrane
