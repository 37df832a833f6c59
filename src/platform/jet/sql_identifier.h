#pragma once

#include <QByteArray>
#include <QStringView>

namespace kestrane::jet {

/// A name of a table, column or collation in text for an engine. The only place where names are quoted; a name that is told to a
/// function of the engine's stands between apostrophes.
class SqlIdentifier
{
public:
    explicit SqlIdentifier(QStringView nombre) : m_nombre{nombre} {}

    /// Writes the name between two `comilla`, doubling those inside it.
    void escribe(QByteArray& sql, char comilla) const;
    /// The same as a text of its own.
    [[nodiscard]] QByteArray entre(char comilla) const;

private:
    QStringView m_nombre;
};

} // namespace kestrane::jet
