#include "platform/runtime/motivo_sistema.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

QString motivoAlAbrir(QFileDevice& fichero)
{
    EXPECT_FALSE(fichero.open(QIODevice::WriteOnly));
    return motivoDe(fichero);
}

class MotivoSistema : public testing::Test
{
protected:
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }

    QTemporaryDir m_carpeta;
};

TEST_F(MotivoSistema, AFileThatCannotBeOpenedSaysWhyInSpanish)
{
    QFile ausente{ruta(u"nada/a"_s)};
    EXPECT_EQ(motivoAlAbrir(ausente), u"no existe"_s);
    QFile carpeta{m_carpeta.path()};
    EXPECT_EQ(motivoAlAbrir(carpeta), u"es una carpeta"_s);
    QFile largo{ruta(QString{300, u'x'})};
    EXPECT_EQ(motivoAlAbrir(largo), u"el nombre es demasiado largo"_s);
    QFile estorbo{ruta(u"estorbo"_s)};
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    QFile debajo{ruta(u"estorbo/a"_s)};
    EXPECT_EQ(motivoAlAbrir(debajo), u"una parte de la ruta no es una carpeta"_s);
}

TEST_F(MotivoSistema, WhatQtSaysInItsOwnWordsIsSpanishToo)
{
    QSaveFile carpeta{m_carpeta.path()};
    EXPECT_EQ(motivoAlAbrir(carpeta), u"es una carpeta"_s);
    const QBuffer callado;
    EXPECT_EQ(motivoDe(callado), u"no se sabe por qué"_s);
    EXPECT_EQ(motivoDeTexto(u"Existing file /a is not writable"_s), u"sin permiso"_s);
}

TEST_F(MotivoSistema, ACodeAndItsTextSayTheSame)
{
    for (const std::errc codigo : {std::errc::no_space_on_device, std::errc::read_only_file_system, std::errc::permission_denied,
                                   std::errc::broken_pipe, std::errc::io_error})
        EXPECT_EQ(motivoDe(std::make_error_code(codigo)), motivoDeTexto(qt_error_string(static_cast<int>(codigo))));
    EXPECT_EQ(motivoDe(std::make_error_code(std::errc::no_space_on_device)), u"no queda sitio en el disco"_s);
    EXPECT_EQ(motivoDe(std::make_error_code(std::errc::read_only_file_system)), u"el disco es de solo lectura"_s);
}

TEST_F(MotivoSistema, WhatHasNoWordsHereIsQuoted)
{
    EXPECT_EQ(motivoDeTexto(u"Frobnicated"_s), u"el sistema dice \"Frobnicated\""_s);
    EXPECT_TRUE(motivoDe(std::make_error_code(std::errc::owner_dead)).startsWith(u"el sistema dice \""_s));
}

} // namespace
} // namespace kestrane
