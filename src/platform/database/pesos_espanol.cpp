#include "platform/database/pesos_espanol.h"

#include <QChar>
#include <QString>

#include <string_view>

namespace kestrane::database::espanol {

namespace {

/// All characters with a place of their own, in order: blanks, punctuation, symbols, currencies, digits, letters.
constexpr std::u16string_view Orden =
    u"\t\n\v\f\r\u0085 _-\u2010\u2011\u2012\u2013\u2014\u2015,;:!\u00A1?\u00BF.\u00B7'\u2018\u2019\u201A\u2039\u203A"
    u"\"\u201C\u201D\u201E\u00AB\u00BB()[]{}\u00A7\u00B6@*/\\&#%\u2030\u2020\u2021\u2022"
    u"`\u00B4^\u00AF\u00A8\u00B8\u00B0\u00A9\u00AE+\u00B1\u00F7\u00D7<=>\u00AC|\u00A6~\u2044"
    u"\u00A4\u00A2$\u00A3\u00A5\u20AC0123456789"
    u"abcdefghi\u0131jklmn\u00F1\u014Bopq\u0138rst\u0167uvwxyz\u00FE";

/// The last of its kind in Orden: behind it come the others of that kind, by code point.
constexpr char16_t UltimaPuntuacion = u'\u2022';
constexpr char16_t UltimoSimbolo = u'\u2044';
constexpr char16_t UltimaMoneda = u'\u20AC';
constexpr char16_t UltimaLetra = u'\u00FE';

constexpr quint32 lugar(char16_t c)
{
    return static_cast<quint32>(Orden.find(c) + 1);
}

/// Room between two places for all code points.
constexpr quint32 Hueco = 0x200000;

constexpr Peso letra(char16_t c, quint8 acento = SinAcento)
{
    return {lugar(c) * Hueco, acento};
}

/// Marks in order. A slash stands for the strokes through o and d, l, h, which are no marks of their own.
constexpr std::u16string_view Marcas =
    u"\u0301\u0300\u0306\u0302\u030C\u030A\u0308\u030B\u0303\u0307\u0338\u0327\u0328\u0304\u0335\u0326";
constexpr quint8 PrimeraMarca = 10;
constexpr quint8 MarcaDesconocida = 200;

/// Second weights of letters that are variants of another one: above the plain letter's, below those of all marks.
enum Variante : quint8 { DeEth = 2, DeLigadura = 2, DeEseLarga = 3 };

constexpr Peso marca(char32_t c)
{
    for (size_t i = 0; i < Marcas.size(); ++i) {
        if (Marcas[i] == c)
            return {0, static_cast<quint8>(PrimeraMarca + i)};
    }
    return {0, MarcaDesconocida};
}

/// What is written as other characters, lower case.
struct Sustituto
{
    char16_t c;
    Pesos pesos;
};

constexpr Sustituto Sustitutos[] = {
    {u'\u00AA', {{letra(u'a')}, 1}},
    {u'\u00BA', {{letra(u'o')}, 1}},
    {u'\u00B9', {{letra(u'1')}, 1}},
    {u'\u00B2', {{letra(u'2')}, 1}},
    {u'\u00B3', {{letra(u'3')}, 1}},
    {u'\u00BC', {{letra(u'1'), letra(u'\u2044'), letra(u'4')}, 3}},
    {u'\u00BD', {{letra(u'1'), letra(u'\u2044'), letra(u'2')}, 3}},
    {u'\u00BE', {{letra(u'3'), letra(u'\u2044'), letra(u'4')}, 3}},
    {u'\u00A0', {{letra(u' ')}, 1}},
    {u'\u3000', {{letra(u' ')}, 1}},
    {u'\u2026', {{letra(u'.'), letra(u'.'), letra(u'.')}, 3}},
    {u'\u00E6', {{letra(u'a', DeLigadura), letra(u'e')}, 2}},
    {u'\u0153', {{letra(u'o', DeLigadura), letra(u'e')}, 2}},
    {u'\u00DF', {{letra(u's', DeLigadura), letra(u's')}, 2}},
    {u'\u0133', {{letra(u'i'), letra(u'j')}, 2}},
    {u'\u00F0', {{letra(u'd', DeEth)}, 1}},
    {u'\u017F', {{letra(u's', DeEseLarga)}, 1}},
    {u'\u00B5', {{Peso{lugar(UltimaLetra) * Hueco + 0x03BC, SinAcento}}, 1}},
    {u'\u0130', {{letra(u'i'), marca(u'\u0307')}, 2}},
    {u'\u0140', {{letra(u'l'), {0, MarcaDesconocida}}, 2}},
    {u'\u2122', {{letra(u't'), letra(u'm')}, 2}},
    {u'\u00F8', {{letra(u'o'), marca(u'\u0338')}, 2}},
    {u'\u0111', {{letra(u'd'), marca(u'\u0335')}, 2}},
    {u'\u0127', {{letra(u'h'), marca(u'\u0335')}, 2}},
    {u'\u0142', {{letra(u'l'), marca(u'\u0335')}, 2}},
};

constexpr Pesos unPeso(Peso peso)
{
    return {{peso}, 1};
}

Pesos sinLugar(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        return unPeso(marca(c));
    case QChar::Other_Control:
    case QChar::Other_Format:
        return {};
    case QChar::Symbol_Currency:
        return unPeso({lugar(UltimaMoneda) * Hueco + c, SinAcento});
    case QChar::Symbol_Math:
    case QChar::Symbol_Modifier:
    case QChar::Symbol_Other:
        return unPeso({lugar(UltimoSimbolo) * Hueco + c, SinAcento});
    case QChar::Punctuation_Connector:
    case QChar::Punctuation_Dash:
    case QChar::Punctuation_Open:
    case QChar::Punctuation_Close:
    case QChar::Punctuation_InitialQuote:
    case QChar::Punctuation_FinalQuote:
    case QChar::Punctuation_Other:
        return unPeso({lugar(UltimaPuntuacion) * Hueco + c, SinAcento});
    default:
        return unPeso({lugar(UltimaLetra) * Hueco + c, SinAcento});
    }
}

Pesos calculados(char32_t c);

/// A letter and the marks on it.
Pesos acentuada(char32_t c)
{
    if (QChar::decompositionTag(c) != QChar::Canonical)
        return sinLugar(c);
    const QString partes = QChar::decomposition(c);
    if (partes.size() < 2)
        return sinLugar(c);
    Pesos pesos = calculados(partes.front().unicode());
    for (qsizetype i = 1; i < partes.size() && pesos.cuantos < 3; ++i)
        pesos.peso[static_cast<size_t>(pesos.cuantos++)] = marca(partes[i].unicode());
    return pesos;
}

Pesos calculados(char32_t c)
{
    if (c < 0x10000) {
        const auto unidad = static_cast<char16_t>(c);
        if (Orden.find(unidad) != std::u16string_view::npos)
            return unPeso(letra(unidad));
        for (const Sustituto& sustituto : Sustitutos) {
            if (sustituto.c == unidad)
                return sustituto.pesos;
        }
    }
    return acentuada(c);
}

PesoSimple simple(const Pesos& pesos)
{
    const Peso& letra = pesos.peso[0];
    const Peso& acento = pesos.peso[1];
    const bool unaLetra = pesos.cuantos >= 1 && letra.letra % Hueco == 0 && letra.letra != 0 && letra.acento == SinAcento;
    if (!unaLetra || pesos.cuantos > 2 || (pesos.cuantos == 2 && acento.letra != 0))
        return {};
    return {static_cast<quint8>(letra.letra / Hueco), acento.acento};
}

std::array<PesoSimple, LimiteSimples> tablaSimples()
{
    static_assert(Orden.size() < 255);
    std::array<PesoSimple, LimiteSimples> tabla;
    for (char32_t c = 0; c < LimiteSimples; ++c)
        tabla[c] = simple(pesosDe(c));
    return tabla;
}

} // namespace

Pesos pesosDe(char32_t c)
{
    constexpr char32_t IConPunto = 0x0130; // its lower case is a plain i
    return calculados(c == IConPunto ? c : QChar::toLower(c));
}

const std::array<PesoSimple, LimiteSimples>& pesosSimples()
{
    static const std::array<PesoSimple, LimiteSimples> tabla = tablaSimples();
    return tabla;
}

} // namespace kestrane::database::espanol
