#pragma once

#include "platform/jet/dialecto.h"
#include "platform/jet/enlazado.h"

#include <optional>

namespace kestrane::jet {

/// Text for an engine and what its marks take, in their order.
struct TextoSql
{
    QByteArray sql;
    std::vector<Parametro> parametros;
};

/// Columns of a query that no name reaches, behind those of the result.
struct ColumnasOcultas
{
    std::optional<enlazado::Columna> clave;
    bool identidad = false; ///< of the first table of FROM
};

/// How tightly the operators of SQL hold their operands, as far as all engines agree.
enum class PrecedenciaSql { O, Y, No, Comparacion, Suma, Producto, Signo, Primaria };

/// Bound tree -> text of one engine. What all engines share is here; a subclass writes what a Dialecto cannot say.
class Renderer
{
public:
    virtual ~Renderer() = default;
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    [[nodiscard]] TextoSql escribe(const ColumnasOcultas& ocultas = {});

protected:
    using Expresion = enlazado::Expresion;

    Renderer(const Dialecto& dialecto, const enlazado::Sentencia& sentencia);

    // What engines say each in their own way.
    virtual void comoTexto(const Expresion& valor) = 0;
    virtual void parecido(const enlazado::Parecido& parecido) = 0;
    virtual void aritmetica(const enlazado::Aritmetica& cuenta) = 0;
    virtual void subconsulta(const enlazado::Consulta& una);
    /// Nothing to write where the engine itself refuses what its column does not hold.
    virtual void cabe(const enlazado::Cabe& dato, TipoColumna tipo);

    /// Writes an expression, in parentheses when it holds less tightly than its place asks.
    void expresion(const Expresion& e, PrecedenciaSql minima = PrecedenciaSql::O);
    /// A text that is compared or sorted by, with the collation where the engine needs to be told.
    void cotejado(const Expresion& e);
    void envuelto(const Envoltura& envoltura, const Expresion& e, PrecedenciaSql minima = PrecedenciaSql::O);
    /// A mark that takes a literal as that type.
    void marca(const enlazado::Parametro& dato, TipoColumna tipo, const Envoltura& envoltura);
    void infija(const Expresion& izquierda, const char* operador, const Expresion& derecha, PrecedenciaSql precedencia);
    void funcion(const char* nombre, const Expresion& primero, const Expresion& segundo);
    void consulta(const enlazado::Consulta& una, const ColumnasOcultas& ocultas = {});
    void pon(const char* texto) { m_sql += texto; }

    const Dialecto& m_dialecto;

private:
    // Statements.
    void sentencia(const enlazado::Consulta& una, const ColumnasOcultas& ocultas);
    void sentencia(const enlazado::Insercion& insercion, const ColumnasOcultas&);
    void sentencia(const enlazado::Modificacion& modificacion, const ColumnasOcultas&);
    void sentencia(const enlazado::Borrado& borrado, const ColumnasOcultas&);

    // Queries.
    class Claves;
    void lista(const enlazado::Consulta& una, const ColumnasOcultas& ocultas);
    enum class Sitio { Suelta, EntreParentesis };
    void fuente(const enlazado::Fuente& una, Sitio sitio);
    void tablaDeFrom(int indice, Sitio sitio);
    void clausula(const char* palabra, const enlazado::ExpresionPtr& condicion);
    void grupos(const enlazado::Consulta& una);
    void orden(const enlazado::Consulta& una);
    void ordenFinal(const enlazado::Consulta& una, Claves& claves);
    void clave(const Expresion& e, enlazado::Direccion direccion, const enlazado::Consulta& una, Claves& claves);
    void claveOrdinal(size_t salida, enlazado::Direccion direccion, Claves& claves);
    void claveDeFilas(int indice, const QString& columna, Claves& claves);

    // Expressions.
    void nodo(const enlazado::Columna& dato, const Expresion& e);
    void nodo(const enlazado::PrimeraGrafia& dato, const Expresion& e);
    void nodo(const enlazado::Parametro& dato, const Expresion& e);
    void nodo(const enlazado::Nulo& dato, const Expresion& e);
    void nodo(const enlazado::Constante& dato, const Expresion& e);
    void nodo(const enlazado::Aritmetica& dato, const Expresion& e);
    void nodo(const enlazado::CambioDeSigno& dato, const Expresion& e);
    void nodo(const enlazado::TextosUnidos& dato, const Expresion& e);
    void nodo(const enlazado::ComoTexto& dato, const Expresion& e);
    void nodo(const enlazado::Parte& dato, const Expresion& e);
    void nodo(const enlazado::Agregado& dato, const Expresion& e);
    void nodo(const enlazado::Cabe& dato, const Expresion& e);
    void nodo(const enlazado::ComoValor& dato, const Expresion& e);
    void nodo(const enlazado::Logica& dato, const Expresion& e);
    void nodo(const enlazado::No& dato, const Expresion& e);
    void nodo(const enlazado::Comparacion& dato, const Expresion& e);
    void nodo(const enlazado::Parecido& dato, const Expresion& e);
    void nodo(const enlazado::Entre& dato, const Expresion& e);
    void nodo(const enlazado::EnLista& dato, const Expresion& e);
    void nodo(const enlazado::EnConsulta& dato, const Expresion& e);
    void nodo(const enlazado::EsNulo& dato, const Expresion& e);
    void textoUnido(const Expresion& e);
    void comparado(const Expresion& e, enlazado::Familia familia, const Expresion* otra);

    // Names.
    void identificador(QStringView nombre);
    void calificador(int fuente);
    void columnaDe(int fuente, QStringView nombre);
    void columna(enlazado::Columna una);
    void escrita(const enlazado::Asignacion& asignacion);
    [[nodiscard]] const Tabla& tabla(int fuente) const { return *m_sentencia.tablas[static_cast<size_t>(fuente)]; }
    [[nodiscard]] const Columna& descrita(enlazado::Columna columna) const;

    template<class Lista, class Escribe>
    void conComas(const Lista& lista, Escribe escribe);

    const enlazado::Sentencia& m_sentencia;
    bool m_esConsulta;                   ///< tables have short names t0, t1, ...; else the first goes by its own
    const Expresion* m_enReal = nullptr; ///< the shown column of the sub-query that comes next, when it is compared with doubles
    QByteArray m_sql;
    std::vector<Parametro> m_parametros;
};

} // namespace kestrane::jet
