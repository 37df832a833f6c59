#pragma once

#include "platform/runtime/fecha.h"

#include <QByteArray>
#include <QString>

namespace kestrane::bench {

/// What a cash report is asked for, and what heads its rows.
struct PeriodoDeCaja
{
    QString desde; ///< "2024-03-01"
    QString hasta;

    [[nodiscard]] bool esDeUnDia() const { return desde == hasta; }
    /// "between '...' and '...'", the dates in quotes.
    [[nodiscard]] QString entre() const { return QStringLiteral("BETWEEN '%1' AND '%2'").arg(desde, hasta); }
    [[nodiscard]] static Fecha dia(const QString& texto)
    {
        return *Fecha::deCalendario(texto.first(4).toInt(), texto.mid(5, 2).toInt(), texto.mid(8, 2).toInt());
    }
};

inline const QString Empresa = QStringLiteral("Peluquería Núñez");
inline const QString Direccion = QStringLiteral("Calle de la Constitución, 12");
inline const QString Cif = QStringLiteral("B46123456");
/// The day on which the report is made.
inline const QString Hoy = QStringLiteral("2024-06-14");

} // namespace kestrane::bench
