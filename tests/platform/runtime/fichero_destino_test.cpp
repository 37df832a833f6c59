#include "platform/runtime/fichero_destino.h"

#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FicheroDestino : public testing::Test
{
protected:
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    void fichero(const QString& nombre)
    {
        QFile nuevo{ruta(nombre)};
        ASSERT_TRUE(nuevo.open(QIODevice::WriteOnly));
    }
    void enlace(const QByteArray& hacia, const QString& nombre)
    {
        ASSERT_EQ(symlink(hacia.constData(), QFile::encodeName(ruta(nombre)).constData()), 0);
    }
    QTemporaryDir m_carpeta;
};

TEST_F(FicheroDestino, WhatDoesNotEndIsToldWithItsName)
{
    enlace("b", u"a"_s);
    enlace("a", u"b"_s);
    try {
        static_cast<void>(destinoDeEscritura(ruta(u"a"_s)));
        FAIL() << "it was accepted";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"%1\": los enlaces de la ruta no acaban"_s.arg(ruta(u"a"_s)));
    }
}

TEST_F(FicheroDestino, APipeADeviceAndAFolderAreInTheWayAlsoBehindALink)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(ruta(u"tubo"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"carpeta"_s));
    enlace("tubo", u"a"_s);
    EXPECT_EQ(estorboEn(ruta(u"tubo"_s)), u"no es un fichero"_s);
    EXPECT_EQ(estorboEn(u"/dev/full"_s), u"no es un fichero"_s);
    EXPECT_EQ(estorboEn(ruta(u"carpeta"_s)), u"es una carpeta"_s);
    EXPECT_THROW(static_cast<void>(destinoDeEscritura(ruta(u"a"_s))), ErrorDeSalida);
}

TEST_F(FicheroDestino, AFileThatMayNotBeWrittenIsInTheWay)
{
    constexpr uid_t Nadie = 65534;
    const uid_t propio = getuid();
    fichero(u"a"_s);
    QFile::setPermissions(ruta(u"a"_s), QFile::ReadOwner);
    if (propio == 0) { // root may write all
        ASSERT_EQ(setreuid(Nadie, uid_t(-1)), 0);
    }
    const QString estorbo = estorboEn(ruta(u"a"_s));
    ASSERT_EQ(setreuid(propio, uid_t(-1)), 0);
    EXPECT_EQ(estorbo, u"sin permiso"_s);
}

TEST_F(FicheroDestino, WhatIsNotThereAndAPlainFileAreWrittenWhereTheyAreNamed)
{
    EXPECT_EQ(destinoDeEscritura(ruta(u"a"_s)), ruta(u"a"_s));
    EXPECT_EQ(destinoDeEscritura(ruta(u"nada/a"_s)), ruta(u"nada/a"_s));
    fichero(u"año"_s);
    EXPECT_EQ(destinoDeEscritura(ruta(u"año"_s)), ruta(u"año"_s));
}

TEST_F(FicheroDestino, LinksAreFollowedToTheFileOrToWhereItWillBe)
{
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"fuera"_s));
    enlace("b", u"a"_s);
    enlace(QFile::encodeName(ruta(u"fuera/c"_s)), u"b"_s);
    EXPECT_EQ(destinoDeEscritura(ruta(u"a"_s)), ruta(u"fuera/c"_s));
    fichero(u"fuera/c"_s);
    EXPECT_EQ(destinoDeEscritura(ruta(u"a"_s)), ruta(u"fuera/c"_s));
}

} // namespace
} // namespace kestrane
