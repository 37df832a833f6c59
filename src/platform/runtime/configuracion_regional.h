#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace kestrane {

/// The regional settings that conversions follow: a plain value, handed to whoever converts.
///
/// Digits are always 0 to 9, so the decimal mark is "," or "." (and "." where a locale pairs another mark with other digits).
/// `delSistema` reads the machine's; where the system has no locale (C, POSIX) Spanish (Spain) holds. Tests and
/// `--regional` name one with `deNombre` and never read the machine's.
struct ConfiguracionRegional
{
    enum class OrdenFecha { DiaMesAnio, MesDiaAnio, AnioMesDia };

    QString nombre; ///< "es_ES"
    QChar marcaDecimal{u','};
    QChar marcaMiles{u'.'}; ///< accepted by strict reading, never written
    QChar marcaFecha{u'/'};
    OrdenFecha ordenFecha = OrdenFecha::DiaMesAnio;
    int primerDiaSemana = 1;                 ///< 1 Monday .. 7 Sunday
    std::array<QString, 12> meses;           ///< "enero" .., as they stand alone
    std::array<QString, 12> mesesAbreviados; ///< "ene" ..
    int decimales = 2;                       ///< of amounts of money, where nothing else says how many

    [[nodiscard]] static ConfiguracionRegional espania();
    [[nodiscard]] static ConfiguracionRegional delSistema();
    /// The settings of a locale name such as "es_ES", "en_US" or "es"; nothing for an unknown language, for a country that has no
    /// settings of that language, and for "C": nobody gets another country's date order unawares.
    [[nodiscard]] static std::optional<ConfiguracionRegional> deNombre(const QString& nombre);

    friend bool operator==(const ConfiguracionRegional&, const ConfiguracionRegional&) = default;
};

} // namespace kestrane
