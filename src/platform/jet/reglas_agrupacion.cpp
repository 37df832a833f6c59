#include "platform/jet/binder_interno.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;

namespace {

/// The column that a node is, as it stands or in its oldest spelling.
const enlazado::Columna* columnaDe(const Expresion& expresion)
{
    if (const auto* grafia = std::get_if<PrimeraGrafia>(&expresion.dato))
        return &grafia->columna;
    return std::get_if<enlazado::Columna>(&expresion.dato);
}

bool esDeLaConsulta(enlazado::Columna columna, const Consulta& consulta)
{
    return std::ranges::find(consulta.fuentes, columna.fuente) != consulta.fuentes.end();
}

bool estaEnLaLista(const Expresion& expresion, const Consulta& consulta)
{
    return std::ranges::any_of(consulta.lista, [&](const Salida& salida) { return iguales(*salida.expresion, expresion); });
}

} // namespace

void compruebaAgrupacion(const Expresion& expresion, const Consulta& consulta)
{
    const auto igual = [&](const ExpresionPtr& grupo) { return iguales(*grupo, expresion); };
    if (std::holds_alternative<Agregado>(expresion.dato) || std::ranges::any_of(consulta.grupos, igual))
        return;
    const enlazado::Columna* columna = columnaDe(expresion);
    if (columna && esDeLaConsulta(*columna, consulta))
        throw Rechazo{{ErrorSql::Clase::AgrupacionIncorrecta,
                       u"Al agrupar, cada columna ha de estar en GROUP BY o dentro de sum, count, max, min o avg."_s,
                       expresion.lugar.posicion, expresion.lugar.longitud}};
    recorreHijos(expresion, [&](const Expresion& hijo) { compruebaAgrupacion(hijo, consulta); });
}

void compruebaClave(const Expresion& clave, const Consulta& consulta)
{
    if (columnaDe(clave) || estaEnLaLista(clave, consulta))
        return;
    const auto esColumna = [](const Expresion& e) { return columnaDe(e) != nullptr; };
    if (!alguna(clave, esColumna))
        throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta, u"No se ordena por un valor fijo: escriba el nombre de una columna."_s,
                       clave.lugar.posicion, clave.lugar.longitud}};
    const auto falta = [&](const Expresion& e) {
        const enlazado::Columna* columna = columnaDe(e);
        return columna && esDeLaConsulta(*columna, consulta) && !estaEnLaLista(e, consulta);
    };
    if (alguna(clave, falta))
        throw Rechazo{{ErrorSql::Clase::ClaveDeOrdenFueraDelResultado,
                       u"Una condición o cuenta de ORDER BY solo puede usar columnas que estén en la lista de SELECT."_s,
                       clave.lugar.posicion, clave.lugar.longitud}};
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
