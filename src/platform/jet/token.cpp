#include "platform/jet/token.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

namespace {

struct Entrada
{
    std::string_view texto;
    ClaseToken clase;
};

#define KESTRANE_JET_ENTRADA(nombre, texto) Entrada{texto, ClaseToken::nombre},
constexpr std::array Palabras = {KESTRANE_JET_PALABRAS(KESTRANE_JET_ENTRADA)};
constexpr std::array Signos = {KESTRANE_JET_SIGNOS(KESTRANE_JET_ENTRADA)};
#undef KESTRANE_JET_ENTRADA

static_assert(std::ranges::is_sorted(Palabras, {}, &Entrada::texto), "the list of words is searched by halving");

constexpr size_t LongitudMaxima = std::ranges::max(Palabras, {}, [](const Entrada& e) { return e.texto.size(); }).texto.size();

constexpr char minuscula(char16_t c)
{
    return static_cast<char>(c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c);
}

const Entrada* entradaDe(ClaseToken clase)
{
    for (const auto& lista : {std::span<const Entrada>{Palabras}, std::span<const Entrada>{Signos}}) {
        const auto donde = std::ranges::find(lista, clase, &Entrada::clase);
        if (donde != lista.end())
            return &*donde;
    }
    return nullptr;
}

} // namespace

std::optional<ClaseToken> palabraClave(QStringView palabra)
{
    std::array<char, LongitudMaxima> minusculas{};
    if (palabra.size() > static_cast<qsizetype>(LongitudMaxima))
        return std::nullopt;
    for (qsizetype i = 0; i < palabra.size(); ++i) {
        if (palabra[i].unicode() > 127)
            return std::nullopt;
        minusculas[static_cast<size_t>(i)] = minuscula(palabra[i].unicode());
    }
    const std::string_view buscada(minusculas.data(), static_cast<size_t>(palabra.size()));
    const auto* const donde = std::ranges::lower_bound(Palabras, buscada, {}, &Entrada::texto);
    if (donde == Palabras.end() || donde->texto != buscada)
        return std::nullopt;
    return donde->clase;
}

std::optional<ClaseToken> signo(char16_t primero, char16_t segundo, int& longitud)
{
    const Entrada* mejor = nullptr;
    for (const Entrada& entrada : Signos) {
        const bool coincide = static_cast<char16_t>(entrada.texto[0]) == primero &&
                              (entrada.texto.size() == 1 || static_cast<char16_t>(entrada.texto[1]) == segundo);
        if (coincide && (!mejor || entrada.texto.size() > mejor->texto.size()))
            mejor = &entrada;
    }
    if (!mejor)
        return std::nullopt;
    longitud = static_cast<int>(mejor->texto.size());
    return mejor->clase;
}

QString nombreDeToken(ClaseToken clase)
{
    switch (clase) {
    case ClaseToken::Fin:
        return u"el final"_s;
    case ClaseToken::Nombre:
        return u"un nombre"_s;
    case ClaseToken::Entero:
    case ClaseToken::Doble:
        return u"un número"_s;
    case ClaseToken::Texto:
        return u"un texto"_s;
    case ClaseToken::Fecha:
        return u"una fecha"_s;
    default:
        break;
    }
    const Entrada* entrada = entradaDe(clase);
    const QString texto = QString::fromLatin1(entrada->texto.data(), static_cast<qsizetype>(entrada->texto.size()));
    return clase < ClaseToken::Coma ? texto.toUpper() : u"\"%1\""_s.arg(texto);
}

} // namespace kestrane::jet
