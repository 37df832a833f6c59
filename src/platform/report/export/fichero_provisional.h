#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>

namespace kestrane::report {

/// A folder beside the files that are to be written, for what cannot be written through an open file. It goes with the object, and
/// with it what was not handed over.
class CarpetaProvisional
{
public:
    /// Beside `fichero`. ErrorDeSalida when its folder does not take one.
    explicit CarpetaProvisional(const QString& fichero);

    [[nodiscard]] QString ruta(const QString& nombre) const { return m_carpeta.filePath(nombre); }
    [[nodiscard]] QString ruta() const { return m_carpeta.path(); }
    /// Makes a file of the folder, which `escritura` fills and which is closed when the disk has taken it. ErrorDeSalida that names
    /// `destino`, the name that it is to have.
    void escribe(const QString& nombre, const QString& destino, const std::function<void(QFile&)>& escritura) const;
    /// Gives the file `nombre` of the folder its place and name, over the file that lay there and with its permissions; of a link,
    /// where it leads to. ErrorDeSalida, also where something else than a file lies.
    void entrega(const QString& nombre, const QString& destino) const;

private:
    QTemporaryDir m_carpeta;
};

/// A name as the standard library takes it.
[[nodiscard]] std::filesystem::path comoRuta(const QString& nombre);

/// ErrorDeSalida that names the file.
[[noreturn]] void noSePuedeEscribir(const QString& fichero, const QString& motivo);

} // namespace kestrane::report
