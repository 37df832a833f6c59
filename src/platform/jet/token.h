#pragma once

#include "platform/runtime/fecha.h"

#include <QString>

#include <optional>

// The one list of the dialect's words and signs: the enum, the map of words and the texts of messages are made from it.
#define KESTRANE_JET_PALABRAS(X)                                                                                                   \
    X(All, "all")                                                                                                                  \
    X(And, "and")                                                                                                                  \
    X(As, "as")                                                                                                                    \
    X(Asc, "asc")                                                                                                                  \
    X(Between, "between")                                                                                                          \
    X(By, "by")                                                                                                                    \
    X(Delete, "delete")                                                                                                            \
    X(Desc, "desc")                                                                                                                \
    X(Distinct, "distinct")                                                                                                        \
    X(Exists, "exists")                                                                                                            \
    X(False, "false")                                                                                                              \
    X(From, "from")                                                                                                                \
    X(Group, "group")                                                                                                              \
    X(Having, "having")                                                                                                            \
    X(In, "in")                                                                                                                    \
    X(Inner, "inner")                                                                                                              \
    X(Insert, "insert")                                                                                                            \
    X(Into, "into")                                                                                                                \
    X(Is, "is")                                                                                                                    \
    X(Join, "join")                                                                                                                \
    X(Left, "left")                                                                                                                \
    X(Like, "like")                                                                                                                \
    X(Mod, "mod")                                                                                                                  \
    X(Not, "not")                                                                                                                  \
    X(Null, "null")                                                                                                                \
    X(On, "on")                                                                                                                    \
    X(Or, "or")                                                                                                                    \
    X(Order, "order")                                                                                                              \
    X(Outer, "outer")                                                                                                              \
    X(Right, "right")                                                                                                              \
    X(Select, "select")                                                                                                            \
    X(Set, "set")                                                                                                                  \
    X(Top, "top")                                                                                                                  \
    X(True, "true")                                                                                                                \
    X(Union, "union")                                                                                                              \
    X(Update, "update")                                                                                                            \
    X(Values, "values")                                                                                                            \
    X(Where, "where")

#define KESTRANE_JET_SIGNOS(X)                                                                                                     \
    X(Coma, ",")                                                                                                                   \
    X(Punto, ".")                                                                                                                  \
    X(PuntoYComa, ";")                                                                                                             \
    X(AbreParentesis, "(")                                                                                                         \
    X(CierraParentesis, ")")                                                                                                       \
    X(Igual, "=")                                                                                                                  \
    X(Distinto, "<>")                                                                                                              \
    X(Menor, "<")                                                                                                                  \
    X(MenorIgual, "<=")                                                                                                            \
    X(Mayor, ">")                                                                                                                  \
    X(MayorIgual, ">=")                                                                                                            \
    X(Mas, "+")                                                                                                                    \
    X(Menos, "-")                                                                                                                  \
    X(Asterisco, "*")                                                                                                              \
    X(Barra, "/")                                                                                                                  \
    X(BarraInversa, "\\")                                                                                                          \
    X(Ampersand, "&")

namespace kestrane::jet {

enum class ClaseToken : quint8 {
    Fin,
    Nombre,
    Entero,
    Doble,
    Texto,
    Fecha,
#define KESTRANE_JET_VALOR(nombre, texto) nombre,
    KESTRANE_JET_PALABRAS(KESTRANE_JET_VALOR) KESTRANE_JET_SIGNOS(KESTRANE_JET_VALOR)
#undef KESTRANE_JET_VALOR
};

/// One word, sign or literal, with its place. It points into the statement's text.
struct Token
{
    ClaseToken clase = ClaseToken::Fin;
    int posicion = 0;
    int longitud = 0;
    QStringView texto; ///< a name without its brackets; a text literal between its apostrophes, as written
    double numero = 0; ///< of Entero and Doble
    kestrane::Fecha fecha;
    int literal = -1; ///< which literal of the statement it is, in the order of the text

    friend bool operator==(const Token&, const Token&) = default;
};

/// The keyword that a word is, case ignored, if it is one.
[[nodiscard]] std::optional<ClaseToken> palabraClave(QStringView palabra);

/// The sign that begins with these characters; the longest, so "<=" before "<". `longitud` takes its length.
[[nodiscard]] std::optional<ClaseToken> signo(char16_t primero, char16_t segundo, int& longitud);

/// How a kind of token is named in a message: "SELECT", "\"=\"", "un nombre".
[[nodiscard]] QString nombreDeToken(ClaseToken clase);

[[nodiscard]] constexpr bool esLiteral(ClaseToken clase)
{
    return clase >= ClaseToken::Entero && clase <= ClaseToken::Fecha;
}

} // namespace kestrane::jet
