#include "platform/database/clave_espanol.h"

#include "platform/database/pesos_espanol.h"

#include <QVarLengthArray>

#include <array>

namespace kestrane::database::espanol {

namespace {

constexpr char Fin = 0;
/// Room between two letters for all code points, as pesosDe deals them out.
constexpr quint32 Hueco = 0x200000;
/// Marks that a character stands behind its letter; greater than any letter's place.
constexpr char Tras = '\xFF';

/// The character at `i`, which moves behind it. An n with a tilde behind it is a letter of its own.
char32_t tomaCaracter(QStringView texto, qsizetype& i)
{
    const QChar c = texto[i++];
    if (c.isHighSurrogate() && i < texto.size() && texto[i].isLowSurrogate())
        return QChar::surrogateToUcs4(c, texto[i++]);
    constexpr char16_t TildeSuelta = 0x0303;
    if ((c.unicode() | 0x20) == u'n' && i < texto.size() && texto[i] == QChar{TildeSuelta}) {
        ++i;
        return U'ñ';
    }
    return c.unicode();
}

using Bytes = QVarLengthArray<char, 64>;

void anadeLetra(Bytes& destino, quint32 letra)
{
    destino.append(static_cast<char>(letra / Hueco));
    const quint32 resto = letra % Hueco;
    if (resto == 0)
        return;
    destino.append(Tras);
    for (int desplaza = 16; desplaza >= 0; desplaza -= 8)
        destino.append(static_cast<char>(resto >> desplaza));
}

void anade(Bytes& letras, Bytes& acentos, const Pesos& pesos)
{
    for (size_t i = 0; i < static_cast<size_t>(pesos.cuantos); ++i) {
        if (pesos.peso[i].letra != 0)
            anadeLetra(letras, pesos.peso[i].letra);
        if (pesos.peso[i].acento != 0)
            acentos.append(static_cast<char>(pesos.peso[i].acento));
    }
}

/// What a character of one letter with at most one accent adds; a letter of 0 is none of them.
struct Sencillo
{
    char letra = 0;
    char acento = 0;
    char marca = 0; ///< a second accent, 0 for none
};
using Sencillos = std::array<Sencillo, LimiteSimples>;

Sencillos calculaSencillos()
{
    Sencillos sencillos;
    for (char32_t c = 0; c < LimiteSimples; ++c) {
        Bytes letras;
        Bytes acentos;
        anade(letras, acentos, pesosDe(c));
        if (letras.size() == 1 && (acentos.size() == 1 || acentos.size() == 2))
            sencillos[c] = {letras[0], acentos[0], acentos.size() == 2 ? acentos[1] : Fin};
    }
    return sencillos;
}

} // namespace

void anadeClave(QByteArray& destino, QStringView texto)
{
    static const Sencillos sencillos = calculaSencillos();
    Bytes letras;
    Bytes acentos;
    for (qsizetype i = 0; i < texto.size();) {
        const char32_t c = tomaCaracter(texto, i);
        const Sencillo sencillo = c < LimiteSimples ? sencillos[c] : Sencillo{};
        if (sencillo.letra == 0) {
            anade(letras, acentos, pesosDe(c));
            continue;
        }
        letras.append(sencillo.letra);
        acentos.append(sencillo.acento);
        if (sencillo.marca != 0)
            acentos.append(sencillo.marca);
    }
    // Plain letters behind the last accent say nothing that the letters did not.
    while (!acentos.isEmpty() && acentos.last() == static_cast<char>(SinAcento))
        acentos.removeLast();
    letras.append(Fin);
    acentos.append(Fin);
    destino.append(letras.constData(), letras.size()).append(acentos.constData(), acentos.size());
}

} // namespace kestrane::database::espanol
