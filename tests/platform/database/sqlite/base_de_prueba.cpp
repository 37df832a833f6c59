#include "platform/database/sqlite/base_de_prueba.h"

#include "platform/database/sqlite/sqlite_recursos.h"

#include <QFile>

#include <gtest/gtest.h>

namespace kestrane::database::sqlite {

namespace {

Base abierta(const QString& fichero)
{
    sqlite3* base = nullptr;
    EXPECT_EQ(sqlite3_open(fichero.toUtf8().constData(), &base), SQLITE_OK);
    return Base{base};
}

} // namespace

BaseDePrueba::BaseDePrueba(const char* sql)
{
    ejecuta(sql);
}

void BaseDePrueba::renombra() const
{
    const QString apartado = fichero() + QStringLiteral(".aparte");
    EXPECT_TRUE(QFile::exists(fichero()) ? QFile::rename(fichero(), apartado) : QFile::rename(apartado, fichero()));
}

void BaseDePrueba::ejecuta(const char* sql) const
{
    const Base base = abierta(fichero());
    EXPECT_EQ(sqlite3_exec(base.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base.get());
}

std::string BaseDePrueba::consulta(const char* sql) const
{
    const Base base = abierta(fichero());
    std::string texto;
    const auto anade = [](void* destino, int, char** valores, char**) {
        *static_cast<std::string*>(destino) += std::string{valores[0] ? valores[0] : "NULL"} + "|";
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(base.get(), sql, anade, &texto, nullptr), SQLITE_OK) << sqlite3_errmsg(base.get());
    return texto;
}

} // namespace kestrane::database::sqlite
