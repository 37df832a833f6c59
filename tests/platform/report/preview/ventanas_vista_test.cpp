#include "platform/report/preview/ventanas_vista.h"

#include "platform/report/preview/fuente_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::FuenteDePrueba;

class VentanasVistaTest : public testing::Test
{
protected:
    VentanaVista& abre(const QString& hoja)
    {
        return ventanas.abre(std::make_unique<FuenteDePrueba>(QList<QStringList>{{hoja}}), u"INFORMES:"_s);
    }

    VentanasVista ventanas{{}};
};

TEST_F(VentanasVistaTest, SeveralStandOpenAtOnce)
{
    VentanaVista& una = abre(u"Centro"_s);
    VentanaVista& otra = abre(u"Norte"_s);
    EXPECT_EQ(ventanas.abiertas(), (std::vector<VentanaVista*>{&una, &otra}));
    EXPECT_TRUE(una.isVisible());
    EXPECT_NE(una.pos(), otra.pos()) << "both titles are seen";
}

TEST_F(VentanasVistaTest, AClosedOneIsGoneAndTheOthersStay)
{
    VentanaVista& una = abre(u"Centro"_s);
    VentanaVista& otra = abre(u"Norte"_s);
    const QPointer<VentanaVista> vista{&una};
    una.close();
    EXPECT_EQ(ventanas.abiertas(), std::vector<VentanaVista*>{&otra});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vista.isNull());
}

TEST_F(VentanasVistaTest, TheFirstPageIsLaidOutBeforeTheWindowOpens)
{
    VentanaVista& ventana = ventanas.abre(std::make_unique<FuenteDePrueba>(5, 0), u"INFORMES:"_s);
    EXPECT_GE(ventana.fuente().paginas(), 1);
}

TEST_F(VentanasVistaTest, AReportThatFailsAtItsFirstPageOpensNoWindow)
{
    auto fuente = std::make_unique<FuenteDePrueba>(5, 0);
    fuente->alAvanzar = [] { throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero}; };
    EXPECT_THROW(ventanas.abre(std::move(fuente), u"INFORMES:"_s), ErrorEjecucion);
    EXPECT_TRUE(ventanas.abiertas().empty());
}

TEST_F(VentanasVistaTest, SizeAndZoomAreKeptForTheRun)
{
    VentanaVista& una = abre(u"Centro"_s);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&una));
    una.resize(800, 600);
    una.findChild<Lienzo*>()->ponZoom({Zoom::Modo::Porcentaje, 150});
    VentanaVista& otra = abre(u"Norte"_s);
    EXPECT_EQ(otra.size(), QSize(800, 600));
    EXPECT_DOUBLE_EQ(otra.findChild<Lienzo*>()->porcentaje(), 150);
}

TEST(VentanasVista, AllCloseWithTheirOwner)
{
    QPointer<VentanaVista> ventana;
    {
        VentanasVista ventanas{{}};
        ventana = &ventanas.abre(std::make_unique<FuenteDePrueba>(2, 1), u"INFORMES:"_s);
    }
    EXPECT_TRUE(ventana.isNull());
}

} // namespace
} // namespace kestrane::report
