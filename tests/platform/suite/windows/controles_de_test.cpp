#include "platform/suite/windows/controles_de.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QGroupBox>
#include <QLabel>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST(ControlesDeTest, ParentsComeBeforeTheirChildren)
{
    QWidget ventana;
    auto* grupo = new QGroupBox{&ventana};
    auto* rotulo = new QLabel{grupo};
    auto* nota = new QLabel{&ventana};
    EXPECT_THAT(controlesDe(ventana), ElementsAre(&ventana, grupo, nota, rotulo));
}

TEST(ControlesDeTest, WindowsThatBelongToTheWindowAreLeftOut)
{
    QWidget ventana;
    auto* dialogo = new QDialog{&ventana};
    new QLabel{dialogo};
    EXPECT_THAT(controlesDe(ventana), ElementsAre(&ventana));
}

TEST(ControlesDeTest, PartsOfQtAreToldByTheirName)
{
    QWidget propio;
    propio.setObjectName(u"cmd_Salir"_s);
    EXPECT_FALSE(esParteDeQt(propio));
    propio.setObjectName(u"qt_calendar_navigationbar"_s);
    EXPECT_TRUE(esParteDeQt(propio));
}

} // namespace
} // namespace kestrane
