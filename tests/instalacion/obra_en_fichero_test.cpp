#include "instalacion/lectura.h"
#include "instalacion/obra.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrane::instalacion {
namespace {

using namespace Qt::StringLiterals;

class ObraEnFichero : public testing::Test
{
protected:
    [[nodiscard]] QString ruta(const QString& nombre = u"TiendaKestrane.db"_s) const { return m_carpeta.filePath(nombre); }
    [[nodiscard]] std::string ficheros(const QString& carpeta = {}) const
    {
        const QDir dir{carpeta.isEmpty() ? m_carpeta.path() : carpeta};
        return dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(u' ').toStdString();
    }
    static void escribe(const QString& ruta, const QByteArray& contenido)
    {
        QFile fichero{ruta};
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(contenido);
    }

    static QByteArray contenido(const QString& ruta)
    {
        QFile fichero{ruta};
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly));
        return fichero.readAll();
    }

private:
    QTemporaryDir m_carpeta;
};

void hace(const BaseEsquema& base, const QString& ruta)
{
    const auto obra = obraEnFichero(base, ruta);
    obra->construye({});
    obra->termina();
    obra->confirma();
}

TEST_F(ObraEnFichero, TheFileHoldsTheSchema)
{
    for (const BaseEsquema* const base : {&baseTienda(), &baseListados()}) {
        const QString suya = ruta(QString{base->dsn} + u".db"_s);
        hace(*base, suya);
        database::sqlite::SqliteMotor motor{{.fichero = suya}};
        expectEsquema(motor, *base);
    }
    EXPECT_EQ(ficheros(), "ListKestrane.db TiendaKestrane.db");
}

TEST_F(ObraEnFichero, ItIsNotThereUntilItIsFinished)
{
    {
        const auto obra = obraEnFichero(baseListados(), ruta());
        EXPECT_FALSE(obra->ocupada());
        obra->construye({});
        EXPECT_FALSE(QFile::exists(ruta()));
    }
    EXPECT_EQ(ficheros(), "") << "given up, it leaves nothing behind";
}

TEST_F(ObraEnFichero, ItsFolderIsMadeAndGoesAgainWhenNothingComesOfIt)
{
    const QString carpeta = ruta(u"una/otra"_s);
    {
        const auto obra = obraEnFichero(baseListados(), carpeta + u"/L.db"_s);
        obra->construye({});
        EXPECT_TRUE(QFile::exists(carpeta));
    }
    EXPECT_EQ(ficheros(), "") << "nor the folder around it";
    hace(baseListados(), carpeta + u"/L.db"_s);
    EXPECT_EQ(ficheros(carpeta), "L.db");
}

TEST_F(ObraEnFichero, AFileThatIsThereStaysUntilItsSuccessorIsFinishedAndTakesItsLogsAlong)
{
    escribe(ruta(), "vieja");
    escribe(ruta() + u"-wal"_s, "registro");
    escribe(ruta() + u"-shm"_s, "registro");
    const auto obra = obraEnFichero(baseListados(), ruta());
    EXPECT_TRUE(obra->ocupada());
    obra->construye({});
    QFile vieja{ruta()};
    ASSERT_TRUE(vieja.open(QIODevice::ReadOnly));
    EXPECT_EQ(vieja.readAll(), "vieja");
    obra->termina();
    obra->confirma();
    EXPECT_EQ(ficheros(), "TiendaKestrane.db");
    database::sqlite::SqliteMotor motor{{.fichero = ruta()}};
    expectEsquema(motor, baseListados());
}

TEST_F(ObraEnFichero, UntilItIsConfirmedTheFileThatWasThereComesBack)
{
    hace(baseTienda(), ruta());
    const QByteArray antes = contenido(ruta());
    {
        const auto obra = obraEnFichero(baseListados(), ruta());
        obra->construye({});
        obra->termina();
        EXPECT_NE(contenido(ruta()), antes);
    }
    EXPECT_EQ(contenido(ruta()), antes);
    EXPECT_EQ(ficheros(), "TiendaKestrane.db");
}

TEST_F(ObraEnFichero, UntilItIsConfirmedItGoesAgainWhereNothingWas)
{
    {
        const auto obra = obraEnFichero(baseListados(), ruta(u"una/L.db"_s));
        obra->construye({});
        obra->termina();
    }
    EXPECT_EQ(ficheros(), "");
}

TEST_F(ObraEnFichero, AFillThatFailsLeavesWhatWasThere)
{
    hace(baseListados(), ruta());
    const QByteArray antes = contenido(ruta());
    {
        const auto obra = obraEnFichero(baseListados(), ruta());
        EXPECT_THROW(obra->construye([](Carga&) { throw std::runtime_error{"en medio"}; }), std::runtime_error);
    }
    EXPECT_EQ(contenido(ruta()), antes);
    EXPECT_EQ(ficheros(), "TiendaKestrane.db");
}

TEST_F(ObraEnFichero, AFileThatAnotherProgramHasLockedIsNotReplaced)
{
    hace(baseListados(), ruta());
    database::sqlite::SqliteMotor otro{{.fichero = ruta()}};
    ejecuta(otro, u"BEGIN IMMEDIATE"_s);
    const auto obra = obraEnFichero(baseListados(), ruta());
    obra->construye({});
    EXPECT_THROW(obra->termina(), ErrorEjecucion);
    ejecuta(otro, u"ROLLBACK"_s);
}

TEST_F(ObraEnFichero, AReportsDatabaseThatAProgramHasOpenIsNotReplacedAndKeepsItsLog)
{
    hace(baseListados(), ruta());
    database::sqlite::SqliteMotor otro{{.fichero = ruta(), .uso = database::sqlite::Uso::Listados}};
    ejecuta(otro, u"insert into listadostemporal (list1) values ('7')"_s);
    ASSERT_GT(QFileInfo{ruta() + u"-wal"_s}.size(), 0);
    {
        const auto obra = obraEnFichero(baseListados(), ruta());
        obra->construye({});
        EXPECT_THROW(obra->termina(), ErrorEjecucion);
    }
    EXPECT_GT(QFileInfo{ruta() + u"-wal"_s}.size(), 0);
    EXPECT_EQ(ficheros(), "TiendaKestrane.db TiendaKestrane.db-shm TiendaKestrane.db-wal");
}

TEST_F(ObraEnFichero, WhatAnInterruptedRunLeftIsNoObstacle)
{
    const QString proceso = QString::number(QCoreApplication::applicationPid());
    escribe(ruta(), "vieja");
    escribe(ruta() + u".nueva-"_s + proceso, "restos");
    escribe(ruta() + u".anterior-"_s + proceso, "restos");
    hace(baseListados(), ruta());
    EXPECT_EQ(ficheros(), "TiendaKestrane.db");
}

TEST_F(ObraEnFichero, AFolderThatCannotBeWrittenIsToldWithWhatToDo)
{
    escribe(ruta(u"fichero"_s), "no es una carpeta");
    const auto obra = obraEnFichero(baseListados(), ruta(u"fichero/L.db"_s));
    try {
        obra->construye({});
        ADD_FAILURE() << "it was made";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::ConexionImposible);
        EXPECT_TRUE(error.descripcion().startsWith(u"No se puede escribir la base de datos \"")) << error.what();
        EXPECT_TRUE(error.descripcion().contains(u"elija con --datos una carpeta")) << error.what();
    }
}

TEST_F(ObraEnFichero, APipeInItsPlaceStaysAPipe)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(ruta(u"L.db"_s)).constData(), 0600), 0);
    EXPECT_THROW(obraEnFichero(baseListados(), ruta(u"L.db"_s))->construye({}), ErrorEjecucion);
    struct stat estado = {};
    ASSERT_EQ(stat(QFile::encodeName(ruta(u"L.db"_s)).constData(), &estado), 0);
    EXPECT_TRUE(S_ISFIFO(estado.st_mode));
}

TEST_F(ObraEnFichero, ALinkStaysAndLeadsToTheNewFile)
{
    ASSERT_EQ(symlink("otra.db", QFile::encodeName(ruta(u"L.db"_s)).constData()), 0);
    const auto obra = obraEnFichero(baseListados(), ruta(u"L.db"_s));
    obra->construye({});
    obra->termina();
    obra->confirma();
    EXPECT_TRUE(QFileInfo{ruta(u"L.db"_s)}.isSymLink());
    QFile escrita{ruta(u"otra.db"_s)};
    ASSERT_TRUE(escrita.open(QIODevice::ReadOnly));
    EXPECT_TRUE(escrita.read(15) == "SQLite format 3");
}

} // namespace
} // namespace kestrane::instalacion
