#include "platform/database/patron_like.h"

#include "platform/database/utf8.h"
#include "platform/jet/nombres.h"

namespace kestrane::database {

namespace {

bool esAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 128;
}

char minuscula(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

/// Compares one character from the front of both and moves behind it.
bool igualDelante(const char*& a, const char* finA, const char*& b, const char* finB)
{
    if (esAscii(*a) && esAscii(*b))
        return minuscula(*a++) == minuscula(*b++);
    return jet::plegado(siguienteUtf8(a, finA)) == jet::plegado(siguienteUtf8(b, finB));
}

/// Compares one character from the back of both and moves before it.
bool igualDetras(const char*& a, const char* inicioA, const char*& b, const char* inicioB)
{
    if (esAscii(a[-1]) && esAscii(b[-1]))
        return minuscula(*--a) == minuscula(*--b);
    return jet::plegado(anteriorUtf8(a, inicioA)) == jet::plegado(anteriorUtf8(b, inicioB));
}

/// True when `texto` ends with `cola`; with `completo` only when it is all of it.
bool terminaEn(std::string_view texto, std::string_view cola, bool completo)
{
    const char* t = texto.data() + texto.size();
    const char* c = cola.data() + cola.size();
    while (c != cola.data()) {
        if (t == texto.data() || !igualDetras(c, cola.data(), t, texto.data()))
            return false;
    }
    return !completo || t == texto.data();
}

bool empiezaPor(std::string_view texto, std::string_view cabeza)
{
    const char* t = texto.data();
    const char* const finTexto = t + texto.size();
    const char* c = cabeza.data();
    const char* const finCabeza = c + cabeza.size();
    while (c != finCabeza) {
        if (t == finTexto || !igualDelante(c, finCabeza, t, finTexto))
            return false;
    }
    return true;
}

/// Any pattern: at a mismatch the last `%` takes one character more.
bool casaDespacio(std::string_view patron, std::string_view texto)
{
    const char* p = patron.data();
    const char* const finP = p + patron.size();
    const char* t = texto.data();
    const char* const finT = t + texto.size();
    const char* trasComodin = nullptr;
    const char* retomar = nullptr;
    while (t != finT) {
        if (p != finP && *p == '%') {
            trasComodin = ++p;
            retomar = t;
            continue;
        }
        if (p != finP && *p == '_') {
            ++p;
            static_cast<void>(siguienteUtf8(t, finT));
            continue;
        }
        if (p != finP && igualDelante(p, finP, t, finT))
            continue;
        if (!trasComodin)
            return false;
        static_cast<void>(siguienteUtf8(retomar, finT));
        p = trasComodin;
        t = retomar;
    }
    while (p != finP && *p == '%')
        ++p;
    return p == finP;
}

bool tieneComodin(std::string_view patron)
{
    return patron.find_first_of("%_") != std::string_view::npos;
}

} // namespace

bool casaPatron(std::string_view patron, std::string_view texto)
{
    if (patron == "%")
        return true;
    if (patron.empty())
        return texto.empty();
    if (patron.front() == '%')
        return tieneComodin(patron.substr(1)) ? casaDespacio(patron, texto) : terminaEn(texto, patron.substr(1), false);
    const std::string_view cabeza = patron.substr(0, patron.size() - 1);
    if (tieneComodin(cabeza) || patron.back() == '_')
        return casaDespacio(patron, texto);
    return patron.back() == '%' ? empiezaPor(texto, cabeza) : terminaEn(texto, patron, true);
}

} // namespace kestrane::database
