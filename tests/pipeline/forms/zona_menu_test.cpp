#include "pipeline/forms/zona_menu.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSet>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QImage dibujo(const QString& objeto)
{
    ZonaMenu zona{objeto, u"Zona"_s, nullptr};
    return zona.grab().toImage();
}

TEST(ZonaMenuTest, AFingerHitsItAndItTellsItsPurpose)
{
    const ZonaMenu zona{u"fr_Zoom1"_s, u"Tamaño de la ventana"_s, nullptr};
    EXPECT_EQ(zona.size(), QSize(44, 44));
    EXPECT_EQ(zona.toolTip(), u"Tamaño de la ventana"_s);
    EXPECT_EQ(zona.accessibleName(), u"Tamaño de la ventana"_s);
    EXPECT_EQ(zona.focusPolicy(), Qt::StrongFocus);
}

TEST(ZonaMenuTest, EachPurposeHasADrawingOfItsOwn)
{
    const QList<QImage> dibujos{dibujo(u"sin dibujo"_s), dibujo(u"fr_Zoom1"_s), dibujo(u"fr_Zoom2"_s), dibujo(u"fr_Zoom3"_s),
                                dibujo(u"cmd_Ayuda"_s)};
    for (qsizetype i = 0; i < dibujos.size(); ++i) {
        for (qsizetype j = i + 1; j < dibujos.size(); ++j)
            EXPECT_NE(dibujos[i], dibujos[j]) << i << " and " << j;
    }
}

} // namespace
} // namespace kestrane
