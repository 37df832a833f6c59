#include "platform/jet/renderer_sqlite.h"

#include "platform/jet/sql_identifier.h"

namespace kestrane::jet {

using namespace enlazado;

void RendererSqlite::comoTexto(const Expresion& valor)
{
    const bool fecha = valor.tipo == TipoColumna::FechaHora;
    envuelto({fecha ? "texto_fecha(" : "texto(", ")"}, valor);
}

/// The engine's columns have neither width nor range of their own.
void RendererSqlite::cabe(const Cabe& dato, TipoColumna tipo)
{
    envuelto({tipo == TipoColumna::Texto ? "cabe_texto(" : "cabe_entero(", ", "}, *dato.operando);
    pon(QByteArray::number(tipo == TipoColumna::Texto ? dato.ancho : tipo == TipoColumna::Entero16 ? 16 : 32).constData());
    pon(", ");
    pon(SqlIdentifier{dato.columna}.entre('\'').constData());
    pon(")");
}

/// The connection replaces the function behind LIKE by one that knows the whole alphabet.
void RendererSqlite::parecido(const Parecido& parecido)
{
    expresion(*parecido.valor, PrecedenciaSql::Suma);
    pon(parecido.sentido == ast::Sentido::Negado ? " NOT LIKE " : " LIKE ");
    expresion(*parecido.patron, PrecedenciaSql::Suma);
}

void RendererSqlite::aritmetica(const Aritmetica& cuenta)
{
    using enum OperadorAritmetico;
    const Expresion& izquierda = *cuenta.izquierda;
    const Expresion& derecha = *cuenta.derecha;
    switch (cuenta.operador) {
    case Suma:
        return infija(izquierda, " + ", derecha, PrecedenciaSql::Suma);
    case Resta:
        return infija(izquierda, " - ", derecha, PrecedenciaSql::Suma);
    case Producto:
        return infija(izquierda, " * ", derecha, PrecedenciaSql::Producto);
    case Division:
        return funcion("division", izquierda, derecha);
    case DivisionEntera:
        return funcion("division_entera", izquierda, derecha);
    case Resto:
        return funcion("resto", izquierda, derecha);
    }
}

} // namespace kestrane::jet
