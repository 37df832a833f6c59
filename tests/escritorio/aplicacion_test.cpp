#include "escritorio/aplicacion.h"

#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace kestrane::escritorio {
namespace {

using namespace Qt::StringLiterals;

class AplicacionTest : public testing::Test
{
protected:
    AplicacionTest()
    {
        laAplicacion().alFallar([this](const ErrorEjecucion& error) {
            errores += QString::number(error.numero()) + u": "_s + error.descripcion();
            alContarlo();
        });
    }
    ~AplicacionTest() override { laAplicacion().alFallar({}); }

    static Aplicacion& laAplicacion() { return *static_cast<Aplicacion*>(qApp); }
    [[noreturn]] static void falla() { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero, u"División por cero."_s}; }
    static void sirveEventos()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

    QStringList errores;
    std::function<void()> alContarlo = [] {};
};

TEST_F(AplicacionTest, AnErrorOfASlotIsTold)
{
    QPushButton boton;
    QObject::connect(&boton, &QPushButton::clicked, [] { falla(); });
    boton.show();
    QTest::mouseClick(&boton, Qt::LeftButton);
    EXPECT_EQ(errores, QStringList{u"11: División por cero."_s});
}

TEST_F(AplicacionTest, AnErrorOfATimerIsTold)
{
    QTimer::singleShot(0, [] { falla(); });
    sirveEventos();
    EXPECT_EQ(errores, QStringList{u"11: División por cero."_s});
}

TEST_F(AplicacionTest, AnErrorOfANestedLoopIsToldThere)
{
    QDialog dialogo;
    bool dentro = false;
    alContarlo = [&] {
        dentro = dialogo.isVisible();
        dialogo.reject();
    };
    QTimer::singleShot(0, &dialogo, [] { falla(); });
    dialogo.exec();
    EXPECT_TRUE(dentro);
    EXPECT_EQ(errores, QStringList{u"11: División por cero."_s});
}

TEST_F(AplicacionTest, WhatIsNoErrorOfThePlatformIsToldWithoutANumber)
{
    QTimer::singleShot(0, [] { throw ErrorDeSalida{u"el disco está lleno"_s}; });
    sirveEventos();
    QTimer::singleShot(0, [] { throw std::bad_alloc{}; });
    sirveEventos();
    QTimer::singleShot(0, [] { throw std::runtime_error{"índice"}; });
    sirveEventos();
    EXPECT_EQ(errores, (QStringList{u"0: el disco está lleno"_s, u"0: No hay memoria suficiente."_s,
                                    u"0: El programa no puede seguir: índice."_s}));
}

TEST_F(AplicacionTest, AnErrorBeforeTheFirstEventIsToldTheSameWay)
{
    EXPECT_FALSE(laAplicacion().intenta([] { throw std::bad_alloc{}; }));
    EXPECT_TRUE(laAplicacion().intenta([] {}));
    EXPECT_EQ(errores, QStringList{u"0: No hay memoria suficiente."_s});
}

TEST_F(AplicacionTest, AnErrorWhileAnotherIsToldIsPassedOver)
{
    alContarlo = [] {
        QTimer::singleShot(0, [] { falla(); });
        sirveEventos();
    };
    QTimer::singleShot(0, [] { falla(); });
    sirveEventos();
    EXPECT_EQ(errores.size(), 1);
}

} // namespace
} // namespace kestrane::escritorio
