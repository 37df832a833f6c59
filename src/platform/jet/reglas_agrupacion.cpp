#include "platform/jet/binder_interno.h"
#include "platform/jet/limites.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;

namespace {

bool esDeLaConsulta(enlazado::Columna columna, const Consulta& consulta)
{
    return std::ranges::find(consulta.fuentes, columna.fuente) != consulta.fuentes.end();
}

/// Whether the list shows it. Literals count as equal: a key is written by itself, and is no less of the result with another one.
bool estaEnLaLista(const Expresion& expresion, const Consulta& consulta)
{
    return std::ranges::any_of(consulta.lista, [&](const Salida& salida) { return mismaForma(*salida.expresion, expresion); });
}

/// Whether the expression uses a column of the query outside what the list shows.
bool usaLoQueFalta(const Expresion& expresion, const Consulta& consulta)
{
    if (estaEnLaLista(expresion, consulta))
        return false;
    const enlazado::Columna* columna = columnaMostrada(expresion);
    if (columna && esDeLaConsulta(*columna, consulta))
        return true;
    bool falta = false;
    recorreHijos(expresion, [&](const Expresion& hijo) { falta = falta || usaLoQueFalta(hijo, consulta); });
    return falta;
}

} // namespace

void compruebaAgrupacion(const Expresion& expresion, const Consulta& consulta)
{
    const auto igual = [&](const ExpresionPtr& grupo) { return iguales(*grupo, expresion); };
    if (std::holds_alternative<Agregado>(expresion.dato) || std::ranges::any_of(consulta.grupos, igual))
        return;
    const enlazado::Columna* columna = columnaMostrada(expresion);
    if (columna && esDeLaConsulta(*columna, consulta))
        throw Rechazo{{ErrorSql::Clase::AgrupacionIncorrecta,
                       u"Al agrupar, cada columna ha de estar en GROUP BY o dentro de sum, count, max, min o avg."_s,
                       expresion.lugar.posicion, expresion.lugar.longitud}};
    recorreHijos(expresion, [&](const Expresion& hijo) { compruebaAgrupacion(hijo, consulta); });
}

void compruebaQueVarie(const Expresion& clave)
{
    const auto varia = [](const Expresion& e) { return columnaMostrada(e) || std::holds_alternative<Agregado>(e.dato); };
    if (!alguna(clave, varia))
        throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta, u"No se ordena por un valor fijo: escriba el nombre de una columna."_s,
                       clave.lugar.posicion, clave.lugar.longitud}};
}

void compruebaClave(const Expresion& clave, const Consulta& consulta)
{
    if (columnaMostrada(clave) || !usaLoQueFalta(clave, consulta))
        return;
    throw Rechazo{{ErrorSql::Clase::ClaveDeOrdenFueraDelResultado,
                   u"Una condición o cuenta de ORDER BY solo puede usar columnas que estén en la lista de SELECT."_s,
                   clave.lugar.posicion, clave.lugar.longitud}};
}

void compruebaCuantas(size_t columnas, ast::Lugar lugar)
{
    if (columnas > static_cast<size_t>(limites::ElementosDeLista))
        throw Rechazo{{ErrorSql::Clase::DemasiadoLargo,
                       u"El resultado tiene demasiadas columnas: caben %1."_s.arg(limites::ElementosDeLista), lugar.posicion,
                       lugar.longitud}};
}

void compruebaLimite(const Consulta& consulta, int primeraTabla, ast::Lugar lugar)
{
    // MariaDB cannot limit it; the others could.
    const auto esDeFuera = [&](const Expresion& e) {
        const enlazado::Columna* columna = columnaMostrada(e);
        return columna && columna->fuente < primeraTabla;
    };
    if (consulta.limite && alguna(consulta, esDeFuera))
        throw Rechazo{{ErrorSql::Clase::SentenciaNoAdmitida,
                       u"Una consulta de IN que lleva TOP no puede usar columnas de la consulta de fuera."_s, lugar.posicion,
                       lugar.longitud}};
}

bool tieneGrafia(enlazado::Columna columna, const std::vector<const Tabla*>& tablas)
{
    const Tabla& tabla = *tablas[static_cast<size_t>(columna.fuente)];
    return !tabla.identidad.isEmpty() && tabla.orden.size() == 1 && tabla.orden.front() == tabla.identidad;
}

void agrupaDistintas(Consulta& consulta, const std::vector<const Tabla*>& tablas)
{
    const auto esColumna = [](const Salida& s) { return std::holds_alternative<enlazado::Columna>(s.expresion->dato); };
    const auto cambia = [&](const Salida& s) {
        return esTexto(s.expresion->tipo) && tieneGrafia(std::get<enlazado::Columna>(s.expresion->dato), tablas);
    };
    if (consulta.filas != Filas::Distintas || !std::ranges::all_of(consulta.lista, esColumna) ||
        std::ranges::none_of(consulta.lista, cambia))
        return;
    consulta.filas = Filas::Todas;
    for (Salida& salida : consulta.lista) {
        const auto igual = [&](const ExpresionPtr& grupo) { return iguales(*grupo, *salida.expresion); };
        const bool texto = cambia(salida);
        const auto columna = std::get<enlazado::Columna>(salida.expresion->dato);
        if (std::ranges::none_of(consulta.grupos, igual))
            consulta.grupos.push_back(nodo(columna, salida.expresion->tipo, salida.expresion->lugar));
        if (texto)
            salida.expresion->dato = PrimeraGrafia{columna};
    }
}

} // namespace kestrane::jet
