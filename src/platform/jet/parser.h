#pragma once

#include "platform/jet/ast/sentencia.h"
#include "platform/jet/error_sql.h"
#include "platform/jet/token.h"
#include "platform/runtime/resultado.h"

#include <QStringView>

#include <vector>

namespace kestrane::jet {

/// Text -> syntax tree. Nothing is looked up: any name passes.
[[nodiscard]] Resultado<ast::Sentencia, ErrorSql> parsea(QStringView sentencia);

namespace ast {
enum class Precedencia;
}

/// One method per rule of the grammar (docs/grammar.md), by recursive descent over the tokens. A text that does not fit ends in a
/// Rechazo that says what was found and what was expected.
class Parser
{
public:
    explicit Parser(std::vector<Token> tokens) : m_tokens{std::move(tokens)} {}

    [[nodiscard]] ast::Sentencia parseSentencia();

private:
    // Statements.
    ast::Sentencia parseCuerpo();
    ast::Consulta parseTablaSola();
    ast::Insercion parseInsercion();
    ast::Modificacion parseModificacion();
    ast::Asignacion parseAsignacion();
    ast::Borrado parseBorrado();

    // Queries.
    ast::Consulta parseConsulta();
    ast::Filas parseFilas();
    ast::ExpresionPtr parseLimite();
    ast::ElementoLista parseElementoLista();
    std::optional<ast::Asterisco> parseAsterisco();
    QString parseAlias();
    ast::FuentePtr parseFuente();
    ast::FuentePtr parseFuentePrimaria();
    ast::FuentePtr parseUnion(ast::FuentePtr izquierda, ast::ClaseUnion clase);
    ast::ExpresionPtr parseClausula(ClaseToken palabra);
    std::vector<ast::ExpresionPtr> parseGrupos();
    std::vector<ast::ClaveDeOrden> parseOrden();
    ast::ClaveDeOrden parseClaveDeOrden();
    void compruebaCuantos(size_t elementos, int caben, QStringView clausula) const;

    // Expressions.
    ast::ExpresionPtr parseExpresion();
    ast::ExpresionPtr parseExpresion(ast::Precedencia minima);
    ast::ExpresionPtr parseOperando(ast::Precedencia minima);
    ast::ExpresionPtr parseUnaria(ast::OperadorUnario operador, ast::Precedencia delOperando);
    ast::ExpresionPtr parseBinaria(ast::ExpresionPtr izquierda);
    [[nodiscard]] bool hayPrueba() const;
    ast::ExpresionPtr parsePrueba(ast::ExpresionPtr valor);
    ast::ExpresionPtr parseEsNulo(ast::ExpresionPtr valor);
    ast::ExpresionPtr parseParecido(ast::ExpresionPtr valor, ast::Sentido sentido);
    ast::ExpresionPtr parseEntre(ast::ExpresionPtr valor, ast::Sentido sentido);
    ast::ExpresionPtr parseEn(ast::ExpresionPtr valor, ast::Sentido sentido);
    ast::ExpresionPtr parsePrimaria();
    ast::ExpresionPtr parseParentesis();
    ast::ExpresionPtr parseLiteral();
    ast::ExpresionPtr parseColumna();
    ast::ExpresionPtr parseLlamada();

    // Primitives.
    [[nodiscard]] const Token& actual() const { return m_tokens[m_indice]; }
    [[nodiscard]] const Token& siguiente() const;
    [[nodiscard]] const Token& anterior() const { return m_tokens[m_indice > 0 ? m_indice - 1 : 0]; }
    [[nodiscard]] bool esta(ClaseToken clase) const { return actual().clase == clase; }
    bool consumeSi(ClaseToken clase);
    const Token& consume(ClaseToken clase);
    ast::Nombre consumeNombre(QStringView que);
    [[nodiscard]] ast::Lugar lugarDesde(const Token& primero) const;
    template<class Leer>
    auto conComas(Leer leer);

    /// Makes a node; `debajo` gives the depths of what stands below it.
    template<class Dato>
    ast::ExpresionPtr nodo(Dato dato, ast::Lugar lugar, std::initializer_list<int> debajo = {});
    [[nodiscard]] ast::Lugar lugarQueAbarca(const ast::Expresion& primera) const;

    // Refusals.
    [[noreturn]] void esperaba(const QString& que) const;
    [[noreturn]] void noAdmitida(const Token& token, const QString& mensaje) const;
    void rehusaOtrasSentencias() const;
    void rehusaRestos() const;

    class Nivel;

    std::vector<Token> m_tokens;
    size_t m_indice = 0;
    int m_anidamiento = 0;
    int m_masHondo = 0; ///< depth of the deepest expression of the query being read
    int m_tablas = 0;   ///< tables of the FROM being read
};

} // namespace kestrane::jet
