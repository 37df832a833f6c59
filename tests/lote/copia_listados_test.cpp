#include "lote/copia_listados.h"

#include "apoyo/tienda_de_prueba.h"
#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;
using prueba::TiendaDePrueba;

database::OpcionesDatos en(const QString& carpeta)
{
    database::OpcionesDatos opciones;
    opciones.carpeta = carpeta;
    return opciones;
}

/// The only column of a table of the reports database, as texts between ",".
QString columna(const database::OpcionesDatos& opciones, const QString& sentencia)
{
    EntornoDatos entorno{opciones};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=ListKestrane"_s);
    Recordset filas;
    filas.Open(sentencia, conexion);
    QStringList valores;
    for (Recordset& fila : filas)
        valores += fila.Fields(0).texto();
    return valores.join(u',');
}

std::string rechazo(const database::OpcionesDatos& opciones, const QString& carpeta)
{
    try {
        const CopiaListados copia{opciones, carpeta};
        return {};
    } catch (const ErrorEjecucion& error) {
        return error.descripcion().toStdString();
    }
}

class CopiaListadosTest : public testing::Test
{
protected:
    CopiaListadosTest()
    {
        m_tienda.ejecutaListados({u"insert into informes (texto1) values ('del programa')"_s,
                                  u"insert into subinformes (texto1) values ('del programa')"_s,
                                  u"insert into listadostemporal (list1) values ('7')"_s});
        m_tienda.listados().Close();
    }

    [[nodiscard]] QString otra(const QString& nombre) const { return QDir{m_tienda.carpeta()}.filePath(nombre); }

    /// A copy of an earlier run with a row in it.
    void conservaUnaVieja(const QString& carpeta) const
    {
        const CopiaListados copia{en(m_tienda.carpeta()), carpeta};
        EntornoDatos entorno{copia.opciones()};
        Conexion conexion{entorno};
        conexion.Open(u"dsn=ListKestrane"_s);
        conexion.Execute(u"insert into informes (texto1) values ('de antes')"_s);
        conexion.Close();
        copia.conserva();
    }

    static QString contenido(const QString& carpeta)
    {
        return QDir{carpeta}.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(u' ');
    }

    TiendaDePrueba m_tienda;
};

TEST_F(CopiaListadosTest, WithoutTheOriginalOrOneOfItsTablesThereIsNoCopy)
{
    EXPECT_NE(rechazo(en(otra(u"nada"_s)), {}).find("ListKestrane.db"), std::string::npos);
    for (const QString& tabla : {u"informes"_s, u"subinformes"_s, u"listadostemporal"_s}) {
        TiendaDePrueba tienda;
        tienda.quitaTablaListados(tabla);
        EXPECT_NE(rechazo(en(tienda.carpeta()), {}).find(tabla.toStdString()), std::string::npos) << tabla.toStdString();
    }
}

TEST_F(CopiaListadosTest, TheOriginalsFolderIsRefused)
{
    EXPECT_NE(rechazo(en(m_tienda.carpeta()), m_tienda.carpeta() + u"/."_s).find("la original"), std::string::npos);
    EXPECT_EQ(columna(en(m_tienda.carpeta()), u"select texto1 from informes"_s), u"del programa"_s);
}

TEST_F(CopiaListadosTest, AFolderThatCannotBeMadeIsRefused)
{
    QFile fichero{otra(u"fichero"_s)};
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    const std::string frase = rechazo(en(m_tienda.carpeta()), otra(u"fichero/dentro"_s));
    EXPECT_NE(frase.find("fichero/dentro\" (una parte de la ruta no es una carpeta)"), std::string::npos) << frase;
}

TEST_F(CopiaListadosTest, TheFolderOfAnotherShopIsRefusedAndItsReportsDatabaseStays)
{
    const TiendaDePrueba ajena;
    QFile suya{ajena.carpeta() + u"/ListKestrane.db"_s};
    const qint64 tamano = suya.size();
    EXPECT_GT(tamano, 0);
    const std::string frase = rechazo(en(m_tienda.carpeta()), ajena.carpeta());
    EXPECT_NE(frase.find("está la base de datos de una tienda"), std::string::npos) << frase;
    EXPECT_EQ(suya.size(), tamano);
    EXPECT_EQ(contenido(ajena.carpeta()), u"ListKestrane.db TiendaKestrane.db"_s);
}

TEST_F(CopiaListadosTest, TheStagingTablesAreEmptyAndTheKeyIsCopied)
{
    const CopiaListados copia{en(m_tienda.carpeta()), {}};
    EXPECT_EQ(columna(copia.opciones(), u"select texto1 from informes"_s), u""_s);
    EXPECT_EQ(columna(copia.opciones(), u"select texto1 from subinformes"_s), u""_s);
    EXPECT_EQ(columna(copia.opciones(), u"select list1 from listadostemporal"_s), u"7"_s);
}

TEST_F(CopiaListadosTest, WritingInTheCopyLeavesTheOriginalAlone)
{
    const CopiaListados copia{en(m_tienda.carpeta()), {}};
    EntornoDatos entorno{copia.opciones()};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=ListKestrane"_s);
    conexion.Execute(u"insert into informes (texto1) values ('de lote')"_s);
    EXPECT_EQ(columna(en(m_tienda.carpeta()), u"select texto1 from informes"_s), u"del programa"_s);
}

TEST_F(CopiaListadosTest, TheShopIsTheOriginals)
{
    m_tienda.ejecuta(u"insert into marcas (codigo, nombre) values (1, 'Zeta')"_s);
    const CopiaListados copia{en(m_tienda.carpeta()), {}};
    EntornoDatos entorno{copia.opciones()};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=TiendaKestrane"_s);
    Recordset filas;
    filas.Open(u"marcas"_s, conexion);
    EXPECT_EQ(filas.RecordCount(), 1);
}

TEST_F(CopiaListadosTest, ItGoesWithItsFolderUnlessItIsKept)
{
    QString suya;
    {
        const CopiaListados copia{en(m_tienda.carpeta()), {}};
        suya = copia.carpeta();
        EXPECT_TRUE(QFile::exists(suya + u"/ListKestrane.db"_s));
        copia.conserva();
    }
    EXPECT_FALSE(QDir{suya}.exists());
    const QString carpeta = otra(u"copia/dentro"_s);
    {
        const CopiaListados copia{en(m_tienda.carpeta()), carpeta};
        EXPECT_FALSE(QFile::exists(carpeta + u"/ListKestrane.db"_s));
        copia.conserva();
    }
    EXPECT_EQ(contenido(carpeta), u"ListKestrane.db"_s);
    EXPECT_EQ(columna(en(carpeta), u"select list1 from listadostemporal"_s), u"7"_s);
}

TEST_F(CopiaListadosTest, AnOlderOneStaysUntilItIsKeptAndThenGoesWithItsLogs)
{
    const QString carpeta = otra(u"copia"_s);
    conservaUnaVieja(carpeta);
    const CopiaListados copia{en(m_tienda.carpeta()), carpeta};
    EXPECT_EQ(columna(en(carpeta), u"select texto1 from informes"_s), u"de antes"_s);
    QFile restos{carpeta + u"/ListKestrane.db-wal"_s};
    ASSERT_TRUE(restos.open(QIODevice::WriteOnly));
    restos.close();
    copia.conserva();
    EXPECT_FALSE(restos.exists());
    EXPECT_EQ(columna(en(carpeta), u"select texto1 from informes"_s), u""_s);
}

TEST_F(CopiaListadosTest, ARunThatFailsLeavesTheOlderOneAndNothingElse)
{
    const QString carpeta = otra(u"copia"_s);
    conservaUnaVieja(carpeta);
    EXPECT_NE(rechazo(en(otra(u"nada"_s)), carpeta), "");
    m_tienda.quitaTablaListados(u"listadostemporal"_s);
    EXPECT_NE(rechazo(en(m_tienda.carpeta()), carpeta), "");
    EXPECT_EQ(contenido(carpeta), u"ListKestrane.db"_s);
    EXPECT_EQ(columna(en(carpeta), u"select texto1 from informes"_s), u"de antes"_s);
}

TEST_F(CopiaListadosTest, AFolderThatDoesNotTakeItIsToldWhenItIsKept)
{
    const QString carpeta = otra(u"copia"_s);
    const CopiaListados copia{en(m_tienda.carpeta()), carpeta};
    ASSERT_TRUE(QDir{}.mkpath(carpeta + u"/ListKestrane.db/dentro"_s));
    EXPECT_THROW(copia.conserva(), ErrorEjecucion);
}

TEST_F(CopiaListadosTest, APipeInItsPlaceStaysAPipe)
{
    const QString carpeta = otra(u"copia"_s);
    const CopiaListados copia{en(m_tienda.carpeta()), carpeta};
    const QString tubo = carpeta + u"/ListKestrane.db"_s;
    ASSERT_EQ(mkfifo(QFile::encodeName(tubo).constData(), 0600), 0);
    EXPECT_THROW(copia.conserva(), ErrorEjecucion);
    struct stat estado = {};
    ASSERT_EQ(stat(QFile::encodeName(tubo).constData(), &estado), 0);
    EXPECT_TRUE(S_ISFIFO(estado.st_mode));
}

} // namespace
} // namespace kestrane::lote
