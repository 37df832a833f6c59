#include "dialogs/forma_filtro.h"

#include "dialogs/forma_de_prueba.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FormaSencilla final : public FormaFiltro
{
public:
    explicit FormaSencilla(const ServiciosDialogo& servicios) : FormaFiltro{u"frmSencilla"_s, u"Sencilla"_s, servicios}
    {
        botonSalir(this)->show();
    }
    void carga() { escala(); }
};

class FormaFiltroTest : public prueba::FormaTest
{
};

TEST_F(FormaFiltroTest, EscapeTheFrameAndItsButtonLeaveWithoutAcceptance)
{
    const std::function<void(FormaSencilla&)> salidas[] = {
        [](FormaSencilla& forma) { QTest::keyClick(&forma, Qt::Key_Escape); },
        [](FormaSencilla& forma) { forma.close(); },
        [](FormaSencilla& forma) { QTest::mouseClick(&control(forma, u"cmd_Salir"_s), Qt::LeftButton); },
    };
    for (const auto& sal : salidas) {
        FormaSencilla forma{m_servicios};
        forma.show();
        m_contexto.FiltroAceptado = true;
        sal(forma);
        EXPECT_FALSE(forma.isVisible());
        EXPECT_FALSE(m_contexto.FiltroAceptado);
    }
}

TEST_F(FormaFiltroTest, ItIsScaledFromTheDesignsSizeToTheWindows)
{
    m_contexto.AnchoVentana = 19200;
    m_contexto.AltoVentana = 14400;
    FormaSencilla{m_servicios}.carga();
    EXPECT_EQ(m_aspecto.pasos, QStringList{u"EscalarForm frmSencilla de 15360x11085 a 19200x14400"_s});
}

TEST_F(FormaFiltroTest, ShownModallyItComesBackWhenItIsLeft)
{
    bool modal = false;
    QTimer::singleShot(0, [&modal] {
        auto* const forma = QApplication::activeModalWidget();
        modal = forma && forma->objectName() == u"frmSencilla";
        if (forma)
            forma->close();
    });
    muestraModal<FormaSencilla>(m_servicios);
    EXPECT_TRUE(modal);
}

TEST_F(FormaFiltroTest, AControlTakesTheBackColourOfAnother)
{
    QWidget uno;
    QWidget otro;
    QPalette verde;
    verde.setColor(QPalette::Window, Qt::green);
    otro.setPalette(verde);
    copiaFondo(uno, otro);
    EXPECT_EQ(fondoDe(uno), QColor(Qt::green));
}

} // namespace
} // namespace kestrane
