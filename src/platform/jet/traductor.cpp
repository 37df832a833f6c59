#include "platform/jet/traductor.h"

#include "platform/jet/anticipacion.h"
#include "platform/jet/binder.h"
#include "platform/jet/parser.h"
#include "platform/jet/renderer_mariadb.h"
#include "platform/jet/renderer_postgresql.h"
#include "platform/jet/renderer_sqlite.h"

#include <algorithm>

namespace kestrane::jet {

namespace {

using enlazado::Consulta;
using enlazado::Sentencia;

Traduccion::Clase claseDe(const Sentencia& sentencia)
{
    static_assert(static_cast<size_t>(Traduccion::Clase::Borrado) == 3);
    return static_cast<Traduccion::Clase>(sentencia.dato.index());
}

/// The tables of the statement without repetition; the written one, if any, is the first.
std::vector<QString> nombresDeTablas(const Sentencia& sentencia)
{
    std::vector<QString> nombres;
    for (const Tabla* tabla : sentencia.tablas)
        if (std::ranges::find(nombres, tabla->nombre) == nombres.end())
            nombres.push_back(tabla->nombre);
    return nombres;
}

/// The table whose rows the result shows one by one, or nullptr.
const Tabla* tablaEditable(const Sentencia& sentencia)
{
    const auto* consulta = std::get_if<Consulta>(&sentencia.dato);
    if (!consulta || consulta->ordenFinal != enlazado::OrdenFinal::PorFilas || consulta->fuentes.size() != 1)
        return nullptr;
    if (consulta->filas == ast::Filas::Distintas || !consulta->grupos.empty())
        return nullptr;
    return sentencia.tablas[static_cast<size_t>(consulta->fuentes.front())];
}

void describeResultado(const Consulta& consulta, bool editable, Traduccion& traduccion)
{
    for (const enlazado::Salida& salida : consulta.lista) {
        traduccion.columnas.push_back({salida.nombre, salida.expresion->tipo, salida.ancho, salida.deAsterisco});
        if (!editable)
            continue;
        const auto* columna = std::get_if<enlazado::Columna>(&salida.expresion->dato);
        traduccion.columnaDeTabla.push_back(columna ? columna->columna : -1);
    }
}

TextoSql escrito(const Sentencia& sentencia, const ColumnasOcultas& ocultas, Motor motor, const ConfiguracionRegional& regional)
{
    switch (motor) {
    case Motor::Sqlite:
        return RendererSqlite{sentencia}.escribe(ocultas);
    case Motor::PostgreSql:
        return RendererPostgresql{sentencia, regional}.escribe(ocultas);
    case Motor::MariaDb:
        return RendererMariadb{sentencia, regional}.escribe(ocultas);
    }
    Q_UNREACHABLE();
}

Traduccion monta(const Sentencia& sentencia, std::optional<enlazado::Columna> clave, Motor motor,
                 const ConfiguracionRegional& regional)
{
    Traduccion traduccion;
    traduccion.clase = claseDe(sentencia);
    traduccion.tablas = nombresDeTablas(sentencia);
    traduccion.conClave = clave.has_value();
    const Tabla* editable = tablaEditable(sentencia);
    if (editable)
        traduccion.tablaEditable = editable->nombre;
    if (const auto* consulta = std::get_if<Consulta>(&sentencia.dato))
        describeResultado(*consulta, editable != nullptr, traduccion);
    TextoSql texto = escrito(sentencia, {clave, editable && !editable->identidad.isEmpty()}, motor, regional);
    traduccion.sql = std::move(texto.sql);
    traduccion.parametros = std::move(texto.parametros);
    return traduccion;
}

Resultado<Sentencia, ErrorSql> enlazada(QStringView sentencia, Catalogo& catalogo)
{
    const auto leida = parsea(sentencia);
    if (!leida)
        return leida.error();
    return enlaza(leida.valor(), catalogo);
}

} // namespace

Traductor::Traductor(Catalogo& catalogo, Motor motor, ConfiguracionRegional regional)
    : m_catalogo{catalogo}
    , m_motor{motor}
    , m_regional{std::move(regional)}
{
}

Resultado<Traduccion, ErrorSql> Traductor::traduce(QStringView sentencia) const
{
    const auto enlazado = enlazada(sentencia, m_catalogo);
    if (!enlazado)
        return enlazado.error();
    return monta(enlazado.valor(), std::nullopt, m_motor, m_regional);
}

std::optional<Traduccion> Traductor::traduceAnticipada(QStringView sentencia, int literal, int claves) const
{
    auto enlazado = enlazada(sentencia, m_catalogo);
    if (!enlazado)
        return std::nullopt;
    const auto clave = anticipa(enlazado.valor(), literal, claves);
    if (!clave)
        return std::nullopt;
    return monta(enlazado.valor(), clave, m_motor, m_regional);
}

} // namespace kestrane::jet
