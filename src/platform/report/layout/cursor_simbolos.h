#pragma once

#include "platform/report/layout/lexico_expresion.h"

namespace kestrane::report {

/// A place among the symbols of an expression, which a parser moves along. Both that it is made from outlive it.
class CursorSimbolos
{
public:
    CursorSimbolos(const QString& texto, const LugarLayout& lugar)
        : m_texto{texto}
        , m_lugar{lugar}
        , m_simbolos{simbolosDe(texto, lugar)}
    {
    }

    [[nodiscard]] const LugarLayout& lugar() const { return m_lugar; }
    [[nodiscard]] const Simbolo& actual() const { return m_simbolos[m_aqui]; }
    /// The symbol, which is not the last; the next one is the current one then.
    const Simbolo& consume() { return m_simbolos[m_aqui++]; }

    [[nodiscard]] bool esSigno(QStringView signo) const;
    /// Whether operators may be written so.
    [[nodiscard]] bool esOperador() const;
    /// Goes past the sign when it stands there.
    bool consumeSi(QStringView signo);
    /// The same; an error when it does not.
    void exige(QStringView signo);

    /// ErrorEjecucion LayoutIncorrecto at the symbol.
    [[noreturn]] void fallaEn(const Simbolo& simbolo, const QString& que) const;
    /// At the current one.
    [[noreturn]] void falla(const QString& que) const { fallaEn(actual(), que); }
    /// That, and what stands there instead.
    [[noreturn]] void esperaba(const QString& que) const;

private:
    const QString& m_texto;
    const LugarLayout& m_lugar;
    std::vector<Simbolo> m_simbolos;
    size_t m_aqui = 0;
};

} // namespace kestrane::report
