#pragma once

#include <QString>
#include <QTemporaryDir>

#include <string>

namespace kestrane::database::sqlite {

/// An embedded file in a folder of its own, made by plain statements of the engine.
class BaseDePrueba
{
public:
    explicit BaseDePrueba(const char* sql);

    [[nodiscard]] QString fichero() const { return m_carpeta.filePath(QStringLiteral("Prueba.db")); }
    [[nodiscard]] QString carpeta() const { return m_carpeta.path(); }
    /// Takes the file out of its place, or puts it back.
    void renombra() const;
    /// Runs statements on a connection of its own.
    void ejecuta(const char* sql) const;
    /// The first column of the rows, "|" behind each; Null as "NULL".
    [[nodiscard]] std::string consulta(const char* sql) const;

private:
    QTemporaryDir m_carpeta;
};

} // namespace kestrane::database::sqlite
