#include "platform/report/preview/ventana_de_prueba.h"

#include <QApplication>
#include <QClipboard>
#include <QTimer>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class VentanaVistaCopia : public prueba::VentanaDePrueba
{
protected:
    /// Chooses the text from one page to another with the mouse.
    void elige(int desde, int hasta)
    {
        const auto pulsaEn = [this](int pagina, int caracter, Qt::KeyboardModifiers con) {
            lienzo().vaAPagina(pagina);
            QTest::mouseClick(lienzo().viewport(), Qt::LeftButton, con,
                              lienzo().cajaDeTexto(pagina, 0, {caracter, caracter + 1}).center().toPoint());
        };
        pulsaEn(desde, 0, {});
        pulsaEn(hasta, 5, Qt::ShiftModifier);
        ASSERT_EQ(lienzo().paginasElegidas(), hasta - desde + 1);
    }
};

TEST_F(VentanaVistaCopia, ALongCopyShowsABarAndIsBrokenOff)
{
    abre(200, 200);
    elige(0, 199);
    QApplication::clipboard()->setText(u"antes"_s);
    fuente->alComponer = [this](int pagina) {
        if (pagina == 100)
            pulsa(u"cancelaAvance");
    };
    fuente->pedidas.clear();
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(aviso(), u"Copiando: cancelado."_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"antes"_s);
    EXPECT_FALSE(fuente->pedidas.contains(150));
    fuente->alComponer = {};
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(aviso(), u"El texto elegido se ha copiado."_s);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(u"Hoja 150\n"_s));
}

TEST_F(VentanaVistaCopia, WhileALongTextIsCopiedTheWindowLives)
{
    abre(200, 200);
    elige(0, 199);
    int latidos = 0;
    QTimer late;
    QObject::connect(&late, &QTimer::timeout, &late, [&latidos] { ++latidos; });
    late.start(0);
    fuente->alComponer = [](int) {
        const QDeadlineTimer trabajosa{5};
        while (!trabajosa.hasExpired()) {
        }
    };
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_GE(latidos, 10) << "in a second";
}

TEST_F(VentanaVistaCopia, AShortCopyIsSilent)
{
    abre(200, 200);
    elige(0, 3);
    tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(aviso(), QString{});
    EXPECT_TRUE(QApplication::clipboard()->text().contains(u"Hoja 3\n"_s));
}

} // namespace
} // namespace kestrane::report
