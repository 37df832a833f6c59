#pragma once

#include <QChar>
#include <QStringView>
#include <QVarLengthArray>

namespace kestrane {

/// Walks a text and gathers the number that it begins with: a sign, digits, decimals, an exponent.
class LectorNumero
{
public:
    /// In place of a thousands mark where none is accepted.
    static constexpr QChar SinMiles{u'\0'};

    LectorNumero(QStringView texto, QChar marcaDecimal, QChar marcaMiles)
        : m_texto{texto}
        , m_marcaDecimal{marcaDecimal}
        , m_marcaMiles{marcaMiles}
    {
    }

    /// Reads as far as there is a number; false when there is none.
    [[nodiscard]] bool lee();
    /// True when what was read is the whole text.
    [[nodiscard]] bool alFinal() const { return m_lugar == m_texto.size(); }
    /// What was read; infinite when it is too large for a double.
    [[nodiscard]] double numero() const;

private:
    [[nodiscard]] QChar signo(qsizetype adelante = 0) const
    {
        const qsizetype lugar = m_lugar + adelante;
        return lugar < m_texto.size() ? m_texto[lugar] : QChar{};
    }
    void leeSigno();
    int leeCifras();
    int leeEnteras();
    int leeDecimales();
    void leeExponente();
    [[nodiscard]] bool esMarcaDeMiles(QChar signo) const;
    [[nodiscard]] bool sigueGrupo() const;
    [[nodiscard]] bool esEnorme() const;

    QStringView m_texto;
    QChar m_marcaDecimal;
    QChar m_marcaMiles;
    qsizetype m_lugar = 0;
    QVarLengthArray<char, 64> m_letras; ///< the number in the spelling of std::from_chars
};

} // namespace kestrane
