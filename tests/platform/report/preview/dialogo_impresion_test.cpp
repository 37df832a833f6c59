#include "platform/report/preview/dialogo_impresion.h"

#include "platform/report/preview/impresion_de_prueba.h"

#include <gtest/gtest.h>

#include <QTest>

#include <limits>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

constexpr int Ultima = std::numeric_limits<int>::max();

class DialogoImpresionTest : public testing::Test
{
protected:
    void abre(const QString& preferida = {}, int paginas = 12)
    {
        dialogo = std::make_unique<DialogoImpresion>(impresion, preferida, paginas, 3, nullptr);
        dialogo->show();
    }
    template<typename Control>
    Control* control(const QString& nombre)
    {
        return dialogo->findChild<Control*>(nombre);
    }
    void pulsa(const QString& boton) { QTest::mouseClick(control<QAbstractButton>(boton), Qt::LeftButton, {}, {12, 20}); }

    prueba::ImpresionDePrueba impresion;
    std::unique_ptr<DialogoImpresion> dialogo;
};

TEST_F(DialogoImpresionTest, OffersAllPagesOnceOnTheDefaultPrinter)
{
    abre();
    EXPECT_EQ(dialogo->peticion(), (PeticionImpresion{u"HP"_s, 1, Ultima, 1}));
}

TEST_F(DialogoImpresionTest, OffersThePreferredPrinterWhereThereIsOne)
{
    abre(u"OKI"_s);
    EXPECT_EQ(dialogo->peticion().impresora, u"OKI"_s);
    abre(u"oki"_s);
    EXPECT_EQ(dialogo->peticion().impresora, u"HP"_s);
}

TEST_F(DialogoImpresionTest, TheCurrentPageAlone)
{
    abre();
    pulsa(u"soloActual"_s);
    EXPECT_EQ(dialogo->peticion(), (PeticionImpresion{u"HP"_s, 3, 3, 1}));
}

TEST_F(DialogoImpresionTest, ARangeThatIsTypedIsMeant)
{
    abre();
    control<QSpinBox>(u"desde"_s)->setValue(2);
    control<QSpinBox>(u"hasta"_s)->setValue(5);
    EXPECT_EQ(dialogo->peticion(), (PeticionImpresion{u"HP"_s, 2, 5, 1}));
    pulsa(u"todas"_s);
    EXPECT_EQ(dialogo->peticion().hasta, Ultima);
}

TEST_F(DialogoImpresionTest, ARangeDoesNotEndBeforeItBegins)
{
    abre();
    control<QSpinBox>(u"hasta"_s)->setValue(4);
    control<QSpinBox>(u"desde"_s)->setValue(9);
    EXPECT_EQ(dialogo->peticion().hasta, 9);
}

TEST_F(DialogoImpresionTest, ARangeStaysWithinThePagesOnceTheyAreKnown)
{
    abre({}, 12);
    EXPECT_EQ(control<QSpinBox>(u"hasta"_s)->maximum(), 12);
    abre({}, 0);
    EXPECT_EQ(control<QSpinBox>(u"hasta"_s)->maximum(), Ultima);
}

TEST_F(DialogoImpresionTest, Copies)
{
    abre();
    control<QSpinBox>(u"copias"_s)->setValue(3);
    EXPECT_EQ(dialogo->peticion().copias, 3);
}

TEST_F(DialogoImpresionTest, WithoutAPrinterItSaysSoAndCannotPrint)
{
    impresion.nombres.clear();
    abre();
    EXPECT_TRUE(control<QLabel>(u"sinImpresora"_s)->isVisible());
    EXPECT_FALSE(control<QPushButton>(u"imprime"_s)->isEnabled());
}

TEST_F(DialogoImpresionTest, PrintsOrNot)
{
    abre();
    pulsa(u"imprime"_s);
    EXPECT_EQ(dialogo->result(), QDialog::Accepted);
    abre();
    pulsa(u"cancela"_s);
    EXPECT_EQ(dialogo->result(), QDialog::Rejected);
    EXPECT_FALSE(dialogo->isVisible());
}

} // namespace
} // namespace kestrane::report
