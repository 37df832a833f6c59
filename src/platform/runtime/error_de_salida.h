#pragma once

#include <QByteArrayView>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

#include <stdexcept>

namespace kestrane {

/// An output cannot be written (disk full, pipe closed): nothing more can be said there.
class ErrorDeSalida : public std::runtime_error
{
public:
    explicit ErrorDeSalida(const QString& motivo) : std::runtime_error{motivo.toStdString()} {}
    /// Why, for the middle of a Spanish sentence.
    [[nodiscard]] QString motivo() const { return QString::fromUtf8(what()); }
};

/// Writes all of `bytes`. ErrorDeSalida when `destino` does not take them.
void escribeTodo(QIODevice& destino, QByteArrayView bytes);

/// Gives the file its name when the disk has taken all of it. ErrorDeSalida that names it otherwise; it vanishes with the object
/// then.
void confirma(QSaveFile& fichero);

} // namespace kestrane
