#include "platform/report/layout/funciones_expresion.h"

#include "platform/report/layout/formato.h"
#include "platform/report/layout/redondeo.h"
#include "platform/runtime/conversiones.h"

#include <algorithm>
#include <cmath>

namespace kestrane::report {

namespace {

QString texto(const Argumentos& args, int indice)
{
    return aTexto(args.valor(indice), args.regional());
}

/// `calcula` of the first argument, Null of Null.
template<class Calculo>
Valor siHay(const Argumentos& args, Calculo calcula)
{
    const Valor valor = args.valor(0);
    return valor.esNulo() ? valor : Valor{calcula(valor)};
}

template<class Calculo>
Valor siHayTexto(const Argumentos& args, Calculo calcula)
{
    return siHay(args, [&](const Valor& valor) { return calcula(aTexto(valor, args.regional())); });
}

template<class Calculo>
Valor siHayFecha(const Argumentos& args, Calculo calcula)
{
    return siHay(args, [&](const Valor& valor) { return qint32{calcula(aFecha(valor, args.regional()))}; });
}

/// The second argument as a count, 0 when there is none.
qint32 cuenta(const Argumentos& args)
{
    return args.cuantos() > 1 ? aEntero32(args.valor(1), args.regional()) : 0;
}

Valor si(const Argumentos& args)
{
    const Valor condicion = args.valor(0);
    const bool cierta = !condicion.esNulo() && aLogico(condicion, args.regional());
    return args.valor(cierta ? 1 : 2);
}

Valor nulo(const Argumentos& args)
{
    return args.valor(0).esNulo();
}

Valor vacio(const Argumentos& args)
{
    const Valor valor = args.valor(0);
    return valor.esNulo() || (valor.clase() == Valor::Clase::Texto && valor.texto().trimmed().isEmpty());
}

/// The parser has seen to the names.
Valor formato(const Argumentos& args)
{
    FormatoValor como;
    como.formato = formatoDeNombre(texto(args, 1)).value_or(Formato::General);
    if (args.cuantos() > 2)
        como.decimales = std::clamp(aEntero32(args.valor(2), args.regional()), 0, DecimalesMaximos);
    return escribeValor(args.valor(0), como, args.regional());
}

Valor mayusculas(const Argumentos& args)
{
    return siHayTexto(args, [](const QString& t) { return t.toUpper(); });
}

Valor minusculas(const Argumentos& args)
{
    return siHayTexto(args, [](const QString& t) { return t.toLower(); });
}

Valor recorta(const Argumentos& args)
{
    return siHayTexto(args, [](const QString& t) { return t.trimmed(); });
}

Valor izquierda(const Argumentos& args)
{
    return siHayTexto(args, [&](const QString& t) { return t.left(std::max(0, cuenta(args))); });
}

Valor derecha(const Argumentos& args)
{
    return siHayTexto(args, [&](const QString& t) { return t.right(std::max(0, cuenta(args))); });
}

Valor longitud(const Argumentos& args)
{
    return siHayTexto(args, [](const QString& t) { return static_cast<qint32>(t.size()); });
}

Valor redondea(const Argumentos& args)
{
    return siHay(args, [&](const Valor& v) {
        return redondeado(aDoble(v, args.regional()), std::clamp(cuenta(args), 0, DecimalesMaximos));
    });
}

Valor entero(const Argumentos& args)
{
    return siHay(args, [&](const Valor& v) { return std::floor(aDoble(v, args.regional())); });
}

Valor anio(const Argumentos& args)
{
    return siHayFecha(args, [](Fecha f) { return f.anio(); });
}

Valor mes(const Argumentos& args)
{
    return siHayFecha(args, [](Fecha f) { return f.mes(); });
}

Valor dia(const Argumentos& args)
{
    return siHayFecha(args, [](Fecha f) { return f.dia(); });
}

constexpr FuncionExpresion Funciones[] = {
    {u"si", 3, 3, si},
    {u"nulo", 1, 1, nulo},
    {u"vacio", 1, 1, vacio},
    {u"formato", 2, 3, formato},
    {u"mayusculas", 1, 1, mayusculas},
    {u"minusculas", 1, 1, minusculas},
    {u"recorta", 1, 1, recorta},
    {u"izquierda", 2, 2, izquierda},
    {u"derecha", 2, 2, derecha},
    {u"longitud", 1, 1, longitud},
    {u"redondea", 1, 2, redondea},
    {u"entero", 1, 1, entero},
    {u"anio", 1, 1, anio},
    {u"mes", 1, 1, mes},
    {u"dia", 1, 1, dia},
};

} // namespace

std::span<const FuncionExpresion> funciones()
{
    return Funciones;
}

const FuncionExpresion* funcionDe(QStringView nombre)
{
    const auto* hallada =
        std::ranges::find_if(Funciones, [&](const auto& f) { return f.nombre.compare(nombre, Qt::CaseInsensitive) == 0; });
    return hallada == std::ranges::end(Funciones) ? nullptr : hallada;
}

} // namespace kestrane::report
