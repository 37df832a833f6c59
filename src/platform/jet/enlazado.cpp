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

// What stands right below each kind of node: a new kind has to say it here.

template<class Dos>
void recorreDos(const Dos& dato, const Visita& visita)
{
    visita(*dato.izquierda);
    visita(*dato.derecha);
}

void recorre(const Columna&, const Visita&) {}
void recorre(const PrimeraGrafia&, const Visita&) {}
void recorre(const Parametro&, const Visita&) {}
void recorre(const Nulo&, const Visita&) {}
void recorre(const Constante&, const Visita&) {}

void recorre(const Aritmetica& dato, const Visita& visita)
{
    recorreDos(dato, visita);
}

void recorre(const CambioDeSigno& dato, const Visita& visita)
{
    visita(*dato.operando);
}

void recorre(const TextosUnidos& dato, const Visita& visita)
{
    recorreDos(dato, visita);
}

void recorre(const ComoTexto& dato, const Visita& visita)
{
    visita(*dato.operando);
}

void recorre(const Parte& dato, const Visita& visita)
{
    visita(*dato.fecha);
}

void recorre(const Agregado& dato, const Visita& visita)
{
    visitaSi(dato.operando, visita);
}

void recorre(const Cabe& dato, const Visita& visita)
{
    visita(*dato.operando);
}

void recorre(const ComoValor& dato, const Visita& visita)
{
    visita(*dato.condicion);
}

void recorre(const Logica& dato, const Visita& visita)
{
    recorreDos(dato, visita);
}

void recorre(const No& dato, const Visita& visita)
{
    visita(*dato.operando);
}

void recorre(const Comparacion& dato, const Visita& visita)
{
    recorreDos(dato, visita);
}

void recorre(const Parecido& dato, const Visita& visita)
{
    visita(*dato.valor);
    visita(*dato.patron);
}

void recorre(const Entre& dato, const Visita& visita)
{
    visita(*dato.valor);
    visita(*dato.desde);
    visita(*dato.hasta);
}

void recorre(const EnLista& dato, const Visita& visita)
{
    visita(*dato.valor);
    for (const ExpresionPtr& elemento : dato.lista)
        visita(*elemento);
}

void recorre(const EnConsulta& dato, const Visita& visita)
{
    visita(*dato.valor);
    recorreConsulta(*dato.consulta, visita);
}

void recorre(const EsNulo& dato, const Visita& visita)
{
    visita(*dato.valor);
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

const Columna* columnaMostrada(const Expresion& expresion)
{
    if (const auto* grafia = std::get_if<PrimeraGrafia>(&expresion.dato))
        return &grafia->columna;
    return std::get_if<Columna>(&expresion.dato);
}

void recorreHijos(const Expresion& expresion, const Visita& visita)
{
    std::visit([&](const auto& dato) { recorre(dato, visita); }, expresion.dato);
}

bool alguna(const Expresion& expresion, const std::function<bool(const Expresion&)>& prueba)
{
    if (prueba(expresion))
        return true;
    bool hallada = false;
    recorreHijos(expresion, [&](const Expresion& hijo) { hallada = hallada || alguna(hijo, prueba); });
    return hallada;
}

bool alguna(const Consulta& consulta, const std::function<bool(const Expresion&)>& prueba)
{
    bool hallada = false;
    recorreConsulta(consulta, [&](const Expresion& suya) { hallada = hallada || alguna(suya, prueba); });
    return hallada;
}

} // namespace kestrane::jet::enlazado
