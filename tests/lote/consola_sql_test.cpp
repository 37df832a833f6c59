#include "lote/consola_sql.h"

#include "lote/programa.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

/// A shop of one table, made without the project's own layers.
class ConsolaSqlTest : public testing::Test
{
protected:
    ConsolaSqlTest()
    {
        sqlite3* base = nullptr;
        sqlite3_open(m_carpeta.filePath(u"TiendaKestrane.db"_s).toUtf8().constData(), &base);
        sqlite3_exec(base,
                     "CREATE TABLE seccion (codigo INTEGER NOT NULL, nombre TEXT(50), precio DOUBLE, alta DATETIME,"
                     " borrar YESNO NOT NULL DEFAULT 0);"
                     "INSERT INTO seccion VALUES (2, 'Peluquería', 12.5, '2024-03-15', 0), (1, NULL, NULL, NULL, -1);",
                     nullptr, nullptr, nullptr);
        sqlite3_close(base);
    }

    int programa(QStringList argumentos)
    {
        argumentos = QStringList{u"listados-lote"_s, u"--datos"_s, m_carpeta.path(), u"--regional"_s, u"es_ES"_s} + argumentos;
        QBuffer salida{&m_salida};
        QBuffer errores{&m_errores};
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        return ejecutaPrograma(argumentos, m_carpeta.path(), salida, errores);
    }

    QString fichero(const QByteArray& contenido)
    {
        const QString nombre = m_carpeta.filePath(u"sentencias.sql"_s);
        QFile escrito{nombre};
        EXPECT_TRUE(escrito.open(QIODevice::WriteOnly));
        escrito.write(contenido);
        return nombre;
    }

    QTemporaryDir m_carpeta;
    QByteArray m_salida;
    QByteArray m_errores;
};

TEST_F(ConsolaSqlTest, ASelectGivesColumnsWithTheirTypesAndRowsInStoredOrder)
{
    EXPECT_EQ(programa({u"--sql"_s, u"Select * from Seccion"_s}), SalidaBien);
    EXPECT_EQ(
        m_salida.toStdString(),
        R"({"columnas":[{"nombre":"codigo","tipo":"LONG"},{"nombre":"nombre","tipo":"TEXT"},{"nombre":"precio","tipo":"DOUBLE"},)"
        R"({"nombre":"alta","tipo":"DATETIME"},{"nombre":"borrar","tipo":"YESNO"}],)"
        R"("filas":[[2,"Peluquería",12.5,"2024-03-15T00:00:00",false],[1,null,null,null,true]]})"
        "\n");
    EXPECT_EQ(m_errores, "");
}

TEST_F(ConsolaSqlTest, AnEmptyResultStillHasItsColumns)
{
    EXPECT_EQ(programa({u"--sql"_s, u"Select codigo from seccion where codigo = 9"_s}), SalidaBien);
    EXPECT_EQ(m_salida.toStdString(), "{\"columnas\":[{\"nombre\":\"codigo\",\"tipo\":\"LONG\"}],\"filas\":[]}\n");
}

TEST_F(ConsolaSqlTest, WithoutLeaveToWriteNothingIsChanged)
{
    EXPECT_EQ(programa({u"--sql"_s, u"delete from seccion"_s}), SalidaError);
    EXPECT_TRUE(m_salida.startsWith(R"({"error":-2147217900,"descripcion":"Sin --escribir)")) << m_salida.toStdString();
    EXPECT_TRUE(m_errores.startsWith("listados-lote: error -2147217900: Sin --escribir")) << m_errores.toStdString();
    m_salida.clear();
    EXPECT_EQ(programa({u"--sql"_s, u"select count(*) as n from seccion"_s}), SalidaBien);
    EXPECT_TRUE(m_salida.contains("\"filas\":[[2]]")) << m_salida.toStdString();
}

TEST_F(ConsolaSqlTest, WithLeaveTheAffectedRowsAreCountedAndStay)
{
    EXPECT_EQ(programa({u"--escribir"_s, u"--sql"_s, u"update seccion set nombre = 'Ñandú'"_s}), SalidaBien);
    EXPECT_EQ(m_salida.toStdString(), "{\"afectadas\":2}\n");
    m_salida.clear();
    EXPECT_EQ(programa({u"--sql"_s, u"select nombre from seccion where codigo = 1"_s}), SalidaBien);
    EXPECT_TRUE(m_salida.contains("[[\"Ñandú\"]]")) << m_salida.toStdString();
}

TEST_F(ConsolaSqlTest, AFileGoesOnBehindAnErrorAndEndsWithStatusOne)
{
    const QString nombre = fichero(
        "select codigo from seccion\n\nselect nada from seccion\nselect 'a\\r\\n\\\\b' as t from seccion where codigo = 1\n");
    EXPECT_EQ(programa({u"--sql-fichero"_s, nombre}), SalidaError);
    const QList<QByteArray> lineas = m_salida.split('\n');
    ASSERT_EQ(lineas.size(), 4) << m_salida.toStdString();
    EXPECT_TRUE(lineas[0].endsWith(R"("filas":[[2],[1]]})"));
    EXPECT_TRUE(lineas[1].startsWith(R"({"error":-2147217900,)"));
    EXPECT_TRUE(lineas[1].contains("nada"));
    EXPECT_TRUE(lineas[2].endsWith(R"("filas":[["a\r\n\\b"]]})")) << lineas[2].toStdString();
    EXPECT_EQ(m_errores.toStdString(), "listados-lote: 1 sentencias han terminado en error; sus líneas lo dicen.\n");
}

TEST_F(ConsolaSqlTest, AMissingFileADatabaseThatIsNotThereAndBadUsageAreToldApart)
{
    EXPECT_EQ(programa({u"--sql-fichero"_s, m_carpeta.filePath(u"nada.sql"_s)}), SalidaError);
    EXPECT_TRUE(m_errores.contains("nada.sql")) << m_errores.toStdString();
    m_errores.clear();
    EXPECT_EQ(programa({u"--sql"_s, u"select 1"_s, u"--conexion"_s, u"listados"_s}), SalidaError);
    EXPECT_TRUE(m_errores.contains("-2147467259")) << m_errores.toStdString();
    EXPECT_TRUE(m_errores.contains("ListKestrane.db")) << m_errores.toStdString();
    EXPECT_FALSE(QFile::exists(m_carpeta.filePath(u"ListKestrane.db"_s)));
    EXPECT_EQ(programa({u"--nada"_s}), SalidaUso);
}

TEST(SinEscapes, OnlyTheThreeEscapesCount)
{
    EXPECT_EQ(sinEscapes(u"a\\rb\\nc\\\\d"), u"a\rb\nc\\d"_s);
    EXPECT_EQ(sinEscapes(u"C:\\temp\\x"), u"C:\\temp\\x"_s);
    EXPECT_EQ(sinEscapes(u"\\"), u"\\"_s);
    EXPECT_EQ(sinEscapes(u"\\\\n"), u"\\n"_s);
}

} // namespace
} // namespace kestrane::lote
