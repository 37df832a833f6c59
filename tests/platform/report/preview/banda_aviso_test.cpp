#include "platform/report/preview/banda_aviso.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(BandaAviso, IsHiddenUntilThereIsSomethingToTell)
{
    QWidget padre;
    BandaAviso banda{&padre};
    padre.show();
    EXPECT_FALSE(banda.isVisible());
    banda.di(BandaAviso::Clase::Noticia, u"Guardado."_s);
    EXPECT_TRUE(banda.isVisible());
    EXPECT_EQ(banda.texto(), u"Guardado."_s);
    EXPECT_EQ(banda.accessibleName(), u"Guardado."_s);
}

TEST(BandaAviso, GoesWhenItIsClosed)
{
    BandaAviso banda;
    banda.di(BandaAviso::Clase::Fallo, u"No se ha podido."_s);
    QTest::mouseClick(banda.findChild<QToolButton*>(u"cierraAviso"_s), Qt::LeftButton);
    EXPECT_FALSE(banda.isVisible());
}

TEST(BandaAviso, AFailureLooksOtherwiseThanNews)
{
    BandaAviso banda;
    banda.di(BandaAviso::Clase::Fallo, u"x"_s);
    EXPECT_TRUE(banda.property("fallo").toBool());
    banda.di(BandaAviso::Clase::Noticia, u"x"_s);
    EXPECT_FALSE(banda.property("fallo").toBool());
}

TEST(BandaAviso, MarkupInAPathIsShownAsItStands)
{
    BandaAviso banda;
    banda.di(BandaAviso::Clase::Noticia, u"<b>carpeta</b>"_s);
    EXPECT_EQ(banda.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

} // namespace
} // namespace kestrane::report
