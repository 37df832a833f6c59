#include "platform/suite/windows/captions.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

QStringList textosDe(QWidget& ventana)
{
    QStringList textos;
    for (const Caption& caption : captionsDe(ventana))
        textos << caption.texto();
    return textos;
}

TEST(CaptionsTest, TitlesLabelsButtonsGroupsTipsAndPlaceHoldersAreCaptions)
{
    QWidget ventana;
    ventana.setWindowTitle(u"Listados"_s);
    QGroupBox grupo{u"Caja"_s, &ventana};
    QLabel rotulo{u"SELECCIONE SU OPCION"_s, &grupo};
    QPushButton boton{u"&Salir"_s, &grupo};
    boton.setToolTip(u"Cierra el programa"_s);
    QCheckBox casilla{u"Formato Ticket"_s, &ventana};
    QLineEdit campo{&ventana};
    campo.setPlaceholderText(u"Codigo Postal"_s);
    campo.setAccessibleName(u"Código postal del cliente"_s);
    EXPECT_THAT(textosDe(ventana),
                UnorderedElementsAre(u"Listados"_s, u"Caja"_s, u"SELECCIONE SU OPCION"_s, u"&Salir"_s, u"Cierra el programa"_s,
                                     u"Formato Ticket"_s, u"Codigo Postal"_s, u"Código postal del cliente"_s));
}

TEST(CaptionsTest, WhatTheOperatorTypesAndWhatQtSaysIsNone)
{
    QWidget ventana;
    QLineEdit campo{u"08001"_s, &ventana};
    QCalendarWidget calendario{&ventana};
    EXPECT_THAT(textosDe(ventana), IsEmpty());
}

class OriginalTest : public testing::Test
{
protected:
    QLabel rotulo{u"Caja"_s};
    Caption caption{&rotulo, "text"};
};

TEST_F(OriginalTest, ACaptionThatNobodyTranslatedIsItsOwn)
{
    EXPECT_EQ(original(caption), u"Caja"_s);
}

TEST_F(OriginalTest, ItIsRememberedThroughAnyNumberOfTranslations)
{
    ponTraducido(caption, u"Till"_s);
    ponTraducido(caption, u"Caixa"_s);
    EXPECT_EQ(rotulo.text(), u"Caixa"_s);
    EXPECT_EQ(original(caption), u"Caja"_s);
}

TEST_F(OriginalTest, ATextThatTheProgramChangedSinceIsANewOne)
{
    ponTraducido(caption, u"Till"_s);
    rotulo.setText(u"Bonos"_s);
    EXPECT_EQ(original(caption), u"Bonos"_s);
}

TEST_F(OriginalTest, EachCaptionOfAControlHasItsOwn)
{
    rotulo.setToolTip(u"Ayuda"_s);
    const Caption ayuda{&rotulo, "toolTip"};
    ponTraducido(caption, u"Till"_s);
    ponTraducido(ayuda, u"Help"_s);
    EXPECT_EQ(original(caption), u"Caja"_s);
    EXPECT_EQ(original(ayuda), u"Ayuda"_s);
}

} // namespace
} // namespace kestrane
