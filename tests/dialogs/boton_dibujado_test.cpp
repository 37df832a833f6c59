#include "dialogs/boton_dibujado.h"

#include "dialogs/dibujos_formato.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class BotonDibujadoTest : public testing::Test
{
protected:
    BotonDibujadoTest()
    {
        bloque.ponLeyenda(u"Por Servicios formato Folio"_s);
        bloque.show();
    }
    QPushButton& boton() { return *bloque.findChild<QPushButton*>(u"cmdFolio"_s); }
    QLabel& rotulo() { return *bloque.findChild<QLabel*>(u"lblFolio"_s); }

    BotonDibujado bloque{u"cmdFolio"_s, u"lblFolio"_s, dibujoDeFormato(false, Qt::black), nullptr};
};

TEST_F(BotonDibujadoTest, ItsLabelActsAsItsButtonDoes)
{
    const QSignalSpy pulsaciones{&bloque, &BotonDibujado::pulsado};
    QTest::mouseClick(&boton(), Qt::LeftButton);
    EXPECT_EQ(pulsaciones.count(), 1);
    QTest::mouseClick(&rotulo(), Qt::LeftButton);
    EXPECT_EQ(pulsaciones.count(), 2);
    QTest::keyClick(&boton(), Qt::Key_Space);
    EXPECT_EQ(pulsaciones.count(), 3);
}

TEST_F(BotonDibujadoTest, ItsCaptionIsReadOutOnTheButtonToo)
{
    EXPECT_EQ(rotulo().text(), u"Por Servicios formato Folio"_s);
    EXPECT_EQ(boton().accessibleName(), u"Por Servicios formato Folio"_s);
}

TEST_F(BotonDibujadoTest, BothAreLargeEnoughForAFinger)
{
    EXPECT_GE(boton().height(), 44);
    EXPECT_GE(rotulo().height(), 44);
}

} // namespace
} // namespace kestrane
