#include "platform/database/clave_espanol.h"

#include "platform/database/pesos_espanol.h"

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

void anadeLetra(QByteArray& destino, quint32 letra)
{
    destino.append(static_cast<char>(letra / Hueco));
    const quint32 resto = letra % Hueco;
    if (resto == 0)
        return;
    destino.append(Tras);
    for (int desplaza = 16; desplaza >= 0; desplaza -= 8)
        destino.append(static_cast<char>(resto >> desplaza));
}

void anade(QByteArray& letras, QByteArray& acentos, const Pesos& pesos)
{
    for (size_t i = 0; i < static_cast<size_t>(pesos.cuantos); ++i) {
        if (pesos.peso[i].letra != 0)
            anadeLetra(letras, pesos.peso[i].letra);
        if (pesos.peso[i].acento != 0)
            acentos.append(static_cast<char>(pesos.peso[i].acento));
    }
}

} // namespace

void anadeClave(QByteArray& destino, QStringView texto)
{
    QByteArray acentos;
    for (qsizetype i = 0; i < texto.size();)
        anade(destino, acentos, pesosDe(tomaCaracter(texto, i)));
    destino.append(Fin);
    // Texts without accents, which are most, end here: plain letters behind the last accent say nothing that the letters did not.
    while (acentos.endsWith(static_cast<char>(SinAcento)))
        acentos.chop(1);
    destino.append(acentos);
    destino.append(Fin);
}

} // namespace kestrane::database::espanol
