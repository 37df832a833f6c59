#include "platform/jet/renderer_interno.h"

#include <algorithm>

namespace kestrane::jet {

using namespace enlazado;

/// The sort keys written so far: what stands among them needs not stand there again.
class Renderer::Claves
{
public:
    /// What goes before the next key.
    const char* separador()
    {
        const bool primera = !m_hayAlguna;
        m_hayAlguna = true;
        return primera ? " ORDER BY " : ", ";
    }
    bool anota(const Expresion& e)
    {
        const auto igual = [&](const Expresion* otra) { return iguales(*otra, e); };
        if (std::ranges::any_of(m_expresiones, igual))
            return false;
        m_expresiones.push_back(&e);
        return true;
    }
    bool anota(size_t salida)
    {
        if (std::ranges::find(m_salidas, salida) != m_salidas.end())
            return false;
        m_salidas.push_back(salida);
        return true;
    }

private:
    bool m_hayAlguna = false;
    std::vector<const Expresion*> m_expresiones;
    std::vector<size_t> m_salidas;
};

namespace {

bool hayUnionIzquierda(const Fuente& fuente)
{
    const auto* unida = std::get_if<Union>(&fuente.dato);
    return unida &&
           (unida->clase == ClaseUnion::Izquierda || hayUnionIzquierda(*unida->izquierda) || hayUnionIzquierda(*unida->derecha));
}

bool hayUnionIzquierda(const Consulta& consulta)
{
    return std::ranges::any_of(consulta.desde, [](const FuentePtr& fuente) { return hayUnionIzquierda(*fuente); });
}

} // namespace

void Renderer::consulta(const Consulta& una, const ColumnasOcultas& ocultas)
{
    pon(una.filas == Filas::Distintas ? "SELECT DISTINCT " : "SELECT ");
    lista(una, ocultas);
    pon(" FROM ");
    conComas(una.desde, [this](const FuentePtr& f) { fuente(*f, Sitio::Suelta); });
    clausula(" WHERE ", una.donde);
    grupos(una);
    clausula(" HAVING ", una.teniendo);
    orden(una);
    if (una.limite)
        envuelto(m_dialecto.limite, *una.limite);
}

void Renderer::lista(const Consulta& una, const ColumnasOcultas& ocultas)
{
    conComas(una.lista, [&](const Salida& salida) {
        // DISTINCT compares what the list shows: the collation stands there.
        if (salida.expresion->esNulo()) // engines ask for its type where it is compared with that of a column
            envuelto(m_dialecto.parametro[static_cast<size_t>(salida.expresion->tipo)], *salida.expresion);
        else if (salida.expresion.get() == m_enReal)
            envuelto(m_dialecto.consultaReal, *salida.expresion);
        else if (una.filas == Filas::Distintas)
            cotejado(*salida.expresion);
        else
            expresion(*salida.expresion);
    });
    if (ocultas.clave) {
        pon(", ");
        columna(*ocultas.clave);
    }
    if (ocultas.identidad) {
        pon(", ");
        columnaDe(una.fuentes.front(), tabla(una.fuentes.front()).identidad);
    }
}

/// Joins group from the left without parentheses; only a join on the right of another needs them.
void Renderer::fuente(const Fuente& una, Sitio sitio)
{
    if (const auto* indice = std::get_if<int>(&una.dato))
        return tablaDeFrom(*indice, sitio);
    const auto& unida = std::get<Union>(una.dato);
    const bool parentesis = std::holds_alternative<Union>(unida.derecha->dato);
    fuente(*unida.izquierda, sitio);
    pon(unida.clase == ClaseUnion::Izquierda ? " LEFT JOIN " : " INNER JOIN ");
    pon(parentesis ? "(" : "");
    fuente(*unida.derecha, parentesis ? Sitio::EntreParentesis : sitio);
    pon(parentesis ? ") ON " : " ON ");
    expresion(*unida.condicion);
}

void Renderer::tablaDeFrom(int indice, Sitio sitio)
{
    const Tabla& una = tabla(indice);
    const bool conFila = sitio == Sitio::EntreParentesis && m_dialecto.unionOcultaFilas && !una.identidad.isEmpty();
    if (conFila) {
        pon("(SELECT ");
        identificador(una.identidad);
        pon(" AS ");
        identificador(una.identidad);
        pon(", * FROM ");
    }
    identificador(una.nombre);
    pon(conFila ? ") AS " : " AS ");
    calificador(indice);
}

void Renderer::clausula(const char* palabra, const ExpresionPtr& condicion)
{
    if (!condicion)
        return;
    pon(palabra);
    expresion(*condicion);
}

void Renderer::grupos(const Consulta& una)
{
    if (una.grupos.empty())
        return;
    pon(" GROUP BY ");
    conComas(una.grupos, [this](const ExpresionPtr& grupo) { cotejado(*grupo); });
}

void Renderer::orden(const Consulta& una)
{
    Claves claves;
    for (const Clave& pedida : una.orden) {
        const auto salida = static_cast<size_t>(pedida.salida);
        if (una.filas == Filas::Distintas)
            claveOrdinal(salida, pedida.direccion, claves);
        else
            clave(pedida.expresion ? *pedida.expresion : *una.lista[salida - 1].expresion, pedida.direccion, una, claves);
    }
    ordenFinal(una, claves);
}

void Renderer::ordenFinal(const Consulta& una, Claves& claves)
{
    switch (una.ordenFinal) {
    case OrdenFinal::Ninguno:
        return;
    case OrdenFinal::PorFilas:
        for (const int indice : una.fuentes)
            for (const QString& columna : tabla(indice).orden)
                claveDeFilas(indice, columna, claves);
        return;
    case OrdenFinal::PorGrupos:
        for (const ExpresionPtr& grupo : una.grupos)
            clave(*grupo, Direccion::Ascendente, una, claves);
        return;
    case OrdenFinal::PorLista:
        for (size_t i = 0; i < una.lista.size(); ++i) {
            if (una.filas == Filas::Distintas)
                claveOrdinal(i + 1, Direccion::Ascendente, claves);
            else
                clave(*una.lista[i].expresion, Direccion::Ascendente, una, claves);
        }
        return;
    }
}

void Renderer::clave(const Expresion& e, Direccion direccion, const Consulta& una, Claves& claves)
{
    if (!claves.anota(e))
        return;
    pon(claves.separador());
    if (const auto* grafia = std::get_if<PrimeraGrafia>(&e.dato))
        cotejado(*enlazado::nodo(grafia->columna, e.tipo, e.lugar));
    else
        cotejado(e);
    const bool descendente = direccion == Direccion::Descendente;
    pon(descendente ? " DESC" : "");
    const auto* columna = std::get_if<enlazado::Columna>(&e.dato);
    const bool nuncaNula = columna && !descrita(*columna).admiteNulo && !hayUnionIzquierda(una);
    if (!nuncaNula)
        pon(descendente ? m_dialecto.nulosUltimo : m_dialecto.nulosPrimero);
}

/// By the place in the list: with DISTINCT a key may be nothing else, and the list already carries the collation.
void Renderer::claveOrdinal(size_t salida, Direccion direccion, Claves& claves)
{
    if (!claves.anota(salida))
        return;
    pon(claves.separador());
    m_sql += QByteArray::number(static_cast<qulonglong>(salida));
    const bool descendente = direccion == Direccion::Descendente;
    pon(descendente ? " DESC" : "");
    pon(descendente ? m_dialecto.nulosUltimo : m_dialecto.nulosPrimero);
}

void Renderer::claveDeFilas(int indice, const QString& columna, Claves& claves)
{
    pon(claves.separador());
    columnaDe(indice, columna);
}

} // namespace kestrane::jet
