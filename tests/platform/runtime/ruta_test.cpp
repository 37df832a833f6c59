#include "platform/runtime/ruta.h"

#include "platform/runtime/soporte.h"

#include <QFile>
#include <QTemporaryDir>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(RutaDeMaquina, BothMarksPartFolders)
{
    EXPECT_EQ(rutaDeMaquina(u"C:\\Kestrane\\fotos\\"_s), u"C:/Kestrane/fotos/"_s);
    EXPECT_EQ(rutaDeMaquina(u"/opt/kestrane\\fotos\\ana.png"_s), u"/opt/kestrane/fotos/ana.png"_s);
    EXPECT_EQ(rutaDeMaquina(u"\\\\servidor\\banderas/españa.png"_s), u"//servidor/banderas/españa.png"_s);
}

TEST(RutaDeMaquina, ARelativePathLiesInTheFolderGivenAndAnAbsoluteOneDoesNot)
{
    EXPECT_EQ(rutaDeMaquina(u"banderas\\españa.png"_s, u"/opt/kestrane"_s), u"/opt/kestrane/banderas/españa.png"_s);
    EXPECT_EQ(rutaDeMaquina(u"banderas\\españa.png"_s, u"\\opt\\kestrane\\"_s), u"/opt/kestrane/banderas/españa.png"_s);
    EXPECT_EQ(rutaDeMaquina(u"\\otra\\españa.png"_s, u"/opt/kestrane"_s), u"/otra/españa.png"_s);
}

TEST(RutaDeMaquina, NothingStaysNothing)
{
    EXPECT_EQ(rutaDeMaquina(QString{}), QString{});
    EXPECT_EQ(rutaDeMaquina(u""_s, u"/opt/kestrane"_s), QString{});
}

TEST(RutaDeMaquina, AFileBelowAPathWithBackslashesIsOpened)
{
    const QTemporaryDir carpeta;
    QFile escrito{carpeta.filePath(u"foto.png"_s)};
    ASSERT_TRUE(escrito.open(QIODevice::WriteOnly));
    EXPECT_TRUE(QFile::exists(rutaDeMaquina(carpeta.path() + u"\\foto.png"_s)));
}

} // namespace
} // namespace kestrane
