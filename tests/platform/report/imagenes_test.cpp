#include "platform/report/imagenes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

class ImagenesTest : public testing::Test
{
protected:
    ImagenesTest()
    {
        QDir{m_carpeta.path()}.mkpath(u"programa/fotos"_s);
        pinta(u"programa/fotos/logo.png"_s);
        pinta(u"fuera.png"_s);
    }

    void pinta(const QString& fichero) const
    {
        QImage imagen{40, 20, QImage::Format_RGB32};
        imagen.fill(Qt::red);
        ASSERT_TRUE(imagen.save(m_carpeta.filePath(fichero)));
    }

    QTemporaryDir m_carpeta;
    Imagenes m_imagenes{m_carpeta.filePath(u"programa"_s)};
};

TEST_F(ImagenesTest, FoldersArePartedByEitherSlash)
{
    EXPECT_EQ(m_imagenes.imagen(u"fotos/logo.png"_s).size(), QSize(40, 20));
    EXPECT_EQ(m_imagenes.imagen(u"fotos\\logo.png"_s).size(), QSize(40, 20));
}

TEST_F(ImagenesTest, MissingAndBrokenFilesGiveNone)
{
    QFile rota{m_carpeta.filePath(u"programa/rota.png"_s)};
    ASSERT_TRUE(rota.open(QIODevice::WriteOnly) && rota.write("PNG?") == 4);
    rota.close();
    EXPECT_TRUE(m_imagenes.imagen(u"fotos/nada.png"_s).isNull());
    EXPECT_TRUE(m_imagenes.imagen(u"rota.png"_s).isNull());
    EXPECT_TRUE(m_imagenes.imagen(u""_s).isNull());
    EXPECT_TRUE(m_imagenes.imagen(u"fotos"_s).isNull());
}

TEST_F(ImagenesTest, NothingIsReadFromOutsideTheFolder)
{
    EXPECT_TRUE(m_imagenes.imagen(u"..\\fuera.png"_s).isNull());
    EXPECT_TRUE(m_imagenes.imagen(m_carpeta.filePath(u"fuera.png"_s)).isNull());
}

TEST(Imagenes, KeepTheirProportionsInTheMiddleOfTheBox)
{
    EXPECT_EQ(encaja({40, 20}, {10, 10, 20, 20}), QRectF(10, 15, 20, 10));
    EXPECT_EQ(encaja({10, 40}, {0, 0, 40, 20}), QRectF(17.5, 0, 5, 20));
}

} // namespace
} // namespace kestrane::report
