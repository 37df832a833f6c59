#include "instalacion/lectura.h"
#include "instalacion/obra.h"
#include "platform/database/sqlite/sqlite_motor.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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

private:
    QTemporaryDir m_carpeta;
};

void hace(const BaseEsquema& base, const QString& ruta)
{
    const auto obra = obraEnFichero(base, ruta);
    obra->construye({});
    obra->termina();
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
    EXPECT_FALSE(QFile::exists(carpeta));
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
    EXPECT_EQ(ficheros(), "TiendaKestrane.db");
    database::sqlite::SqliteMotor motor{{.fichero = ruta()}};
    expectEsquema(motor, baseListados());
}

TEST_F(ObraEnFichero, WhatAnInterruptedRunLeftIsNoObstacle)
{
    escribe(ruta() + u".nueva"_s, "restos");
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

} // namespace
} // namespace kestrane::instalacion
