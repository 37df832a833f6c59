#include "platform/report/preview/busqueda_pagina.h"

#include <algorithm>
#include <tuple>

namespace kestrane::report {

namespace {

/// The lines of a cell as one text, with blanks between them or without.
TextoPlegado pliegaCelda(const TextoPagina& pagina, int tramo, bool conBlancos)
{
    TextoPlegado celda;
    int antes = 0;
    for (int linea = tramo; linea >= 0; linea = pagina.siguiente(linea)) {
        const TextoPlegado plegada = pliega(pagina.texto(linea));
        if (conBlancos && linea != tramo) {
            celda.texto += u' ';
            celda.origen.push_back(antes);
        }
        celda.texto += plegada.texto;
        for (qsizetype i = 0; i < plegada.texto.size(); ++i)
            celda.origen.push_back(antes + plegada.origen[i]);
        antes += int(pagina.texto(linea).size());
    }
    celda.origen.push_back(antes);
    return celda;
}

/// Both ways; what overlaps counts once.
std::vector<Trecho> encuentraEnCelda(const QString& buscado, const TextoPagina& pagina, int tramo)
{
    std::vector<Trecho> todos = encuentra(buscado, pliegaCelda(pagina, tramo, true));
    const std::vector<Trecho> seguidos = encuentra(buscado, pliegaCelda(pagina, tramo, false));
    todos.insert(todos.end(), seguidos.begin(), seguidos.end());
    std::stable_sort(todos.begin(), todos.end(), [](const Trecho& a, const Trecho& b) { return a.desde < b.desde; });
    std::vector<Trecho> sueltos;
    for (const Trecho& trecho : todos) {
        if (sueltos.empty() || trecho.desde >= sueltos.back().hasta)
            sueltos.push_back(trecho);
    }
    return sueltos;
}

/// A stretch of the cell that begins at `tramo`, told from the line in which it begins.
TrechoPagina enSuLinea(const TextoPagina& pagina, int tramo, Trecho trecho)
{
    while (trecho.desde >= pagina.texto(tramo).size() && pagina.siguiente(tramo) >= 0) {
        const int largo = int(pagina.texto(tramo).size());
        trecho = {trecho.desde - largo, trecho.hasta - largo};
        tramo = pagina.siguiente(tramo);
    }
    return {tramo, trecho};
}

} // namespace

std::vector<TrechoPagina> encuentraEnPagina(const QString& buscado, const TextoPagina& pagina)
{
    std::vector<TrechoPagina> hallados;
    for (int tramo = 0; tramo < pagina.tramos(); ++tramo) {
        if (!pagina.empieza(tramo))
            continue;
        const bool partida = pagina.siguiente(tramo) >= 0;
        for (const Trecho& trecho : partida ? encuentraEnCelda(buscado, pagina, tramo) : encuentra(buscado, pagina.texto(tramo)))
            hallados.push_back(enSuLinea(pagina, tramo, trecho));
    }
    std::sort(hallados.begin(), hallados.end(), [](const TrechoPagina& a, const TrechoPagina& b) {
        return std::tie(a.tramo, a.trecho.desde) < std::tie(b.tramo, b.trecho.desde);
    });
    return hallados;
}

} // namespace kestrane::report
