#include "platform/suite/windows/permisos_en_ventana.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QPushButton>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class PermisosEnVentanaTest : public testing::Test
{
protected:
    PermisosEnVentanaTest()
    {
        ventana.setObjectName(u"frmListados"_s);
        grupo->setObjectName(u"Frame1"_s);
        caja->setObjectName(u"cmd_Caja1"_s);
        ventas->setObjectName(u"cmd_Ventas1"_s);
    }
    void aplica() { AplicarPermisos(ventana, permisos); }
    [[nodiscard]] static bool seUsa(const QWidget* control) { return !control->isHidden() && control->isEnabled(); }

    QWidget ventana;
    QGroupBox* grupo = new QGroupBox{&ventana};
    QPushButton* caja = new QPushButton{grupo};
    QPushButton* ventas = new QPushButton{grupo};
    QPushButton* sinNombre = new QPushButton{grupo};
    Permisos permisos;
};

TEST_F(PermisosEnVentanaTest, WithoutAPermissionThatIsMissingNothingChanges)
{
    aplica();
    for (const QWidget* control : {static_cast<QWidget*>(grupo), static_cast<QWidget*>(caja), static_cast<QWidget*>(sinNombre)})
        EXPECT_TRUE(seUsa(control));
}

TEST_F(PermisosEnVentanaTest, WhatMayNotBeUsedIsHiddenAndDisabledWhateverItsCase)
{
    permisos.veda(u"CMD_CAJA1"_s);
    aplica();
    EXPECT_TRUE(caja->isHidden());
    EXPECT_FALSE(caja->isEnabled());
    EXPECT_TRUE(seUsa(ventas));
}

TEST_F(PermisosEnVentanaTest, AGroupTakesWhatStandsOnItAlong)
{
    permisos.veda(u"Frame1"_s);
    aplica();
    EXPECT_TRUE(grupo->isHidden());
    EXPECT_FALSE(caja->isEnabled());
}

TEST_F(PermisosEnVentanaTest, AControlThatIsShownAgainStillCannotBeUsed)
{
    permisos.veda(u"cmd_Caja1"_s);
    aplica();
    caja->show();
    EXPECT_FALSE(caja->isHidden());
    EXPECT_FALSE(caja->isEnabled());
}

TEST_F(PermisosEnVentanaTest, NeitherTheWindowNorWhatHasNoNameIsMeant)
{
    permisos.veda(u"frmListados"_s);
    permisos.veda(QString{});
    aplica();
    EXPECT_TRUE(ventana.isEnabled());
    EXPECT_TRUE(seUsa(sinNombre));
}

} // namespace
} // namespace kestrane
