#include "platform/report/layout/operadores_expresion.h"

#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>
#include <cmath>

namespace kestrane::report {

namespace {

double finito(double numero)
{
    if (!std::isfinite(numero))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return numero;
}

bool esFecha(const Valor& valor)
{
    return valor.clase() == Valor::Clase::Fecha;
}

bool esTexto(const Valor& valor)
{
    return valor.clase() == Valor::Clase::Texto;
}

/// `calcula` of both arguments, Null when one of them is.
template<class Calculo>
Valor siHayDos(const Argumentos& args, Calculo calcula)
{
    const Valor a = args.valor(0);
    const Valor b = args.valor(1);
    if (a.esNulo() || b.esNulo())
        return {};
    return calcula(a, b);
}

template<class Calculo>
Valor aritmetica(const Argumentos& args, Calculo calcula)
{
    return siHayDos(args, [&](const Valor& a, const Valor& b) {
        return Valor{finito(calcula(aDoble(a, args.regional()), aDoble(b, args.regional())))};
    });
}

Valor numeroODia(double numero, bool esDia, const ConfiguracionRegional& regional)
{
    if (esDia)
        return aFecha(Valor{numero}, regional);
    return numero;
}

/// A day some days later or earlier is a day; the distance of two days is a number.
Valor suma(const Argumentos& args)
{
    return siHayDos(args, [&](const Valor& a, const Valor& b) {
        const double total = finito(aDoble(a, args.regional()) + aDoble(b, args.regional()));
        return numeroODia(total, esFecha(a) != esFecha(b), args.regional());
    });
}

Valor resta(const Argumentos& args)
{
    return siHayDos(args, [&](const Valor& a, const Valor& b) {
        const double total = finito(aDoble(a, args.regional()) - aDoble(b, args.regional()));
        return numeroODia(total, esFecha(a) && !esFecha(b), args.regional());
    });
}

Valor producto(const Argumentos& args)
{
    return aritmetica(args, [](double a, double b) { return a * b; });
}

Valor cociente(const Argumentos& args)
{
    return aritmetica(args, [](double a, double b) { return divide(a, b); });
}

Valor junta(const Argumentos& args)
{
    return aTexto(args.valor(0), args.regional()) + aTexto(args.valor(1), args.regional());
}

Valor opuesto(const Argumentos& args)
{
    const Valor valor = args.valor(0);
    return valor.esNulo() ? valor : Valor{-aDoble(valor, args.regional())};
}

/// Below 0, 0 or above it. Texts do not mind case, as in the statements; a text beside a date is read as one.
int compara(const Valor& a, const Valor& b, const ConfiguracionRegional& regional)
{
    if (esTexto(a) && esTexto(b))
        return a.texto().compare(b.texto(), Qt::CaseInsensitive);
    const auto numero = [&](const Valor& valor, const Valor& otro) {
        return aDoble(esTexto(valor) && esFecha(otro) ? Valor{aFecha(valor, regional)} : valor, regional);
    };
    const double x = numero(a, b);
    const double y = numero(b, a);
    return x < y ? -1 : static_cast<int>(x > y);
}

template<class Calculo>
Valor comparacion(const Argumentos& args, Calculo vale)
{
    return siHayDos(args, [&](const Valor& a, const Valor& b) { return Valor{bool{vale(compara(a, b, args.regional()))}}; });
}

Valor igual(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c == 0; });
}

Valor distinto(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c != 0; });
}

Valor menor(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c < 0; });
}

Valor menorOIgual(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c <= 0; });
}

Valor mayor(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c > 0; });
}

Valor mayorOIgual(const Argumentos& args)
{
    return comparacion(args, [](int c) { return c >= 0; });
}

/// The value that decides (false for `y`, true for `o`) decides alone, whatever the other side is; else Null wins.
Valor logica(const Argumentos& args, bool decide)
{
    bool hayNulo = false;
    for (int i = 0; i < 2; ++i) {
        const Valor valor = args.valor(i);
        hayNulo = hayNulo || valor.esNulo();
        if (!valor.esNulo() && aLogico(valor, args.regional()) == decide)
            return decide;
    }
    return hayNulo ? Valor{} : Valor{!decide};
}

Valor conjuncion(const Argumentos& args)
{
    return logica(args, false);
}

Valor disyuncion(const Argumentos& args)
{
    return logica(args, true);
}

Valor negacion(const Argumentos& args)
{
    const Valor valor = args.valor(0);
    return valor.esNulo() ? valor : Valor{!aLogico(valor, args.regional())};
}

constexpr OperadorExpresion Entre[] = {
    {1, {u"o", 2, 2, disyuncion}}, {2, {u"y", 2, 2, conjuncion}},   {4, {u"=", 2, 2, igual}}, {4, {u"<>", 2, 2, distinto}},
    {4, {u"<", 2, 2, menor}},      {4, {u"<=", 2, 2, menorOIgual}}, {4, {u">", 2, 2, mayor}}, {4, {u">=", 2, 2, mayorOIgual}},
    {5, {u"&", 2, 2, junta}},      {6, {u"+", 2, 2, suma}},         {6, {u"-", 2, 2, resta}}, {7, {u"*", 2, 2, producto}},
    {7, {u"/", 2, 2, cociente}},
};
constexpr OperadorExpresion Delante[] = {{3, {u"no", 1, 1, negacion}}, {8, {u"-", 1, 1, opuesto}}};

template<size_t N>
const OperadorExpresion* busca(const OperadorExpresion (&tabla)[N], QStringView signo)
{
    const auto* hallado =
        std::ranges::find_if(tabla, [&](const auto& o) { return o.funcion.nombre.compare(signo, Qt::CaseInsensitive) == 0; });
    return hallado == std::ranges::end(tabla) ? nullptr : hallado;
}

} // namespace

const OperadorExpresion* operadorEntre(QStringView signo)
{
    return busca(Entre, signo);
}

const OperadorExpresion* operadorDelante(QStringView signo)
{
    return busca(Delante, signo);
}

} // namespace kestrane::report
