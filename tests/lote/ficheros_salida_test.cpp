#include "lote/ficheros_salida.h"

#include "apoyo/limite_de_abiertos.h"
#include "apoyo/limite_de_fichero.h"
#include "lote/peticion_imposible.h"
#include "platform/runtime/error_de_salida.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

class EscritorFalso final : public EscritorInformes
{
public:
    explicit EscritorFalso(Juntos juntos = Juntos::Si) : m_juntos{juntos} {}
    [[nodiscard]] QStringList escribe(const InformeMostrado&, Conexion&, const QString&) override { return {}; }
    [[nodiscard]] Juntos juntos() const override { return m_juntos; }
    [[nodiscard]] QByteArray principio() const override { return "<"; }
    [[nodiscard]] QByteArray separador() const override { return "|"; }
    [[nodiscard]] QByteArray final() const override { return ">"; }

private:
    Juntos m_juntos;
};

class FicherosSalida : public testing::Test
{
protected:
    void informe(const QString& tienda, const QByteArray& cuerpo) { informe(tienda, QByteArrayList{cuerpo}); }
    void informe(const QString& tienda, const QByteArrayList& cuerpos)
    {
        CuerpoInforme nuevo{.tienda = tienda, .datos = true, .partes = {}};
        for (const QByteArray& cuerpo : cuerpos) {
            QFile parte{m_partes.filePath(QString::number(++m_escritas))};
            ASSERT_TRUE(parte.open(QIODevice::WriteOnly));
            parte.write(cuerpo);
            nuevo.partes += parte.fileName();
        }
        m_informes.push_back(std::move(nuevo));
    }

    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    void escribe(const QString& nombre) { escribeFicheros(ruta(nombre), m_escritor, m_informes); }

    /// "name=content" of all files.
    [[nodiscard]] QStringList ficheros() const
    {
        QStringList todos;
        for (const QString& nombre : QDir{m_carpeta.path()}.entryList(QDir::Files, QDir::Name)) {
            QFile fichero{ruta(nombre)};
            EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
            todos += nombre + u'=' + QString::fromUtf8(fichero.readAll());
        }
        return todos;
    }

    QTemporaryDir m_carpeta;
    QTemporaryDir m_partes;
    int m_escritas = 0;
    EscritorFalso m_escritor;
    std::vector<CuerpoInforme> m_informes;
};

TEST_F(FicherosSalida, AFolderThatIsNotThereIsToldBeforehandAndAfterwards)
{
    EXPECT_THROW(compruebaQueSePuedeEscribir(ruta(u"nada/a.json"_s)), ErrorDeSalida);
    informe({}, "a");
    EXPECT_THROW(escribe(u"nada/a.json"_s), ErrorDeSalida);
    EXPECT_EQ(ficheros(), QStringList{});
}

TEST_F(FicherosSalida, AskingWhetherAFileCanBeWrittenLeavesNothing)
{
    compruebaQueSePuedeEscribir(ruta(u"a.json"_s));
    EXPECT_EQ(ficheros(), QStringList{});
}

TEST_F(FicherosSalida, AllReportsAreOneDocumentOnTheOutput)
{
    informe(u"Sur"_s, "a");
    informe(u"Centro"_s, "b");
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    escribeEn(salida, m_escritor, m_informes);
    EXPECT_EQ(salida.data(), "<a|b>");
}

TEST_F(FicherosSalida, AnOutputThatTakesNothingIsAnError)
{
    informe({}, "a");
    QBuffer cerrado;
    EXPECT_THROW(escribeEn(cerrado, m_escritor, m_informes), ErrorDeSalida);
}

TEST_F(FicherosSalida, OneReportHasTheNameThatWasGivenAndReplacesWhatLayThere)
{
    informe(u"Sur"_s, "a");
    escribe(u"caja.json"_s);
    EXPECT_EQ(ficheros(), QStringList{u"caja.json=<a>"_s});
    m_informes.clear();
    informe(u"Sur"_s, "b");
    escribe(u"caja.json"_s);
    EXPECT_EQ(ficheros(), QStringList{u"caja.json=<b>"_s});
}

TEST_F(FicherosSalida, SeveralHaveTheStoresNameInFrontOfTheEnding)
{
    informe(u"Peñíscola"_s, "a");
    informe(u"San Juan"_s, "b");
    escribe(u"caja.dia.json"_s);
    EXPECT_EQ(ficheros(), (QStringList{u"caja.dia-Peñíscola.json=<a>"_s, u"caja.dia-San Juan.json=<b>"_s}));
}

TEST_F(FicherosSalida, PagesHaveTheirNumberBehindTheStoresName)
{
    informe(u"Sur"_s, QByteArrayList{"a", "b"});
    escribe(u"caja.png"_s);
    EXPECT_EQ(ficheros(), (QStringList{u"caja_001.png=<a>"_s, u"caja_002.png=<b>"_s}));
    informe(u"Centro"_s, QByteArray{"c"});
    escribe(u"otra.png"_s);
    EXPECT_EQ(ficheros().sliced(2), (QStringList{u"otra-Centro.png=<c>"_s, u"otra-Sur_001.png=<a>"_s, u"otra-Sur_002.png=<b>"_s}));
}

TEST_F(FicherosSalida, AReportWithoutPartsIsNoFile)
{
    informe(u"Sur"_s, QByteArrayList{});
    informe(u"Centro"_s, QByteArray{"c"});
    escribe(u"caja.pdf"_s);
    EXPECT_EQ(ficheros(), QStringList{u"caja-Centro.pdf=<c>"_s}) << "the other store's name stays free for it";
}

TEST_F(FicherosSalida, WhatDoesNotJoinGoesToTheOutputAlone)
{
    const EscritorFalso suelto{Juntos::No};
    QBuffer salida;
    salida.open(QIODevice::WriteOnly);
    informe(u"Sur"_s, QByteArrayList{});
    informe(u"Centro"_s, QByteArray{"c"});
    escribeEn(salida, suelto, m_informes);
    EXPECT_EQ(salida.data(), "<c>");
    informe(u"Norte"_s, QByteArray{"d"});
    try {
        escribeEn(salida, suelto, m_informes);
        FAIL() << "it was joined";
    } catch (const PeticionImposible& error) {
        EXPECT_EQ(error.mensaje(), u"Son 2 ficheros: indique dónde con --salida FICHERO."_s);
    }
    EXPECT_EQ(salida.data(), "<c>");
}

TEST_F(FicherosSalida, StoresWhoseNamesMeetInAFilesNameStayApart)
{
    informe(u"A/B"_s, "1");
    informe(u"A:B"_s, "2");
    informe(u"a_b"_s, "3");
    escribe(u"caja"_s);
    EXPECT_EQ(ficheros(), (QStringList{u"caja-A_B=<1>"_s, u"caja-A_B-2=<2>"_s, u"caja-a_b-3=<3>"_s}));
}

TEST_F(FicherosSalida, WhenOneOfSeveralCannotBeWrittenNoneIs)
{
    informe(u"Sur"_s, "a");
    informe(u"Centro"_s, "b");
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"caja-Centro.json"_s));
    EXPECT_THROW(escribe(u"caja.json"_s), ErrorDeSalida);
    EXPECT_EQ(ficheros(), QStringList{});
}

TEST_F(FicherosSalida, APipeInThePlaceOfAPageStaysAndKeepsAllPagesOff)
{
    informe(u"Sur"_s, QByteArrayList{"a", "b"});
    const QString tubo = ruta(u"caja_002.png"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(tubo).constData(), 0600), 0);
    try {
        escribe(u"caja.png"_s);
        FAIL() << "it was written";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"%1\": no es un fichero"_s.arg(tubo));
    }
    EXPECT_EQ(QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"caja_002.png"_s});
    EXPECT_FALSE(QFileInfo{tubo}.isFile());
}

TEST_F(FicherosSalida, ALinkStaysAndItsFileIsWritten)
{
    QTemporaryDir otra;
    ASSERT_EQ(symlink(QFile::encodeName(otra.filePath(u"z"_s)).constData(), QFile::encodeName(ruta(u"caja.json"_s)).constData()),
              0);
    informe({}, "a");
    compruebaQueSePuedeEscribir(ruta(u"caja.json"_s));
    escribe(u"caja.json"_s);
    EXPECT_TRUE(QFileInfo{ruta(u"caja.json"_s)}.isSymLink());
    QFile escrito{otra.filePath(u"z"_s)};
    ASSERT_TRUE(escrito.open(QIODevice::ReadOnly));
    EXPECT_EQ(escrito.readAll(), "<a>");
}

TEST_F(FicherosSalida, MorePagesThanFilesMayBeOpen)
{
    informe({}, QByteArrayList(150, "p"));
    const prueba::LimiteDeAbiertos limite{100};
    escribe(u"caja.png"_s);
    const QStringList todos = ficheros();
    ASSERT_EQ(todos.size(), 150);
    EXPECT_TRUE(todos.contains(u"caja_150.png=<p>"_s));
}

TEST_F(FicherosSalida, ADiskThatDoesNotTakeTheLastBytesLeavesNothing)
{
    informe({}, QByteArray(2000, 'x'));
    const prueba::LimiteDeFichero limite{1000};
    EXPECT_THROW(escribe(u"caja.json"_s), ErrorDeSalida);
    EXPECT_EQ(ficheros(), QStringList{});
}

TEST_F(FicherosSalida, APipeTakesAllReportsAsOneDocumentAndStaysAPipe)
{
    const QString tubo = ruta(u"tubo.json"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(tubo).constData(), 0600), 0);
    informe(u"Sur"_s, "a");
    informe(u"Centro"_s, "b");
    compruebaQueSePuedeEscribir(tubo);
    QProcess lector;
    lector.start(u"cat"_s, {tubo});
    ASSERT_TRUE(lector.waitForStarted());
    escribe(u"tubo.json"_s);
    ASSERT_TRUE(lector.waitForFinished());
    EXPECT_EQ(lector.readAllStandardOutput(), "<a|b>");
    EXPECT_EQ(QDir{m_carpeta.path()}.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              QStringList{u"tubo.json"_s});
    EXPECT_FALSE(QFileInfo{tubo}.isFile());
}

TEST_F(FicherosSalida, ADeviceThatIsFullIsAnError)
{
    informe({}, "a");
    compruebaQueSePuedeEscribir(u"/dev/full"_s);
    try {
        escribeFicheros(u"/dev/full"_s, m_escritor, m_informes);
        FAIL() << "it was taken";
    } catch (const ErrorDeSalida& error) {
        EXPECT_EQ(error.motivo(), u"\"/dev/full\": no queda sitio en el disco"_s);
    }
}

TEST_F(FicherosSalida, AFolderIsNoFile)
{
    ASSERT_TRUE(QDir{m_carpeta.path()}.mkdir(u"caja"_s));
    try {
        compruebaQueSePuedeEscribir(ruta(u"caja"_s));
        FAIL() << "it was accepted";
    } catch (const ErrorDeSalida& error) {
        EXPECT_TRUE(error.motivo().endsWith(u"/caja\": es una carpeta"_s)) << error.what();
    }
}

} // namespace
} // namespace kestrane::lote
