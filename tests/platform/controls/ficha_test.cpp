#include "platform/controls/ficha.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

ElementoPanel elemento(const QString& texto, const QString& imagen = {})
{
    return {.Texto = texto, .ColorFondo = {}, .Imagen = imagen, .Nombre = texto, .Codigo = u"1"_s};
}

TEST(FichaTest, AnAmpersandIsALetterOfTheName)
{
    const Ficha ficha{elemento(u"Ana & Luis"_s), nullptr};
    EXPECT_EQ(ficha.text(), u"Ana && Luis"_s); // what draws and reads "&"
    EXPECT_EQ(ficha.accessibleName(), u"Ana & Luis"_s);
    EXPECT_TRUE(ficha.shortcut().isEmpty());
}

TEST(FichaTest, ANameOfSixtyLettersIsBrokenAndNotCut)
{
    const Ficha ficha{elemento(QString{60, u'M'}), nullptr};
    EXPECT_GE(ficha.heightForWidth(150), 4 * ficha.fontMetrics().height());
    EXPECT_EQ(Ficha(elemento(u"Ana"_s), nullptr).heightForWidth(150), 44);
}

TEST(FichaTest, WordsStayWholeWhereALineHoldsThem)
{
    const Ficha ficha{elemento(u"mmmmmm mmmmmm mmmmmm"_s), nullptr};
    QFont negrita = ficha.font();
    negrita.setBold(true);
    const QFontMetrics metrica{negrita};
    const int nueveLetras = metrica.horizontalAdvance(QString{9, u'm'}) + 16; // two words on two lines would leave one cut
    EXPECT_GE(ficha.heightForWidth(nueveLetras), 3 * metrica.height());
}

TEST(FichaTest, TheMarkedOneHasABarWhichTheKeyboardsDoesNot)
{
    Ficha ficha{elemento(u"Ana"_s), nullptr};
    ficha.setCheckable(true);
    ficha.resize(150, 44);
    const auto izquierda = [&ficha] { return ficha.grab().toImage().pixelColor(4, 22); };
    const QColor marca = ficha.palette().color(QPalette::Highlight);
    EXPECT_NE(izquierda(), marca);
    ficha.setChecked(true);
    EXPECT_EQ(izquierda(), marca);
}

TEST(FichaTest, LettersAreBlackOnLightColoursAndWhiteOnDarkOnes)
{
    Ficha ficha{elemento(u"Ana"_s), nullptr};
    for (const QColor& claro : {QColor{Qt::white}, QColor{Qt::yellow}, QColor{200, 200, 200}}) {
        ficha.ponColor(claro);
        EXPECT_EQ(ficha.colorDeTexto(), QColor(Qt::black)) << claro.name().toStdString();
    }
    for (const QColor& oscuro : {QColor{Qt::black}, QColor{0, 0, 128}, QColor{90, 20, 20}}) {
        ficha.ponColor(oscuro);
        EXPECT_EQ(ficha.colorDeTexto(), QColor(Qt::white)) << oscuro.name().toStdString();
    }
}

TEST(FichaTest, WithoutAColourItIsAButtonOfTheTheme)
{
    Ficha ficha{elemento(u"Ana"_s), nullptr};
    EXPECT_EQ(ficha.colorDeTexto(), ficha.palette().color(QPalette::ButtonText));
}

TEST(FichaTest, APictureIsShownWhereItCanBeRead)
{
    const QTemporaryDir carpeta;
    const QString buena = carpeta.filePath(u"ana.png"_s);
    QPixmap foto{10, 10};
    foto.fill(Qt::red);
    ASSERT_TRUE(foto.save(buena));
    const QString rota = carpeta.filePath(u"rota.png"_s);
    QFile fichero{rota};
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write("nada");
    fichero.close();
    EXPECT_TRUE(Ficha(elemento(u"Ana"_s, buena), nullptr).conImagen());
    EXPECT_FALSE(Ficha(elemento(u"Ana"_s, rota), nullptr).conImagen());
    EXPECT_FALSE(Ficha(elemento(u"Ana"_s, carpeta.filePath(u"falta.png"_s)), nullptr).conImagen());
    EXPECT_FALSE(Ficha(elemento(u"Ana"_s), nullptr).conImagen());
}

} // namespace
} // namespace kestrane
