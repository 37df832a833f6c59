#include "platform/jet/enlazado.h"

#include "platform/jet/por_clase.h"

namespace kestrane::jet::enlazado {

namespace {

using Visita = std::function<void(const Expresion&)>;

void visitaSi(const ExpresionPtr& expresion, const Visita& visita)
{
    if (expresion)
        visita(*expresion);
}

void recorreFuente(const Fuente& fuente, const Visita& visita)
{
    const auto* unida = std::get_if<Union>(&fuente.dato);
    if (!unida)
        return;
    recorreFuente(*unida->izquierda, visita);
    recorreFuente(*unida->derecha, visita);
    visita(*unida->condicion);
}

void recorreConsulta(const Consulta& consulta, const Visita& visita)
{
    for (const Salida& salida : consulta.lista)
        visita(*salida.expresion);
    for (const FuentePtr& fuente : consulta.desde)
        recorreFuente(*fuente, visita);
    visitaSi(consulta.donde, visita);
    for (const ExpresionPtr& grupo : consulta.grupos)
        visita(*grupo);
    visitaSi(consulta.teniendo, visita);
    for (const Clave& clave : consulta.orden)
        visitaSi(clave.expresion, visita);
}

/// Whether the node is that column, as it stands or in its oldest spelling.
bool esColumna(const Expresion& expresion, const Columna& columna)
{
    if (const auto* grafia = std::get_if<PrimeraGrafia>(&expresion.dato))
        return grafia->columna == columna;
    const auto* otra = std::get_if<Columna>(&expresion.dato);
    return otra && *otra == columna;
}

} // namespace

bool Expresion::esCondicion() const
{
    return std::visit(
        PorClase{[](const Logica&) { return true; }, [](const No&) { return true; }, [](const Comparacion&) { return true; },
                 [](const Parecido&) { return true; }, [](const Entre&) { return true; }, [](const EnLista&) { return true; },
                 [](const EnConsulta&) { return true; }, [](const EsNulo&) { return true; }, [](const auto&) { return false; }},
        dato);
}

Familia familiaDe(TipoColumna tipo)
{
    if (esTexto(tipo))
        return Familia::Texto;
    return tipo == TipoColumna::FechaHora ? Familia::Fecha : Familia::Numero;
}

bool esTexto(TipoColumna tipo)
{
    return tipo == TipoColumna::Texto || tipo == TipoColumna::Memo;
}

bool esEntero(TipoColumna tipo)
{
    return tipo == TipoColumna::Entero32 || tipo == TipoColumna::Entero16 || tipo == TipoColumna::SiNo;
}

bool iguales(const Expresion& a, const Expresion& b)
{
    if (const auto* grafia = std::get_if<PrimeraGrafia>(&a.dato))
        return esColumna(b, grafia->columna);
    if (const auto* columna = std::get_if<Columna>(&a.dato))
        return esColumna(b, *columna);
    if (a.dato.index() != b.dato.index())
        return false;
    const auto comparados = PorClase{
        [&](const Constante& x) { return x.valor == std::get<Constante>(b.dato).valor; },
        [&](const Aritmetica& x) {
            const auto& y = std::get<Aritmetica>(b.dato);
            return x.operador == y.operador && iguales(*x.izquierda, *y.izquierda) && iguales(*x.derecha, *y.derecha);
        },
        [&](const CambioDeSigno& x) { return iguales(*x.operando, *std::get<CambioDeSigno>(b.dato).operando); },
        [&](const TextosUnidos& x) {
            const auto& y = std::get<TextosUnidos>(b.dato);
            return iguales(*x.izquierda, *y.izquierda) && iguales(*x.derecha, *y.derecha);
        },
        [&](const ComoTexto& x) { return iguales(*x.operando, *std::get<ComoTexto>(b.dato).operando); },
        [&](const Parte& x) {
            const auto& y = std::get<Parte>(b.dato);
            return x.parte == y.parte && iguales(*x.fecha, *y.fecha);
        },
        [](const auto&) { return false; },
    };
    return std::visit(comparados, a.dato);
}

void recorreHijos(const Expresion& expresion, const Visita& visita)
{
    const auto dos = [&](const auto& x) {
        visita(*x.izquierda);
        visita(*x.derecha);
    };
    std::visit(PorClase{
                   [&](const Aritmetica& x) { dos(x); },
                   [&](const CambioDeSigno& x) { visita(*x.operando); },
                   [&](const TextosUnidos& x) { dos(x); },
                   [&](const ComoTexto& x) { visita(*x.operando); },
                   [&](const Parte& x) { visita(*x.fecha); },
                   [&](const Agregado& x) { visitaSi(x.operando, visita); },
                   [&](const Cabe& x) { visita(*x.operando); },
                   [&](const ComoValor& x) { visita(*x.condicion); },
                   [&](const Logica& x) { dos(x); },
                   [&](const No& x) { visita(*x.operando); },
                   [&](const Comparacion& x) { dos(x); },
                   [&](const Parecido& x) {
                       visita(*x.valor);
                       visita(*x.patron);
                   },
                   [&](const Entre& x) {
                       visita(*x.valor);
                       visita(*x.desde);
                       visita(*x.hasta);
                   },
                   [&](const EnLista& x) {
                       visita(*x.valor);
                       for (const ExpresionPtr& elemento : x.lista)
                           visita(*elemento);
                   },
                   [&](const EnConsulta& x) {
                       visita(*x.valor);
                       recorreConsulta(*x.consulta, visita);
                   },
                   [&](const EsNulo& x) { visita(*x.valor); },
                   [](const auto&) {},
               },
               expresion.dato);
}

bool alguna(const Expresion& expresion, const std::function<bool(const Expresion&)>& prueba)
{
    if (prueba(expresion))
        return true;
    bool hallada = false;
    recorreHijos(expresion, [&](const Expresion& hijo) { hallada = hallada || alguna(hijo, prueba); });
    return hallada;
}

} // namespace kestrane::jet::enlazado
