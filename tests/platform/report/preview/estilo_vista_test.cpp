#include "platform/report/preview/estilo_vista.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(EstiloVista, AButtonIsLargeEnoughForAFinger)
{
    QWidget padre;
    const QToolButton* boton = botonVista(Icono::Buscar, u"buscar"_s, u"Buscar"_s, &padre);
    EXPECT_GE(boton->minimumWidth(), 44);
    EXPECT_GE(boton->minimumHeight(), 44);
}

TEST(EstiloVista, AButtonSaysWhatItDoes)
{
    QWidget padre;
    const QToolButton* boton = botonVista(Icono::Buscar, u"buscar"_s, u"Buscar (Ctrl+F)"_s, &padre);
    EXPECT_EQ(boton->objectName(), u"buscar"_s);
    EXPECT_EQ(boton->toolTip(), u"Buscar (Ctrl+F)"_s);
    EXPECT_EQ(boton->accessibleName(), u"Buscar (Ctrl+F)"_s);
}

TEST(EstiloVista, TheFocusIsSeen)
{
    QWidget padre;
    padre.setStyleSheet(hojaDeEstilo());
    QToolButton* boton = botonVista(Icono::Buscar, u"buscar"_s, u"Buscar"_s, &padre);
    QToolButton* otro = botonVista(Icono::Cerrar, u"cerrar"_s, u"Cerrar"_s, &padre);
    otro->move(60, 0);
    padre.resize(120, 60);
    padre.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&padre));
    otro->setFocus();
    const QImage sin = boton->grab().toImage();
    boton->setFocus();
    EXPECT_NE(boton->grab().toImage(), sin);
}

} // namespace
} // namespace kestrane::report
