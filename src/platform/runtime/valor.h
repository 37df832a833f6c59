#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

#include <utility>
#include <variant>

namespace kestrane {

/// The absent value of a database column: not 0, not the empty text.
struct Nulo
{
    friend constexpr bool operator==(Nulo, Nulo) = default;
};

/// One value of a field or of a working variable: Null, flag, 16-bit, 32-bit, double, date or text.
///
/// Equality is of kind and content (0 as a double is not 0 as a 32-bit number, Null equals Null): it serves tests and change
/// detection, not the comparisons of a report, which go through the typed readers below.
class Valor
{
public:
    /// In the order of the variant's alternatives.
    enum class Clase { Nulo, Logico, Entero16, Entero32, Doble, Fecha, Texto };

    Valor() = default;
    Valor(Nulo) {}
    Valor(bool logico) : m_dato{logico} {}
    Valor(qint16 entero) : m_dato{entero} {}
    Valor(qint32 entero) : m_dato{entero} {}
    Valor(double doble) : m_dato{doble} {}
    Valor(Fecha fecha) : m_dato{fecha} {}
    Valor(QString texto) : m_dato{std::move(texto)} {}
    Valor(QStringView texto) : m_dato{texto.toString()} {}
    template<class T>
    Valor(T*) = delete; // a pointer would become a flag

    [[nodiscard]] Clase clase() const { return static_cast<Clase>(m_dato.index()); }
    [[nodiscard]] bool esNulo() const { return m_dato.index() == 0; }
    /// The variant itself, for std::visit.
    [[nodiscard]] const auto& dato() const { return m_dato; }

    // Typed readers. Null raises error 94. Numbers and flags convert into one another (a flag is -1 or 0, doubles are rounded half
    // to even, error 6 when they do not fit). A text or a date is no number and a number is no text here: error 13. Conversions
    // between texts and the rest follow regional settings and stand in conversiones.h.
    [[nodiscard]] bool logico() const;
    [[nodiscard]] qint16 entero16() const;
    [[nodiscard]] qint32 entero32() const;
    [[nodiscard]] double doble() const;
    [[nodiscard]] Fecha fecha() const;
    [[nodiscard]] const QString& texto() const;

    friend bool operator==(const Valor&, const Valor&) = default;

private:
    std::variant<Nulo, bool, qint16, qint32, double, Fecha, QString> m_dato;
};

} // namespace kestrane
