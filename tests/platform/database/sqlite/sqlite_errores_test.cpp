#include "platform/database/sqlite/sqlite_errores.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace kestrane::database::sqlite {
namespace {

using namespace Qt::StringLiterals;
using Categoria = ErrorMotor::Categoria;

const QString Fichero = u"/datos/Tienda.db"_s;

ErrorMotor error(int codigo)
{
    return errorDe(nullptr, codigo, Fichero, ErrorEjecucion::SentenciaRechazada);
}

TEST(SqliteErrores, CodesThatAnOperatorCanActOnSayWhatWhereAndHow)
{
    for (const auto& [codigo, categoria, consejo] : {std::tuple{SQLITE_BUSY, Categoria::Ocupada, u"Espere"_s},
                                                     {SQLITE_BUSY_RECOVERY, Categoria::Ocupada, u"Espere"_s},
                                                     {SQLITE_PROTOCOL, Categoria::Ocupada, u"Espere"_s},
                                                     {SQLITE_READONLY, Categoria::SoloLectura, u"permiso"_s},
                                                     {SQLITE_READONLY_DIRECTORY, Categoria::SoloLectura, u"permiso"_s},
                                                     {SQLITE_CANTOPEN, Categoria::SoloLectura, u"Compruebe"_s},
                                                     {SQLITE_FULL, Categoria::SinSitio, u"Libere"_s},
                                                     {SQLITE_NOTADB, Categoria::Danada, u"copia de seguridad"_s},
                                                     {SQLITE_CORRUPT, Categoria::Danada, u"copia de seguridad"_s},
                                                     {SQLITE_IOERR_READ, Categoria::ConexionPerdida, u"Compruebe"_s},
                                                     {SQLITE_READONLY_DBMOVED, Categoria::ConexionPerdida, u"Abra"_s}}) {
        const ErrorMotor traducido = error(codigo);
        EXPECT_EQ(traducido.categoria(), categoria) << codigo;
        EXPECT_EQ(traducido.numero(), ErrorEjecucion::SentenciaRechazada) << codigo;
        EXPECT_TRUE(traducido.descripcion().contains(Fichero)) << codigo;
        EXPECT_TRUE(traducido.descripcion().contains(consejo)) << qPrintable(traducido.descripcion());
        EXPECT_FALSE(traducido.descripcion().contains(u'%')) << qPrintable(traducido.descripcion());
    }
}

TEST(SqliteErrores, OtherCodesBringTheEnginesText)
{
    EXPECT_EQ(error(SQLITE_CONSTRAINT_UNIQUE).categoria(), Categoria::Restriccion);
    EXPECT_EQ(error(SQLITE_ERROR).categoria(), Categoria::Sentencia);
    EXPECT_TRUE(error(SQLITE_ERROR).descripcion().contains(QString::fromUtf8(sqlite3_errstr(SQLITE_ERROR))));
}

TEST(SqliteErrores, AFileThatIsMissingIsNamedWithItsFolderAndTheWayOut)
{
    const ErrorMotor falta = ficheroQueFalta(Fichero);
    EXPECT_EQ(falta.numero(), ErrorEjecucion::ConexionImposible);
    for (const QString& parte : {u"\"Tienda\""_s, u"\"/datos\""_s, u"Tienda.db"_s, u"ODBC"_s})
        EXPECT_TRUE(falta.descripcion().contains(parte)) << qPrintable(parte);
}

} // namespace
} // namespace kestrane::database::sqlite
