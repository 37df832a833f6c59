#include "platform/jet/renderer.h"

#include "platform/jet/por_clase.h"
#include "platform/jet/renderer_interno.h"
#include "platform/jet/sql_identifier.h"

namespace kestrane::jet {

using namespace enlazado;

namespace {

constexpr int LongitudHabitual = 512;

} // namespace

PrecedenciaSql precedenciaDe(const Expresion& e)
{
    using enum PrecedenciaSql;
    const auto comparacion = [](const auto&) { return Comparacion; };
    return std::visit(
        PorClase{[](const Logica& x) { return x.operador == OperadorLogico::O ? O : Y; },
                 [](const enlazado::No&) { return PrecedenciaSql::No; },
                 [&](const enlazado::Comparacion& x) { return comparacion(x); }, [&](const Parecido& x) { return comparacion(x); },
                 [&](const Entre& x) { return comparacion(x); }, [&](const EnLista& x) { return comparacion(x); },
                 [&](const EnConsulta& x) { return comparacion(x); }, [&](const EsNulo& x) { return comparacion(x); },
                 [](const Aritmetica& x) {
                     const bool suma = x.operador == OperadorAritmetico::Suma || x.operador == OperadorAritmetico::Resta;
                     return suma ? Suma : Producto;
                 },
                 [](const TextosUnidos&) { return Comparacion; }, // engines disagree on "||": never without parentheses
                 [](const CambioDeSigno&) { return Signo; }, [](const ComoValor&) { return Signo; },
                 [](const Constante& x) { return x.valor ? Signo : Primaria; }, [](const auto&) { return Primaria; }},
        e.dato);
}

Renderer::Renderer(const Dialecto& dialecto, const Sentencia& sentencia)
    : m_dialecto{dialecto}
    , m_sentencia{sentencia}
    , m_esConsulta{std::holds_alternative<Consulta>(sentencia.dato)}
{
    m_sql.reserve(LongitudHabitual);
}

TextoSql Renderer::escribe(const ColumnasOcultas& ocultas)
{
    std::visit([&](const auto& dato) { sentencia(dato, ocultas); }, m_sentencia.dato);
    return {std::move(m_sql), std::move(m_parametros)};
}

void Renderer::sentencia(const Consulta& una, const ColumnasOcultas& ocultas)
{
    consulta(una, ocultas);
}

void Renderer::sentencia(const Insercion& insercion, const ColumnasOcultas&)
{
    pon("INSERT INTO ");
    identificador(tabla(0).nombre);
    pon(" (");
    conComas(insercion.asignaciones, [this](const Asignacion& a) { identificador(descrita({0, a.columna}).nombre); });
    pon(") VALUES (");
    conComas(insercion.asignaciones, [this](const Asignacion& a) { escrita(a); });
    pon(")");
}

void Renderer::sentencia(const Modificacion& modificacion, const ColumnasOcultas&)
{
    pon("UPDATE ");
    identificador(tabla(0).nombre);
    pon(" SET ");
    conComas(modificacion.asignaciones, [this](const Asignacion& a) {
        identificador(descrita({0, a.columna}).nombre);
        pon(" = ");
        escrita(a);
    });
    clausula(" WHERE ", modificacion.donde);
}

/// What goes into a column: one of truths takes a condition.
void Renderer::escrita(const Asignacion& asignacion)
{
    if (!descrita({0, asignacion.columna}).esVerdadDelMotor)
        return expresion(*asignacion.valor);
    expresion(*asignacion.valor, PrecedenciaSql::Suma);
    pon(" <> 0");
}

void Renderer::sentencia(const Borrado& borrado, const ColumnasOcultas&)
{
    pon("DELETE FROM ");
    identificador(tabla(0).nombre);
    clausula(" WHERE ", borrado.donde);
}

void Renderer::expresion(const Expresion& e, PrecedenciaSql minima)
{
    const bool parentesis = precedenciaDe(e) < minima;
    if (parentesis)
        pon("(");
    std::visit([&](const auto& dato) { nodo(dato, e); }, e.dato);
    if (parentesis)
        pon(")");
}

void Renderer::envuelto(const Envoltura& envoltura, const Expresion& e, PrecedenciaSql minima)
{
    pon(envoltura.antes);
    expresion(e, minima);
    pon(envoltura.despues);
}

/// Operators of one level group from the left: the right side must hold tighter.
void Renderer::infija(const Expresion& izquierda, const char* operador, const Expresion& derecha, PrecedenciaSql precedencia)
{
    expresion(izquierda, precedencia);
    pon(operador);
    expresion(derecha, static_cast<PrecedenciaSql>(static_cast<int>(precedencia) + 1));
}

void Renderer::funcion(const char* nombre, const Expresion& primero, const Expresion& segundo)
{
    pon(nombre);
    pon("(");
    expresion(primero);
    pon(", ");
    expresion(segundo);
    pon(")");
}

void Renderer::subconsulta(const Consulta& una)
{
    consulta(una);
}

void Renderer::identificador(QStringView nombre)
{
    SqlIdentifier{nombre}.escribe(m_sql, m_dialecto.comilla);
}

void Renderer::calificador(int fuente)
{
    if (!m_esConsulta && fuente == 0)
        return identificador(tabla(0).nombre);
    m_sql += 't';
    m_sql += QByteArray::number(fuente);
}

void Renderer::columnaDe(int fuente, QStringView nombre)
{
    calificador(fuente);
    m_sql += '.';
    identificador(nombre);
}

/// A column as expressions see it.
void Renderer::columna(enlazado::Columna una)
{
    const jet::Columna& suya = descrita(una);
    const Envoltura envoltura = suya.esVerdadDelMotor ? m_dialecto.verdadComoNumero : Envoltura{};
    pon(envoltura.antes);
    columnaDe(una.fuente, suya.nombre);
    pon(envoltura.despues);
}

const jet::Columna& Renderer::descrita(enlazado::Columna columna) const
{
    return tabla(columna.fuente).columnas[static_cast<size_t>(columna.columna)];
}

} // namespace kestrane::jet
