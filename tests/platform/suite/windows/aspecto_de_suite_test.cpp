#include "platform/suite/windows/aspecto_de_suite.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/suite/paleta.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include <memory>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class AspectoDeSuiteTest : public testing::Test
{
protected:
    AspectoDeSuiteTest()
    {
        contexto.ConexionTienda.Open(u"dsn=TiendaKestrane"_s);
        contexto.Tema = 1;
        contexto.TamanoLetra = 10;
    }

    prueba::TiendaDePrueba tienda;
    ContextoEjecucion contexto{tienda.entorno()};
    PermisosEnTabla permisos;
    TraductorCaptions traductor;
    AspectoDeSuite aspecto{contexto, permisos, traductor};
    QWidget ventana;
};

TEST_F(AspectoDeSuiteTest, ThemeAndFontSettingAreThoseOfTheMoment)
{
    for (const qint32 tema : {2, 3}) {
        contexto.Tema = tema;
        aspecto.PintarForm(ventana);
        EXPECT_EQ(ventana.palette().color(QPalette::Window), QColor::fromRgb(paletaDe(tema).fondo));
        EXPECT_EQ(aspecto.DarColorFondo(), decimalDeRgb(paletaDe(tema).fondoPequeno));
        EXPECT_EQ(aspecto.DarColorResalte(), decimalDeRgb(paletaDe(tema).resalte));
        EXPECT_EQ(aspecto.DarColorBoton(), decimalDeRgb(paletaDe(tema).listados));
        EXPECT_EQ(aspecto.DarColorPredefinido1(), decimalDeRgb(paletaDe(tema).paneles[0]));
        EXPECT_EQ(aspecto.DarColorPredefinido2(), decimalDeRgb(paletaDe(tema).paneles[1]));
        EXPECT_EQ(aspecto.DarColorPredefinido3(), decimalDeRgb(paletaDe(tema).paneles[2]));
        EXPECT_EQ(aspecto.DarColorPredefinido4(), decimalDeRgb(paletaDe(tema).paneles[3]));
    }
    for (const qint32 letra : {9, 14}) {
        contexto.TamanoLetra = letra;
        aspecto.AplicarLetra(ventana);
        EXPECT_DOUBLE_EQ(ventana.font().pointSizeF(), letra);
    }
}

TEST_F(AspectoDeSuiteTest, RightsAreThoseOfTheTerminalsEmployee)
{
    tienda.ejecuta(u"insert into permisos_listados (empleado, control, permitido) values (7, 'cmd_Caja1', 0)"_s);
    QPushButton boton{&ventana};
    boton.setObjectName(u"cmd_Caja1"_s);
    contexto.EmpleadoTerminal = 6;
    aspecto.AplicarPermisos(ventana);
    EXPECT_TRUE(boton.isEnabled());
    contexto.EmpleadoTerminal = 7;
    aspecto.AplicarPermisos(ventana);
    EXPECT_FALSE(boton.isEnabled());
    EXPECT_TRUE(boton.isHidden());
}

TEST_F(AspectoDeSuiteTest, WindowsAreTranslatedAndScaled)
{
    ventana.setWindowTitle(u"Listados"_s);
    ventana.resize(100, 100);
    aspecto.TraducirForm(ventana);
    aspecto.EscalarForm(ventana, {2000, 3000}, {1000, 1000});
    EXPECT_EQ(ventana.windowTitle(), u"Listados"_s);
    EXPECT_EQ(ventana.size(), QSize(200, 300));
}

TEST_F(AspectoDeSuiteTest, TheCornerIsThatOfTheMainFormAndOfItsTwoOuterFrames)
{
    QWidget principal;
    principal.move(100, 200);
    QWidget exterior{&principal};
    exterior.move(10, 20);
    QWidget interior{&exterior};
    interior.move(3, 4);
    aspecto.ponPrincipal(&principal, &exterior, &interior);
    EXPECT_EQ(aspecto.esquinaPrincipal(), QPoint(113, 224));
}

TEST_F(AspectoDeSuiteTest, WithoutAMainFormItIsTheCornerOfTheScreen)
{
    EXPECT_EQ(aspecto.esquinaPrincipal(), QPoint(0, 0));
    {
        QWidget principal;
        principal.move(100, 200);
        QWidget exterior{&principal};
        aspecto.ponPrincipal(&principal, &exterior, nullptr);
        EXPECT_EQ(aspecto.esquinaPrincipal(), QPoint(100, 200));
    }
    EXPECT_EQ(aspecto.esquinaPrincipal(), QPoint(0, 0));
}

} // namespace
} // namespace kestrane
