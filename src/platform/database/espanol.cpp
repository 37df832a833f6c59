#include "platform/database/espanol.h"

#include "platform/database/pesos_espanol.h"
#include "platform/database/utf8.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace kestrane::database::espanol {

namespace {

constexpr char32_t EneSuelta = U'n';
constexpr char32_t TildeSuelta = 0x0303;
constexpr char32_t Ene = 0x00F1;

/// Code points of a UTF-8 text.
class Utf8
{
public:
    explicit Utf8(std::string_view texto) : m_actual{texto.data()}, m_fin{texto.data() + texto.size()} {}

    [[nodiscard]] bool fin() const { return m_actual == m_fin; }
    char32_t siguiente() { return siguienteUtf8(m_actual, m_fin); }

private:
    const char* m_actual;
    const char* m_fin;
};

/// Code points of a UTF-16 text.
class Utf16
{
public:
    explicit Utf16(QStringView texto) : m_texto{texto} {}

    [[nodiscard]] bool fin() const { return m_texto.isEmpty(); }
    char32_t siguiente()
    {
        const QChar primera = m_texto.front();
        m_texto = m_texto.sliced(1);
        if (!primera.isHighSurrogate() || fin() || !m_texto.front().isLowSurrogate())
            return primera.unicode();
        const QChar segunda = m_texto.front();
        m_texto = m_texto.sliced(1);
        return QChar::surrogateToUcs4(primera, segunda);
    }

private:
    QStringView m_texto;
};

/// The weights of a text one behind the other.
template<class Puntos>
class Recorrido
{
public:
    explicit Recorrido(Puntos puntos) : m_puntos{puntos} {}

    /// The next weight of the first level, 0 at the end.
    quint32 letra()
    {
        while (siguiente()) {
            if (m_actual.letra != 0)
                return m_actual.letra;
        }
        return 0;
    }
    /// The next weight of the second level, 0 at the end.
    quint8 acento()
    {
        while (siguiente()) {
            if (m_actual.acento != 0)
                return m_actual.acento;
        }
        return 0;
    }

private:
    bool siguiente()
    {
        while (m_servidos == m_pesos.cuantos) {
            if (m_puntos.fin())
                return false;
            m_pesos = pesosDe(caracter());
            m_servidos = 0;
        }
        m_actual = m_pesos.peso[static_cast<size_t>(m_servidos++)];
        return true;
    }
    /// An n with a tilde behind it is a letter of its own, however it is written.
    char32_t caracter()
    {
        const char32_t c = m_puntos.siguiente();
        if ((c | 0x20) != EneSuelta || m_puntos.fin())
            return c;
        Puntos tras = m_puntos;
        if (tras.siguiente() != TildeSuelta)
            return c;
        m_puntos = tras;
        return Ene;
    }

    Puntos m_puntos;
    Pesos m_pesos;
    int m_servidos = 0;
    Peso m_actual;
};

template<class Puntos>
int comparaDespacio(Puntos a, Puntos b)
{
    Recorrido<Puntos> letrasA{a};
    Recorrido<Puntos> letrasB{b};
    for (;;) {
        const quint32 una = letrasA.letra();
        const quint32 otra = letrasB.letra();
        if (una != otra)
            return una < otra ? -1 : 1;
        if (una == 0)
            break;
    }
    Recorrido<Puntos> acentosA{a};
    Recorrido<Puntos> acentosB{b};
    for (;;) {
        const quint8 uno = acentosA.acento();
        const quint8 otro = acentosB.acento();
        if (uno != otro)
            return uno < otro ? -1 : 1;
        if (uno == 0)
            return 0;
    }
}

/// Takes a character with simple weights from the front of a text; false when there is none in front.
bool tomaSimple(const char*& i, const char* fin, PesoSimple& peso, const PesoSimple* tabla)
{
    const auto primero = static_cast<unsigned char>(*i);
    if (primero < 0x80) {
        peso = tabla[primero];
        ++i;
        return peso.letra != 0;
    }
    constexpr unsigned char PrimeraDeDos = 0xC2;
    constexpr unsigned char UltimaDeSimples = 0xC5;
    if (primero < PrimeraDeDos || primero > UltimaDeSimples || fin - i < 2)
        return false;
    const auto segundo = static_cast<unsigned char>(i[1]);
    if ((segundo & 0xC0) != 0x80)
        return false;
    peso = tabla[(primero & 0x1F) << 6 | (segundo & 0x3F)];
    i += 2;
    return peso.letra != 0;
}

bool tomaSimple(const char16_t*& i, const char16_t*, PesoSimple& peso, const PesoSimple* tabla)
{
    if (*i >= LimiteSimples)
        return false;
    peso = tabla[*i++];
    return peso.letra != 0;
}

/// True when nothing behind a letter can make another one of it, as a tilde apart does of an n.
template<class Unidad>
bool entera(PesoSimple letra, const Unidad* tras, const Unidad* fin, const PesoSimple* tabla)
{
    PesoSimple siguiente;
    return letra.letra != tabla[EneSuelta].letra || tras == fin || tomaSimple(tras, fin, siguiente, tabla);
}

/// What the longer of two texts has left decides if it counts at all; it may be a mark on what came before.
template<class Unidad>
std::optional<int> siCuenta(const Unidad* resto, const Unidad* fin, const PesoSimple* tabla, int orden)
{
    PesoSimple primera;
    return tomaSimple(resto, fin, primera, tabla) ? std::optional{orden} : std::nullopt;
}

/// The order of two texts of simple characters, found in one pass: the first letters that differ decide, else the first accents
/// that do. Nothing when there is any other character before the decision.
template<class Unidad>
std::optional<int> comparaSimples(const Unidad* a, const Unidad* finA, const Unidad* b, const Unidad* finB)
{
    const PesoSimple* const tabla = pesosSimples().data();
    int porAcento = 0;
    while (a != finA && b != finB) {
        PesoSimple uno;
        PesoSimple otro;
        if (!tomaSimple(a, finA, uno, tabla) || !tomaSimple(b, finB, otro, tabla))
            return std::nullopt;
        if (uno.letra != otro.letra) {
            const bool decide = entera(uno, a, finA, tabla) && entera(otro, b, finB, tabla);
            return decide ? std::optional{uno.letra < otro.letra ? -1 : 1} : std::nullopt;
        }
        if (uno.acento != otro.acento && porAcento == 0)
            porAcento = uno.acento < otro.acento ? -1 : 1;
    }
    if (a != finA)
        return siCuenta(a, finA, tabla, 1);
    return b == finB ? std::optional{porAcento} : siCuenta(b, finB, tabla, -1);
}

template<class Puntos, class Vista, class Unidad>
int comparaTextos(Vista a, Vista b, const Unidad* enA, const Unidad* enB)
{
    const auto bytes = static_cast<size_t>(a.size()) * sizeof(Unidad);
    if (a.size() == b.size() && (bytes == 0 || std::memcmp(enA, enB, bytes) == 0))
        return 0;
    if (const auto simple = comparaSimples(enA, enA + a.size(), enB, enB + b.size()))
        return *simple;
    return comparaDespacio(Puntos{a}, Puntos{b});
}

} // namespace

int compara(std::string_view a, std::string_view b)
{
    return comparaTextos<Utf8>(a, b, a.data(), b.data());
}

int compara(QStringView a, QStringView b)
{
    return comparaTextos<Utf16>(a, b, a.utf16(), b.utf16());
}

} // namespace kestrane::database::espanol
