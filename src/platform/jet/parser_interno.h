#pragma once

#include "platform/jet/limites.h"
#include "platform/jet/parser.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

// The parser's templates and its guard against deep nesting, for the files that hold its rules.
namespace kestrane::jet {

/// Holds one level of nesting while it lives; refuses the text when there are too many.
class Parser::Nivel
{
public:
    explicit Nivel(Parser& parser) : m_parser{parser}
    {
        if (++m_parser.m_anidamiento > limites::Anidamiento) {
            const Token& token = m_parser.actual();
            throw Rechazo{{ErrorSql::Clase::DemasiadoProfundo,
                           QStringLiteral("La sentencia tiene demasiados paréntesis, signos o consultas unos dentro de otros: "
                                          "se admiten %1.")
                               .arg(limites::Anidamiento),
                           token.posicion, token.longitud}};
        }
    }
    ~Nivel() { --m_parser.m_anidamiento; }
    Nivel(const Nivel&) = delete;
    Nivel& operator=(const Nivel&) = delete;

private:
    Parser& m_parser;
};

template<class Leer>
auto Parser::conComas(Leer leer)
{
    std::vector<decltype(leer())> lista;
    do
        lista.push_back(leer());
    while (consumeSi(ClaseToken::Coma));
    return lista;
}

template<class Dato>
ast::ExpresionPtr Parser::nodo(Dato dato, ast::Lugar lugar, std::initializer_list<int> debajo)
{
    const int profundidad = 1 + (debajo.size() > 0 ? std::max(debajo) : 0);
    m_masHondo = std::max(m_masHondo, profundidad);
    if (profundidad > limites::ProfundidadArbol)
        throw Rechazo{{ErrorSql::Clase::DemasiadoProfundo,
                       QStringLiteral("La condición o la cuenta tiene demasiados operadores seguidos: se admiten %1.")
                           .arg(limites::ProfundidadArbol),
                       lugar.posicion, lugar.longitud}};
    return std::make_unique<const ast::Expresion>(ast::Expresion{std::move(dato), lugar, profundidad});
}

} // namespace kestrane::jet
