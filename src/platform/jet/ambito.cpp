#include "platform/jet/ambito.h"

#include "platform/jet/nombres.h"
#include "platform/jet/rechazo.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

int indiceDeColumna(const Tabla& tabla, QStringView nombre)
{
    const auto donde = std::ranges::find_if(tabla.columnas, [&](const Columna& c) { return mismoNombre(c.nombre, nombre); });
    return donde == tabla.columnas.end() ? -1 : static_cast<int>(donde - tabla.columnas.begin());
}

void Ambito::anade(int fuente, const QString& visible, ast::Lugar lugar)
{
    if (entrada(visible))
        throw Rechazo{{ErrorSql::Clase::NombreAmbiguo,
                       u"El nombre \"%1\" está dos veces en FROM: dé a una de las tablas otro nombre con AS."_s.arg(visible),
                       lugar.posicion, lugar.longitud}};
    m_entradas.push_back({fuente, visible});
}

Ambito Ambito::desde(size_t primera) const
{
    Ambito parte{m_tablas, m_fuera};
    parte.m_entradas.assign(m_entradas.begin() + static_cast<ptrdiff_t>(primera), m_entradas.end());
    return parte;
}

std::vector<int> Ambito::fuentes() const
{
    std::vector<int> indices;
    indices.reserve(m_entradas.size());
    for (const Entrada& e : m_entradas)
        indices.push_back(e.fuente);
    return indices;
}

int Ambito::fuente(const QString& visible, ast::Lugar lugar) const
{
    if (const Entrada* hallada = entrada(visible))
        return hallada->fuente;
    throw Rechazo{{ErrorSql::Clase::TablaDesconocida,
                   u"La tabla \"%1\" no está en FROM, donde hay %2."_s.arg(visible, nombresVisibles()), lugar.posicion,
                   lugar.longitud}};
}

std::optional<enlazado::Columna> Ambito::busca(const ast::Columna& columna, ast::Lugar lugar) const
{
    for (const Ambito* ambito = this; ambito; ambito = ambito->m_fuera) {
        if (columna.tabla.isEmpty()) {
            if (const auto hallada = ambito->buscaEnTodas(columna.nombre, lugar))
                return hallada;
        } else if (const Entrada* e = ambito->entrada(columna.tabla)) {
            const int indice = indiceDeColumna(*m_tablas[static_cast<size_t>(e->fuente)], columna.nombre);
            if (indice >= 0)
                return enlazado::Columna{e->fuente, indice};
            return std::nullopt;
        }
    }
    return std::nullopt;
}

enlazado::Columna Ambito::resuelve(const ast::Columna& columna, ast::Lugar lugar) const
{
    if (const auto hallada = busca(columna, lugar))
        return *hallada;
    columnaDesconocida(columna, lugar);
}

const Ambito::Entrada* Ambito::entrada(QStringView visible) const
{
    const auto donde = std::ranges::find_if(m_entradas, [&](const Entrada& e) { return mismoNombre(e.visible, visible); });
    return donde == m_entradas.end() ? nullptr : &*donde;
}

std::optional<enlazado::Columna> Ambito::buscaEnTodas(const QString& nombre, ast::Lugar lugar) const
{
    const Entrada* primera = nullptr;
    enlazado::Columna hallada;
    for (const Entrada& e : m_entradas) {
        const int indice = indiceDeColumna(*m_tablas[static_cast<size_t>(e.fuente)], nombre);
        if (indice < 0)
            continue;
        if (primera)
            throw Rechazo{
                {ErrorSql::Clase::NombreAmbiguo,
                 u"La columna \"%1\" está en varias tablas: escriba %2.%1 o %3.%1."_s.arg(nombre, primera->visible, e.visible),
                 lugar.posicion, lugar.longitud}};
        primera = &e;
        hallada = {e.fuente, indice};
    }
    return primera ? std::optional{hallada} : std::nullopt;
}

void Ambito::columnaDesconocida(const ast::Columna& columna, ast::Lugar lugar) const
{
    bool hayTabla = columna.tabla.isEmpty();
    for (const Ambito* ambito = this; ambito && !hayTabla; ambito = ambito->m_fuera)
        hayTabla = ambito->entrada(columna.tabla) != nullptr;
    if (!hayTabla)
        throw Rechazo{{ErrorSql::Clase::TablaDesconocida,
                       u"La tabla \"%1\" de la columna \"%1.%2\" no está en FROM, donde hay %3."_s.arg(
                           columna.tabla, columna.nombre, nombresVisibles()),
                       lugar.posicion, lugar.longitud}};
    const QString donde = columna.tabla.isEmpty() ? nombresVisibles() : u"\"%1\""_s.arg(columna.tabla);
    throw Rechazo{{ErrorSql::Clase::ColumnaDesconocida, u"No existe la columna \"%1\" en %2."_s.arg(columna.nombre, donde),
                   lugar.posicion, lugar.longitud}};
}

QString Ambito::nombresVisibles() const
{
    QStringList nombres;
    nombres.reserve(static_cast<qsizetype>(m_entradas.size()));
    for (const Entrada& e : m_entradas)
        nombres.append(u"\"%1\""_s.arg(e.visible));
    return nombres.isEmpty() ? u"ninguna"_s : nombres.join(u", "_s);
}

} // namespace kestrane::jet
