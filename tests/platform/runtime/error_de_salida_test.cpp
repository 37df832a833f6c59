#include "platform/runtime/error_de_salida.h"

#include "apoyo/limite_de_fichero.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

TEST(EscribeTodo, AnOutputThatDoesNotTakeAllIsAnErrorWithItsReason)
{
    QFile lleno{u"/dev/full"_s};
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    try {
        escribeTodo(lleno, "hola");
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"no queda sitio en el disco"_s);
    }
    QBuffer cerrado;
    EXPECT_THROW(escribeTodo(cerrado, "hola"), ErrorDeSalida);
}

TEST(EscribeTodo, AllBytesGoOut)
{
    QBuffer destino;
    destino.open(QIODevice::WriteOnly);
    escribeTodo(destino, "hola");
    escribeTodo(destino, {});
    EXPECT_EQ(destino.data(), "hola");
}

class Confirma : public testing::Test
{
protected:
    QTemporaryDir m_carpeta;
    [[nodiscard]] QString nombre() const { return m_carpeta.filePath(u"a.txt"_s); }
    [[nodiscard]] QStringList nombres() const
    {
        return QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// What `confirma` says of a file of so many bytes on a disk that takes 1000 of each.
    QString motivo(qsizetype bytes)
    {
        QSaveFile fichero{nombre()};
        EXPECT_TRUE(fichero.open(QIODevice::WriteOnly));
        const prueba::LimiteDeFichero limite{1000};
        try {
            escribeTodo(fichero, QByteArray(bytes, 'x'));
            confirma(fichero);
        } catch (const ErrorDeSalida& error) {
            return error.motivo();
        }
        return {};
    }
};

TEST_F(Confirma, ADiskThatDoesNotTakeTheLastBytesIsAnErrorToo)
{
    for (const qsizetype bytes : {1001, 5000, 100000}) {
        EXPECT_TRUE(motivo(bytes).endsWith(u"el fichero sería demasiado grande"_s)) << bytes << motivo(bytes).toStdString();
        EXPECT_EQ(nombres(), QStringList{});
    }
}

TEST_F(Confirma, WhatIsOnTheDiskTakesItsName)
{
    EXPECT_EQ(motivo(1000), u""_s);
    EXPECT_EQ(nombres(), QStringList{u"a.txt"_s});
}

} // namespace
} // namespace kestrane
