#pragma once

#include <QtGlobal>

#include <compare>

namespace kestrane::database {

class Recordset;

/// The number of rows of a recordset, asked lazily: a comparison reads no more rows than settle it, so that the usual test for more
/// than 0 reads one. As a number it is exact and reads all.
class Recuento
{
public:
    explicit Recuento(Recordset& filas) : m_filas{filas} {}

    [[nodiscard]] qint32 exacto() const;
    operator qint32() const { return exacto(); }

    // Templates, so that no integer type prefers the built-in comparison after a conversion to a number.
    template<class Entero>
    friend bool operator==(Recuento recuento, Entero numero)
    {
        return recuento.alMenos(numero) && !recuento.alMenos(qint64{numero} + 1);
    }
    template<class Entero>
    friend std::strong_ordering operator<=>(Recuento recuento, Entero numero)
    {
        if (!recuento.alMenos(numero))
            return std::strong_ordering::less;
        return recuento.alMenos(qint64{numero} + 1) ? std::strong_ordering::greater : std::strong_ordering::equal;
    }
    template<class Entero>
    friend bool operator>(Recuento recuento, Entero numero)
    {
        return recuento.alMenos(qint64{numero} + 1);
    }
    template<class Entero>
    friend bool operator>=(Recuento recuento, Entero numero)
    {
        return recuento.alMenos(numero);
    }
    template<class Entero>
    friend bool operator<(Recuento recuento, Entero numero)
    {
        return !recuento.alMenos(numero);
    }
    template<class Entero>
    friend bool operator<=(Recuento recuento, Entero numero)
    {
        return !recuento.alMenos(qint64{numero} + 1);
    }

private:
    /// True when there are at least that many rows; none are read for 0 or less.
    [[nodiscard]] bool alMenos(qint64 filas) const;

    Recordset& m_filas;
};

} // namespace kestrane::database
