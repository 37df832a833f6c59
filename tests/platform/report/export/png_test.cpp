#include "platform/report/export/png.h"

#include "apoyo/limite_de_abiertos.h"
#include "platform/report/export/paginas_de_prueba.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::paginasDePrueba;

class Png : public testing::Test
{
protected:
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    QTemporaryDir m_carpeta;
};

TEST_F(Png, AFolderThatIsNotThereIsAnError)
{
    EXPECT_THROW(escribePng(paginasDePrueba({{100, 50}}), ruta(u"nada/a.png"_s), {}), ErrorDeSalida);
}

TEST_F(Png, WhatIsBrokenOffLeavesNothing)
{
    EXPECT_FALSE(escribePng(paginasDePrueba({{100, 50}, {100, 50}}), ruta(u"a.png"_s), [](double hecho) { return hecho < 0.5; }));
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Png, APageThatNoPictureHoldsIsAnError)
{
    EXPECT_THROW(escribePng(paginasDePrueba({{100, 50}, {1e6, 1e6}}), ruta(u"a.png"_s), {}), ErrorDeSalida);
    EXPECT_EQ(nombres(), QStringList{});
}

TEST_F(Png, OnePageHasTheNameItself)
{
    EXPECT_TRUE(escribePng(paginasDePrueba({{100, 50}}), ruta(u"año.png"_s), {}));
    EXPECT_EQ(nombres(), QStringList{u"año.png"_s});
}

TEST_F(Png, SeveralHaveTheirNumber)
{
    EXPECT_TRUE(escribePng(paginasDePrueba(std::vector<QSizeF>(11, QSizeF{20, 20})), ruta(u"a.png"_s), {}, 30));
    EXPECT_EQ(nombres().size(), 11);
    EXPECT_EQ(nombres().constFirst(), u"a_001.png"_s);
    EXPECT_EQ(nombres().constLast(), u"a_011.png"_s);
    EXPECT_EQ(ficheroDePagina(u"/b.c/a"_s, 4, 2000), u"/b.c/a_005"_s);
    EXPECT_EQ(ficheroDePagina(u"a.png"_s, 1234, 2000), u"a_1235.png"_s);
}

TEST_F(Png, WhatIsInTheWayOfOnePageKeepsAllOfThemOff)
{
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"a_002.png"_s));
    EXPECT_THROW(escribePng(paginasDePrueba({{20, 20}, {20, 20}}), ruta(u"a.png"_s), {}, 30), ErrorDeSalida);
    EXPECT_EQ(nombres(), QStringList{u"a_002.png"_s});
}

TEST_F(Png, APageThatCannotTakeItsNameLeavesNoneOfTheSet)
{
    QFile vieja{ruta(u"a_001.png"_s)};
    ASSERT_TRUE(vieja.open(QIODevice::WriteOnly));
    vieja.write("vieja");
    vieja.close();
    const auto ponEstorbo = [this](double hecho) {
        return hecho < 1 || QDir{m_carpeta.path()}.mkdir(u"a_003.png"_s); // when all pages are written
    };
    EXPECT_THROW(escribePng(paginasDePrueba(std::vector<QSizeF>(4, QSizeF{20, 20})), ruta(u"a.png"_s), ponEstorbo, 30),
                 ErrorDeSalida);
    EXPECT_EQ(nombres(), (QStringList{u"a_001.png"_s, u"a_003.png"_s}));
    ASSERT_TRUE(vieja.open(QIODevice::ReadOnly));
    EXPECT_EQ(vieja.readAll(), "vieja");
}

TEST_F(Png, MorePagesThanFilesMayBeOpen)
{
    const prueba::LimiteDeAbiertos limite{100};
    EXPECT_TRUE(escribePng(paginasDePrueba(std::vector<QSizeF>(150, QSizeF{5, 5})), ruta(u"a.png"_s), {}, 30));
    EXPECT_EQ(nombres().size(), 150);
}

TEST_F(Png, ThePictureIsTheWhitePaperAtItsScale)
{
    EXPECT_TRUE(escribePng(paginasDePrueba({{101.6, 50.8}}), ruta(u"a.png"_s), {}));
    const QImage imagen{ruta(u"a.png"_s)};
    EXPECT_EQ(imagen.size(), QSize(600, 300)) << "four inches by two";
    EXPECT_EQ(imagen.dotsPerMeterX(), 5906);
    EXPECT_EQ(imagen.pixelColor(10, 10), QColor{Qt::black});
    EXPECT_EQ(imagen.pixelColor(590, 10), QColor{Qt::white});
}

} // namespace
} // namespace kestrane::report
