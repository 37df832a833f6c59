#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

#include <QString>

#include <concepts>

/// The platform's conversions. Those that follow regional settings take them as an argument; nothing here reads the machine.
namespace kestrane {

/// The text of a value that is joined into a text: Null gives "", a flag "Verdadero" or "Falso", numbers and dates as below.
[[nodiscard]] QString aTexto(const Valor& valor, const ConfiguracionRegional& regional);
/// Up to 15 significant digits, no trailing zeros, regional decimal mark, no thousands mark; "1E+15" from 1E+15 on, "1,5E-05"
/// below 1E-4; -0 writes "0". Error 6 for an infinity and for what is no number: arithmetic that ran over must not become a text.
[[nodiscard]] QString aTexto(double numero, const ConfiguracionRegional& regional);
[[nodiscard]] QString aTexto(qint32 numero, const ConfiguracionRegional& regional);
/// "Verdadero" or "Falso". A template so that neither numbers nor pointers turn into a flag.
template<std::same_as<bool> B>
[[nodiscard]] QString aTexto(B logico, const ConfiguracionRegional&)
{
    return logico ? QStringLiteral("Verdadero") : QStringLiteral("Falso");
}
/// The regional short date, two digits for day and month and four for the year; a time other than midnight adds " H:mm:ss"; the
/// zero day writes the time alone ("0:00:00" for the zero date itself).
[[nodiscard]] QString aTexto(Fecha fecha, const ConfiguracionRegional& regional);

/// Strict reading: blanks around, a sign before, the regional decimal mark, an exponent. Thousands marks only between groups of
/// exactly three digits, the first group not beginning with 0 ("1.234,5" but neither "12.5" nor "0.500" in Spanish). Error 13 for
/// anything else, error 6 for a number too large.
[[nodiscard]] double aDoble(QStringView texto, const ConfiguracionRegional& regional);
[[nodiscard]] inline double aDoble(const QString& texto, const ConfiguracionRegional& regional)
{
    return aDoble(QStringView{texto}, regional);
}
/// The lenient reading: blanks skipped, then the longest numeric prefix with a point as decimal mark, else 0. Never fails: a
/// number too large gives the largest one.
[[nodiscard]] double prefijoNumerico(QStringView texto);
/// A day "5/3/2024" in regional order, a time "9:05" or "9:05:00" (on the zero day), or both with blanks between.
///
/// Besides the regional mark "/" and "-" serve; a year of four digits may also stand first ("2024-03-05"). Years of one or two
/// digits are those of 1930 to 2029. Error 13 for anything else, days that do not exist included.
[[nodiscard]] Fecha aFecha(QStringView texto, const ConfiguracionRegional& regional);
[[nodiscard]] inline Fecha aFecha(const QString& texto, const ConfiguracionRegional& regional)
{
    return aFecha(QStringView{texto}, regional);
}

/// Rounded half to even; error 6 out of range (and for what is no number at all).
[[nodiscard]] qint16 aEntero16(double numero);
[[nodiscard]] qint32 aEntero32(double numero);

/// A value into a typed variable: Null is error 94, a text is read strictly with `regional`, a flag is -1 or 0, a date its
/// serial number of days (the time its fraction, counted forward before 30/12/1899 too), and a number the date of that serial
/// number; what is not 0 is true, and so is the text "Verdadero". Error 13 and 6 as above.
[[nodiscard]] double aDoble(const Valor& valor, const ConfiguracionRegional& regional);
[[nodiscard]] qint16 aEntero16(const Valor& valor, const ConfiguracionRegional& regional);
[[nodiscard]] qint32 aEntero32(const Valor& valor, const ConfiguracionRegional& regional);
[[nodiscard]] bool aLogico(const Valor& valor, const ConfiguracionRegional& regional);
[[nodiscard]] Fecha aFecha(const Valor& valor, const ConfiguracionRegional& regional);
/// The text form for a plain text variable: as the joining conversion, but Null is error 94.
[[nodiscard]] QString aTextoEstricto(const Valor& valor, const ConfiguracionRegional& regional);

/// The quotient; error 11 when the divisor is 0, error 6 when the quotient is too large.
[[nodiscard]] double divide(double dividendo, double divisor);

/// A number as it goes into statement text: the platform's conversion with the decimal mark turned into ".".
[[nodiscard]] QString numeroParaSql(double numero, const ConfiguracionRegional& regional);
/// A day as it goes into statement text between "#" marks: "mm/dd/yyyy", whatever the regional settings. The time is left out.
[[nodiscard]] QString fechaParaSql(Fecha fecha);

/// A 16-bit counter: every addition rounds half to even, and passing 32767 (or -32768) is error 6.
class Contador16
{
public:
    constexpr Contador16() = default;
    explicit Contador16(double inicial) : m_valor{aEntero16(inicial)} {}

    Contador16& operator+=(double sumando);
    Contador16& operator-=(double sustraendo);
    [[nodiscard]] constexpr qint16 valor() const { return m_valor; }

    friend constexpr auto operator<=>(Contador16, Contador16) = default;

private:
    qint16 m_valor = 0;
};

} // namespace kestrane
