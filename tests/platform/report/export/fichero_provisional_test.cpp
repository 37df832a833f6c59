#include "platform/report/export/fichero_provisional.h"

#include "apoyo/limite_de_fichero.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

void escribe(const QString& nombre, const QByteArray& texto)
{
    QFile fichero{nombre};
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    fichero.write(texto);
}

QByteArray lee(const QString& nombre)
{
    QFile fichero{nombre};
    EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
    return fichero.readAll();
}

QStringList nombresEn(const QTemporaryDir& carpeta)
{
    return QDir{carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

TEST(CarpetaProvisional, AFolderThatIsNotThereIsAnErrorThatNamesTheFile)
{
    const QTemporaryDir carpeta;
    try {
        const CarpetaProvisional provisional{carpeta.filePath(u"nada/a.xlsx"_s)};
        FAIL() << "no error";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"%1/nada/a.xlsx\": no existe"_s.arg(carpeta.path()));
    }
}

TEST(CarpetaProvisional, WhatIsNotHandedOverGoesWithIt)
{
    const QTemporaryDir carpeta;
    {
        const CarpetaProvisional provisional{carpeta.filePath(u"a.xlsx"_s)};
        escribe(provisional.ruta(u"uno"_s), "1");
    }
    EXPECT_EQ(nombresEn(carpeta), QStringList{});
}

TEST(CarpetaProvisional, WhatIsHandedOverTakesThePlaceOfWhatLayThere)
{
    const QTemporaryDir carpeta;
    escribe(carpeta.filePath(u"año.xlsx"_s), "viejo");
    {
        const CarpetaProvisional provisional{carpeta.filePath(u"año.xlsx"_s)};
        escribe(provisional.ruta(u"uno"_s), "nuevo");
        provisional.entrega(u"uno"_s, carpeta.filePath(u"año.xlsx"_s));
    }
    EXPECT_EQ(nombresEn(carpeta), QStringList{u"año.xlsx"_s});
    EXPECT_EQ(lee(carpeta.filePath(u"año.xlsx"_s)), "nuevo");
}

TEST(CarpetaProvisional, AFileKeepsThePermissionsOfTheOneBeforeIt)
{
    const QTemporaryDir carpeta;
    escribe(carpeta.filePath(u"a.xlsx"_s), "viejo");
    constexpr QFile::Permissions Suyos =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(carpeta.filePath(u"a.xlsx"_s), Suyos));
    const CarpetaProvisional provisional{carpeta.filePath(u"a.xlsx"_s)};
    escribe(provisional.ruta(u"uno"_s), "nuevo");
    provisional.entrega(u"uno"_s, carpeta.filePath(u"a.xlsx"_s));
    EXPECT_EQ(QFile::permissions(carpeta.filePath(u"a.xlsx"_s)), Suyos);
}

TEST(CarpetaProvisional, ADiskThatIsFullIsAnErrorThatNamesTheFileToBe)
{
    const QTemporaryDir carpeta;
    const CarpetaProvisional provisional{carpeta.filePath(u"a.png"_s)};
    const prueba::LimiteDeFichero limite{1000};
    try {
        provisional.escribe(u"uno"_s, u"a.png"_s, [](QFile& fichero) { fichero.write(QByteArray(2000, 'x')); });
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"a.png\": el fichero sería demasiado grande"_s);
    }
}

TEST(CarpetaProvisional, AFolderInTheFilesPlaceIsAnError)
{
    const QTemporaryDir carpeta;
    ASSERT_TRUE(QDir{carpeta.path()}.mkdir(u"a.xlsx"_s));
    const CarpetaProvisional provisional{carpeta.filePath(u"a.xlsx"_s)};
    escribe(provisional.ruta(u"uno"_s), "nuevo");
    EXPECT_THROW(provisional.entrega(u"uno"_s, carpeta.filePath(u"a.xlsx"_s)), ErrorDeSalida);
}

} // namespace
} // namespace kestrane::report
