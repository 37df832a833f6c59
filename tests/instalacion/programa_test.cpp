#include "instalacion/programa.h"

#include "instalacion/obra.h"
#include "platform/database/sqlite/sqlite_motor.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

/// A run of the program in a folder of its own.
class Programa : public testing::Test
{
protected:
    int corre(const QStringList& argumentos)
    {
        QBuffer salida;
        QBuffer errores;
        salida.open(QIODevice::WriteOnly);
        errores.open(QIODevice::WriteOnly);
        const int estado = ejecutaPrograma(QStringList{u"crear-tienda"_s} + argumentos, m_carpeta.path(), salida, errores);
        m_salida = salida.data().toStdString();
        m_errores = errores.data().toStdString();
        return estado;
    }
    [[nodiscard]] std::string ficheros(const QString& carpeta) const
    {
        return QDir{m_carpeta.filePath(carpeta)}.entryList(QDir::Files).join(u' ').toStdString();
    }
    void expectUso(const QStringList& argumentos, const std::string& comienzo)
    {
        EXPECT_EQ(corre(argumentos), SalidaUso);
        EXPECT_EQ(m_errores.substr(0, comienzo.size()), comienzo);
        EXPECT_EQ(m_salida, "");
        EXPECT_EQ(std::ranges::count(m_errores, '\n'), 1) << "one sentence: " << m_errores;
    }
    /// One sentence with the number of what cannot be opened or made.
    void expectError(const std::string& comienzo)
    {
        const std::string entero = "crear-tienda: error -2147467259: " + comienzo;
        EXPECT_EQ(m_errores.substr(0, entero.size()), entero);
        EXPECT_EQ(std::ranges::count(m_errores, '\n'), 1) << m_errores;
    }
    [[nodiscard]] QByteArray contenido(const QString& nombre) const
    {
        QFile fichero{ruta(nombre)};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll();
    }
    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }

    std::string m_salida;
    std::string m_errores;

private:
    QTemporaryDir m_carpeta;
};

TEST_F(Programa, WhatItDoesNotUnderstandItSaysInOneSentence)
{
    expectUso({u"--vacias"_s}, "crear-tienda: Opción desconocida: --vacias. Con --ayuda");
    expectUso({u"--vacia"_s, u"--motor"_s}, "crear-tienda: A --motor le falta su valor. ");
    expectUso({u"--vacia"_s, u"--motor"_s, u"oracle"_s}, "crear-tienda: No se conoce el motor \"oracle\"");
    expectUso({u"--vacia"_s, u"aqui"_s}, "crear-tienda: No se sabe qué hacer con \"aqui\"");
    expectUso({u"--vacia"_s, u"--dsn"_s, u"X"_s}, "crear-tienda: Con un origen de datos hay que indicar el servidor");
}

TEST_F(Programa, AnOutputThatTakesNothingIsAnError)
{
    QBuffer cerrada;
    QBuffer errores;
    errores.open(QIODevice::WriteOnly);
    EXPECT_EQ(ejecutaPrograma({u"crear-tienda"_s, u"--ayuda"_s}, ruta(u""_s), cerrada, errores), SalidaError);
    EXPECT_EQ(errores.data(), "crear-tienda: no se puede escribir en la salida estándar (no se sabe por qué).\n");
}

TEST_F(Programa, HelpIsInSpanishAndNoError)
{
    for (const QString& opcion : {u"--ayuda"_s, u"-h"_s, u"--help"_s}) {
        EXPECT_EQ(corre({opcion}), SalidaBien);
        EXPECT_EQ(m_salida.substr(0, 18), "Uso: crear-tienda ");
        EXPECT_NE(m_salida.find("--reemplazar"), std::string::npos);
        EXPECT_EQ(m_errores, "");
    }
}

TEST_F(Programa, EmptyDatabasesAreMadeInTheFolderNamed)
{
    EXPECT_EQ(corre({u"--vacia"_s, u"--datos"_s, ruta(u"mi carpeta"_s)}), SalidaBien);
    EXPECT_EQ(ficheros(u"mi carpeta"_s), "ListKestrane.db TiendaKestrane.db");
    EXPECT_EQ(std::ranges::count(m_salida, '\n'), 2);
    EXPECT_EQ(m_errores, "");
}

TEST_F(Programa, WithoutAFolderTheyGoWhereTheProgramsLook)
{
    EXPECT_EQ(corre({u"--vacia"_s}), SalidaBien);
    EXPECT_EQ(ficheros(u"datos"_s), "ListKestrane.db TiendaKestrane.db");
}

TEST_F(Programa, OneDatabaseThatIsThereKeepsBothFromBeingMade)
{
    QDir{}.mkpath(ruta(u"datos"_s));
    QFile vieja{ruta(u"datos/ListKestrane.db"_s)};
    ASSERT_TRUE(vieja.open(QIODevice::WriteOnly));
    vieja.write("vieja");
    vieja.close();
    EXPECT_EQ(corre({u"--vacia"_s}), SalidaError);
    expectError("Ya existe la base de datos \"");
    EXPECT_NE(m_errores.find("--reemplazar"), std::string::npos);
    EXPECT_EQ(ficheros(u"datos"_s), "ListKestrane.db");
    EXPECT_EQ(corre({u"--vacia"_s, u"--reemplazar"_s}), SalidaBien);
    EXPECT_GT(QFileInfo{ruta(u"datos/ListKestrane.db"_s)}.size(), 1000);
}

TEST_F(Programa, AFolderThatCannotBeMadeIsAnErrorAndNothingStays)
{
    QFile estorbo{ruta(u"datos"_s)};
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    EXPECT_EQ(corre({u"--vacia"_s}), SalidaError);
    expectError("No se puede escribir la base de datos \"");
    EXPECT_EQ(m_salida, "");
}

TEST_F(Programa, WhenOneOfThemIsLockedBothStayAsTheyWere)
{
    for (const QString& nombre : {u"TiendaKestrane.db"_s, u"ListKestrane.db"_s}) {
        ASSERT_EQ(corre({u"--vacia"_s, u"--reemplazar"_s}), SalidaBien) << m_errores;
        const QByteArray tienda = contenido(u"datos/TiendaKestrane.db"_s);
        const QDateTime listados = QFileInfo{ruta(u"datos/ListKestrane.db"_s)}.lastModified();
        {
            database::sqlite::SqliteMotor otro{{.fichero = ruta(u"datos/"_s + nombre)}};
            ejecuta(otro, u"BEGIN IMMEDIATE"_s);
            EXPECT_EQ(corre({u"--tamano"_s, u"dia"_s, u"--reemplazar"_s}), SalidaError);
            ejecuta(otro, u"ROLLBACK"_s);
        }
        EXPECT_NE(m_errores.find("bloqueada por otro programa"), std::string::npos) << m_errores;
        EXPECT_EQ(m_salida, "");
        EXPECT_EQ(ficheros(u"datos"_s), "ListKestrane.db TiendaKestrane.db");
        EXPECT_EQ(contenido(u"datos/TiendaKestrane.db"_s), tienda);
        EXPECT_EQ(QFileInfo{ruta(u"datos/ListKestrane.db"_s)}.lastModified(), listados);
    }
}

TEST_F(Programa, OfAllFoldersThatWereMadeNoneStaysBehindAFailure)
{
    const QString larga{200, u'x'}; // three of them are more than the engine opens
    EXPECT_EQ(corre({u"--vacia"_s, u"--datos"_s, ruta(u"n1/"_s + larga + u'/' + larga + u'/' + larga)}), SalidaError);
    EXPECT_FALSE(QFile::exists(ruta(u"n1"_s)));
}

TEST_F(Programa, ADataSourceThatIsNotDefinedIsAnError)
{
    EXPECT_EQ(corre({u"--vacia"_s, u"--motor"_s, u"mariadb"_s, u"--dsn"_s, u"NoExiste"_s}), SalidaError);
    expectError("El origen de datos ODBC \"NoExiste\" no exist");
}

/// A run on whose clock a second passes with each look.
class ProgramaLento : public Programa
{
protected:
    ProgramaLento() { m_terminal.open(QIODevice::WriteOnly); }

    int correDespacio(DestinoErrores destino, const QStringList& argumentos)
    {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        Avisos avisos{u"crear-tienda"_s, m_terminal, destino, [this] { return m_ahora += 1000; }};
        return ejecutaPrograma(QStringList{u"crear-tienda"_s, u"--datos"_s, ruta(u"datos"_s)} + argumentos, {}, salida, avisos);
    }
    [[nodiscard]] std::string dicho() const { return m_terminal.data().toStdString(); }

private:
    QBuffer m_terminal;
    qint64 m_ahora = 0;
};

TEST_F(ProgramaLento, OnATerminalTheDaysOfADemoShopAreCountedOnALineThatVanishes)
{
    EXPECT_EQ(correDespacio(DestinoErrores::Terminal, {u"--tamano"_s, u"mes"_s}), SalidaBien);
    const std::string comienzo = "Generando los días de la tienda: 1\r\x1b[KGenerando los días de la tienda: 2\r\x1b[K";
    EXPECT_EQ(dicho().substr(0, comienzo.size()), comienzo);
    EXPECT_NE(dicho().find("Generando los días de la tienda: 31\r"), std::string::npos) << "a month has as many at least";
    EXPECT_TRUE(dicho().ends_with("\r\x1b[K")) << dicho();
    EXPECT_EQ(dicho().find('\n'), std::string::npos);
}

TEST_F(ProgramaLento, InAFileThereIsNothing)
{
    EXPECT_EQ(correDespacio(DestinoErrores::Fichero, {u"--tamano"_s, u"dia"_s}), SalidaBien);
    EXPECT_EQ(dicho(), "");
}

} // namespace
} // namespace kestrane::instalacion
