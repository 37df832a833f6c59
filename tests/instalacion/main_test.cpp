#include "instalacion/programa.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

class CrearTienda : public testing::Test
{
protected:
    int corre(const QStringList& argumentos)
    {
        m_proceso.start(QStringLiteral(KESTRANE_CREAR_TIENDA), argumentos);
        EXPECT_TRUE(m_proceso.waitForFinished(120000)) << m_proceso.errorString().toStdString();
        EXPECT_EQ(m_proceso.exitStatus(), QProcess::NormalExit);
        return m_proceso.exitCode();
    }
    [[nodiscard]] std::string errores() { return m_proceso.readAllStandardError().toStdString(); }
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }

    QProcess m_proceso;

private:
    QTemporaryDir m_carpeta;
};

TEST_F(CrearTienda, AnOutputThatIsFullIsAnError)
{
    m_proceso.setStandardOutputFile(u"/dev/full"_s);
    EXPECT_EQ(corre({u"--ayuda"_s}), SalidaError);
    EXPECT_EQ(errores(), "crear-tienda: no se puede escribir en la salida estándar (no queda sitio en el disco).\n");
}

TEST_F(CrearTienda, AFolderThatNobodyWouldUseIsRefused)
{
    QFile definicion{ruta(u"odbc.ini"_s)};
    ASSERT_TRUE(definicion.open(QIODevice::WriteOnly));
    definicion.write("[ListKestrane]\nDriver = /no/existe\n");
    definicion.close();
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(u"ODBCINI"_s, definicion.fileName());
    m_proceso.setProcessEnvironment(entorno);
    EXPECT_EQ(corre({u"--vacia"_s, u"--motor"_s, u"postgresql"_s, u"--datos"_s, ruta(u"datos"_s)}), SalidaError);
    const std::string dicho = errores();
    EXPECT_NE(dicho.find("crear-tienda: error -2147467259: Este equipo define el origen de datos \"ListKestrane\""),
              std::string::npos)
        << dicho;
    EXPECT_FALSE(QFile::exists(ruta(u"datos"_s)));
}

TEST_F(CrearTienda, TheProgramEndsWithItsStatusAndTellsWhatItMade)
{
    EXPECT_EQ(corre({u"--vacia"_s, u"--datos"_s, ruta(u"datos"_s)}), SalidaBien);
    EXPECT_EQ(m_proceso.readAllStandardOutput().count('\n'), 2);
    EXPECT_EQ(errores(), "");
    EXPECT_EQ(QDir{ruta(u"datos"_s)}.entryList(QDir::Files), (QStringList{u"ListKestrane.db"_s, u"TiendaKestrane.db"_s}));
}

} // namespace
} // namespace kestrane::instalacion
