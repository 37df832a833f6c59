#pragma once

#include "platform/jet/ambito.h"
#include "platform/jet/binder.h"

#include <initializer_list>
#include <span>

// What the files of the binder share.
namespace kestrane::jet {

/// What an expression may hold at its place, and where its names are looked up.
struct ContextoDeExpresion
{
    const Ambito* ambito = nullptr; ///< nullptr: no columns at all (VALUES)
    bool* hayAgregados = nullptr;   ///< set when an aggregate is met; nullptr where none may stand
    QString sinAgregados;           ///< why none may stand here, for the message
    /// Columns that rows are grouped by and that are shown in their oldest spelling.
    const std::vector<enlazado::ExpresionPtr>* grupos = nullptr;
    const ast::Consulta* aliases = nullptr; ///< names of its list are taken for what is no column
};

/// What a query is read for.
enum class UsoDeConsulta { Resultado, EnIn };

class Binder
{
public:
    explicit Binder(Catalogo& catalogo) : m_catalogo{catalogo} {}

    [[nodiscard]] enlazado::Sentencia enlaza(const ast::Sentencia& leida);

private:
    using ExpresionPtr = enlazado::ExpresionPtr;

    // Statements that write.
    enlazado::Insercion sentencia(const ast::Insercion& leida);
    enlazado::Modificacion sentencia(const ast::Modificacion& leida);
    enlazado::Borrado sentencia(const ast::Borrado& leida);
    enlazado::Consulta sentencia(const ast::Consulta& leida);
    Ambito tablaEscrita(const ast::Nombre& tabla);
    [[nodiscard]] int columnaEscrita(const Ambito& ambito, const ast::Nombre& nombre, const std::vector<int>& anteriores) const;
    enlazado::Asignacion asigna(int columna, ExpresionPtr valor);
    ExpresionPtr paraColumna(ExpresionPtr valor, const Columna& destino);

    // Queries.
    enlazado::Consulta consulta(const ast::Consulta& leida, const Ambito* fuera, UsoDeConsulta uso);
    enlazado::FuentePtr fuente(const ast::Fuente& leida, Ambito& ambito);
    int tablaLeida(const QString& nombre, ast::Lugar lugar);
    std::vector<ExpresionPtr> grupos(const ast::Consulta& leida, const Ambito& ambito);
    bool enlazaCuerpo(const ast::Consulta& leida, const Ambito& ambito, UsoDeConsulta uso, enlazado::Consulta& destino);
    void expandeLista(const ast::Consulta& leida, const ContextoDeExpresion& contexto, enlazado::Consulta& destino);
    void expandeAsterisco(const ast::Asterisco& asterisco, ast::Lugar lugar, const ContextoDeExpresion& contexto,
                          enlazado::Consulta& destino);
    enlazado::Salida salida(const ast::ElementoExpresion& elemento, const ContextoDeExpresion& contexto, int& sinNombre);
    [[nodiscard]] ExpresionPtr columna(enlazado::Columna hallada, ast::Lugar lugar, const ContextoDeExpresion& contexto) const;
    enlazado::Clave clave(const ast::ClaveDeOrden& leida, const ContextoDeExpresion& contexto, const enlazado::Consulta& destino);
    void compruebaReglas(const enlazado::Consulta& consulta, bool agrupada) const;
    void compruebaOrdenPosible(const enlazado::Consulta& consulta, ast::Lugar lugar) const;

    // Expressions.
    ExpresionPtr expresion(const ast::Expresion& e, const ContextoDeExpresion& contexto);
    ExpresionPtr valor(const ast::Expresion& e, const ContextoDeExpresion& contexto);
    ExpresionPtr condicion(const ast::Expresion& e, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Columna& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Valor& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(ast::Nulo dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(ast::Logico dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Unaria& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Binaria& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Parecido& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Entre& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::EnLista& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::EnConsulta& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::EsNulo& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr enlazaDato(const ast::Llamada& dato, ast::Lugar lugar, const ContextoDeExpresion& contexto);
    ExpresionPtr agregado(enlazado::FuncionAgregada funcion, const ast::Llamada& llamada, ast::Lugar lugar,
                          const ContextoDeExpresion& contexto);
    [[nodiscard]] const Tabla& tablaDe(int fuente) const { return *m_tablas[static_cast<size_t>(fuente)]; }

    Catalogo& m_catalogo;
    std::vector<const Tabla*> m_tablas;
};

// Conversions that the dialect makes without being asked (conversiones_sql.cpp).

/// Refuses what is no number; a Null passes.
void exigeNumero(const enlazado::Expresion& expresion);
/// A condition becomes a number, anything else stays.
[[nodiscard]] enlazado::ExpresionPtr comoValor(enlazado::ExpresionPtr expresion);
/// A number becomes "<> 0"; a text or a date is refused.
[[nodiscard]] enlazado::ExpresionPtr comoCondicion(enlazado::ExpresionPtr expresion);
/// A value as the platform writes it.
[[nodiscard]] enlazado::ExpresionPtr comoTexto(enlazado::ExpresionPtr expresion);
/// Brings all values that are compared with one another to one family, which it returns.
enlazado::Familia equipara(std::initializer_list<enlazado::ExpresionPtr*> valores);
enlazado::Familia equipara(std::span<enlazado::ExpresionPtr* const> valores);

/// "un número", "un texto", "una fecha".
[[nodiscard]] QString nombreDeFamilia(enlazado::Familia familia);
[[noreturn]] void tiposIncompatibles(const QString& mensaje, ast::Lugar lugar);

// Rules of groups, sort keys and results (reglas_agrupacion.cpp).

/// Refuses a column of the query that is neither a group's nor inside an aggregate.
void compruebaAgrupacion(const enlazado::Expresion& expresion, const enlazado::Consulta& consulta);
/// Refuses a sort key that is the same for all rows.
void compruebaQueVarie(const enlazado::Expresion& clave);
/// Refuses a sort key that uses what the result does not show, unless it is a plain column.
void compruebaClave(const enlazado::Expresion& clave, const enlazado::Consulta& consulta);
/// Refuses a result of too many columns: the parser has counted what is written, `*` gives more.
void compruebaCuantas(size_t columnas, ast::Lugar lugar);
/// Refuses TOP in a sub-query that uses a table read before `primeraTabla`, which is one outside.
void compruebaLimite(const enlazado::Consulta& consulta, int primeraTabla, ast::Lugar lugar);
/// Turns DISTINCT into groups where that keeps the oldest spelling of texts.
void agrupaDistintas(enlazado::Consulta& consulta, const std::vector<const Tabla*>& tablas);
/// Whether the oldest spelling of this column can be asked for.
[[nodiscard]] bool tieneGrafia(enlazado::Columna columna, const std::vector<const Tabla*>& tablas);

} // namespace kestrane::jet
