#include "platform/jet/binder_interno.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;

QString nombreDeFamilia(Familia familia)
{
    switch (familia) {
    case Familia::Numero:
        return u"un número"_s;
    case Familia::Texto:
        return u"un texto"_s;
    case Familia::Fecha:
        return u"una fecha"_s;
    }
    Q_UNREACHABLE();
}

void tiposIncompatibles(const QString& mensaje, ast::Lugar lugar)
{
    throw Rechazo{{ErrorSql::Clase::TiposIncompatibles, mensaje, lugar.posicion, lugar.longitud}};
}

void exigeNumero(const Expresion& expresion)
{
    const Familia familia = familiaDe(expresion.tipo);
    if (!expresion.esNulo() && familia != Familia::Numero)
        tiposIncompatibles(u"Aquí hay %1 y se esperaba un número."_s.arg(nombreDeFamilia(familia)), expresion.lugar);
}

ExpresionPtr comoValor(ExpresionPtr expresion)
{
    if (!expresion->esCondicion())
        return expresion;
    const ast::Lugar lugar = expresion->lugar;
    return nodo(ComoValor{std::move(expresion)}, TipoColumna::SiNo, lugar);
}

ExpresionPtr comoCondicion(ExpresionPtr expresion)
{
    if (expresion->esCondicion() || expresion->esNulo())
        return expresion;
    const Familia familia = familiaDe(expresion->tipo);
    const ast::Lugar lugar = expresion->lugar;
    if (familia != Familia::Numero)
        tiposIncompatibles(u"Aquí hay %1 y se esperaba una condición."_s.arg(nombreDeFamilia(familia)), lugar);
    ExpresionPtr cero = nodo(Constante{false}, TipoColumna::SiNo, lugar);
    return nodo(Comparacion{OperadorComparacion::Distinto, Familia::Numero, std::move(expresion), std::move(cero)},
                TipoColumna::SiNo, lugar);
}

ExpresionPtr comoTexto(ExpresionPtr expresion)
{
    if (esTexto(expresion->tipo))
        return expresion;
    if (expresion->esParametro() || expresion->esNulo()) {
        expresion->tipo = TipoColumna::Texto;
        return expresion;
    }
    const ast::Lugar lugar = expresion->lugar;
    return nodo(ComoTexto{std::move(expresion)}, TipoColumna::Texto, lugar);
}

Familia equipara(std::initializer_list<ExpresionPtr*> valores)
{
    return equipara(std::span<ExpresionPtr* const>{valores.begin(), valores.size()});
}

Familia equipara(std::span<ExpresionPtr* const> valores)
{
    const auto primero = [&](Familia familia, bool literal) -> const Expresion* {
        for (ExpresionPtr* const valor : valores)
            if (!(*valor)->esNulo() && familiaDe((*valor)->tipo) == familia && (*valor)->esParametro() == literal)
                return valor->get();
        return nullptr;
    };
    const Expresion* texto = primero(Familia::Texto, false);
    const Expresion* textoEscrito = primero(Familia::Texto, true);
    const Expresion* numero = primero(Familia::Numero, false);
    const bool hayTexto = texto || textoEscrito;
    const bool hayNumero = numero || primero(Familia::Numero, true);
    const bool hayFecha = primero(Familia::Fecha, false) || primero(Familia::Fecha, true);

    const ast::Lugar lugar = (*valores.back())->lugar;
    if (hayFecha && (hayTexto || hayNumero))
        tiposIncompatibles(u"Una fecha solo se compara con otra fecha, que se escribe entre signos: #mes/día/año#."_s, lugar);
    if (hayFecha)
        return Familia::Fecha;
    if (!hayTexto)
        return Familia::Numero;
    if (numero && !texto)
        tiposIncompatibles(u"Un número no se compara con un texto: escríbalo sin apóstrofos."_s, textoEscrito->lugar);
    for (ExpresionPtr* const valor : valores)
        *valor = comoTexto(std::move(*valor));
    return Familia::Texto;
}

} // namespace kestrane::jet
