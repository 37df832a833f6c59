#include "platform/suite/windows/traductor_captions.h"

#include "platform/suite/windows/fichero_ts.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

/// A small window, and a folder of translations in which English has some of its captions.
class TraductorCaptionsTest : public testing::Test
{
protected:
    TraductorCaptionsTest()
    {
        ventana.setObjectName(u"frmListados"_s);
        ventana.setWindowTitle(u"Listados"_s);
    }
    void SetUp() override
    {
        escribe(u"en"_s, {{u"Listados"_s, u"Reports"_s, {}},
                          {u"Cumpleaños"_s, u"Birthday"_s, {}},
                          {u"Caja"_s, u"Till"_s, {}},
                          {u"Bonos"_s, {}, u"unfinished"_s}});
    }
    /// Translations of the window, compiled as Linguist's tools do.
    void escribe(const QString& idioma, const QList<ts::Mensaje>& mensajes)
    {
        const QString fuente = carpeta.filePath(u"listados_%1.ts"_s.arg(idioma));
        ASSERT_EQ(ts::escribe({idioma, {{u"frmListados"_s, mensajes}}}, fuente), QString{});
        ASSERT_EQ(QProcess::execute(QStringLiteral(KESTRANE_LRELEASE), {u"-silent"_s, fuente}), 0);
    }
    [[nodiscard]] TraductorCaptions traductor(const QStringList& idiomas) const { return {carpeta.path(), idiomas}; }

    QTemporaryDir carpeta;
    QWidget ventana;
    QGroupBox* grupo = new QGroupBox{u"Caja"_s, &ventana};
    QLabel* rotulo = new QLabel{u"Cumpleaños"_s, grupo};
    QPushButton* boton = new QPushButton{u"Bonos"_s, &ventana};
};

TEST_F(TraductorCaptionsTest, CaptionsAreInTheOperatorsLanguageWhereItHasThem)
{
    traductor({u"en-GB"_s}).TraducirForm(ventana);
    EXPECT_EQ(ventana.windowTitle(), u"Reports"_s);
    EXPECT_EQ(grupo->title(), u"Till"_s);
    EXPECT_EQ(rotulo->text(), u"Birthday"_s);
    EXPECT_EQ(boton->text(), u"Bonos"_s); // not translated yet
}

TEST_F(TraductorCaptionsTest, DoneTwiceDoesNoHarm)
{
    const TraductorCaptions ingles{carpeta.path(), {u"en"_s}};
    ingles.TraducirForm(ventana);
    ingles.TraducirForm(ventana);
    EXPECT_EQ(rotulo->text(), u"Birthday"_s);
    TraductorCaptions{}.TraducirForm(ventana);
    EXPECT_EQ(rotulo->text(), u"Cumpleaños"_s);
}

TEST_F(TraductorCaptionsTest, SpanishIsTheSourceAndNeedsNoFile)
{
    traductor({u"es-ES"_s, u"en"_s}).TraducirForm(ventana);
    EXPECT_EQ(rotulo->text(), u"Cumpleaños"_s);
}

TEST_F(TraductorCaptionsTest, TheFirstLanguageThatHasAFileIsTaken)
{
    escribe(u"ca"_s, {{u"Caja"_s, u"Caixa"_s, {}}});
    traductor({u"fr"_s, u"ca-ES"_s, u"en"_s}).TraducirForm(ventana);
    EXPECT_EQ(grupo->title(), u"Caixa"_s);
}

TEST_F(TraductorCaptionsTest, AFileThatCannotBeReadLeavesSpanish)
{
    QFile roto{carpeta.filePath(u"listados_fr.qm"_s)};
    ASSERT_TRUE(roto.open(QIODevice::WriteOnly));
    roto.write("no");
    roto.close();
    traductor({u"fr"_s}).TraducirForm(ventana);
    EXPECT_EQ(grupo->title(), u"Caja"_s);
}

TEST_F(TraductorCaptionsTest, TranslationsOfAnotherWindowAreNotThisOnes)
{
    ventana.setObjectName(u"frmFechas"_s);
    traductor({u"en"_s}).TraducirForm(ventana);
    EXPECT_EQ(grupo->title(), u"Caja"_s);
}

TEST_F(TraductorCaptionsTest, RecordingKeepsWhatIsTranslatedAndAddsTheRest)
{
    const QString fichero = carpeta.filePath(u"listados_en.ts"_s);
    const TraductorCaptions ingles{carpeta.path(), {u"en"_s}};
    ingles.TraducirForm(ventana); // what is recorded is Spanish all the same
    boton->setToolTip(u"Bonos vendidos"_s);
    EXPECT_EQ(ingles.GenerarCaptions(ventana, fichero), QString{});
    const QList<ts::Mensaje> mensajes = ts::lee(fichero).valor().contextos[0].mensajes;
    EXPECT_EQ(mensajes, (QList<ts::Mensaje>{{u"Listados"_s, u"Reports"_s, {}},
                                            {u"Cumpleaños"_s, u"Birthday"_s, {}},
                                            {u"Caja"_s, u"Till"_s, {}},
                                            {u"Bonos"_s, {}, u"unfinished"_s},
                                            {u"Bonos vendidos"_s, {}, u"unfinished"_s}}));
}

TEST_F(TraductorCaptionsTest, AFileThatIsNoneIsNotWrittenOver)
{
    const QString fichero = carpeta.filePath(u"notas.ts"_s);
    QFile notas{fichero};
    ASSERT_TRUE(notas.open(QIODevice::ReadWrite));
    notas.write("apuntes");
    notas.flush();
    EXPECT_NE(TraductorCaptions{}.GenerarCaptions(ventana, fichero), QString{});
    QFile despues{fichero};
    ASSERT_TRUE(despues.open(QIODevice::ReadOnly));
    EXPECT_EQ(despues.readAll(), QByteArray{"apuntes"});
}

} // namespace
} // namespace kestrane
