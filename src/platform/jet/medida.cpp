#include "platform/jet/medida.h"

#include "platform/jet/limites.h"
#include "platform/jet/rechazo.h"
#include "platform/jet/renderer_interno.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;

namespace {

// Symbols before an operand, as the renderers write it and SQLite's grammar reads it.
constexpr int TrasSigno = 1;
constexpr int TrasParentesis = 1;
constexpr int TrasOperador = 2;    // value operator
constexpr int TrasFuncion = 3;     // name ( distinct
constexpr int TrasSegundo = 5;     // name ( distinct list ,
constexpr int TrasY = 4;           // value BETWEEN value AND
constexpr int TrasIn = 3;          // value IN (
constexpr int TrasElemento = 5;    // value IN ( list ,
constexpr int TrasSelect = 4;      // SELECT distinct list blank
constexpr int TrasUnion = 6;       // join ( for SQLite; MariaDB plans 20 of them for minutes
constexpr int TrasOn = 9;          // SELECT distinct list FROM tables name base alias ON
constexpr int TrasWhere = 5;       // SELECT distinct list from WHERE
constexpr int TrasGrupo = 10;      // SELECT distinct list from where GROUP BY list ,
constexpr int TrasHaving = 7;      // SELECT distinct list from where groups HAVING
constexpr int TrasClave = 11;      // SELECT distinct list from where groups having ORDER BY list ,
constexpr int TrasAsignacion = 11; // statement with UPDATE conflict name index SET list , name =
constexpr int DeColumna = 3;       // alias . name
constexpr int DeGrafia = 14;       // SUBSTR ( distinct MIN ( distinct PRINTF ( distinct list , alias . name
constexpr int DeSelect = 14;       // what a statement or sub-query holds by itself
constexpr int AlturaDeGrafia = 6;

/// A part of something, what stands open before it and how often an engine writes it.
struct Parte
{
    Medida medida;
    int detras = 0;
    int veces = 1;
};

/// What is made of parts and puts so many levels of expression above them, none for a list.
Medida junta(int niveles, std::initializer_list<Parte> partes)
{
    Medida todo{.abiertos = 1, .altura = 0, .escritos = niveles > 0 ? 1 : 0};
    for (const Parte& parte : partes) {
        todo.abiertos = std::max(todo.abiertos, parte.detras + parte.medida.abiertos);
        todo.altura = std::max(todo.altura, parte.medida.altura);
        todo.escritos += parte.veces * parte.medida.escritos;
    }
    todo.altura += niveles;
    return todo;
}

/// An operand in its place: in parentheses where the renderers write them.
Medida operando(const ExpresionPtr& e, PrecedenciaSql minima)
{
    Medida suya = medida(*e);
    suya.abiertos += precedenciaDe(*e) < minima ? TrasParentesis : 0;
    return suya;
}

/// With the collation behind it.
Medida cotejada(const ExpresionPtr& e)
{
    return junta(1, {{operando(e, esTexto(e->tipo) ? PrecedenciaSql::Primaria : PrecedenciaSql::Suma)}});
}

Medida infija(const ExpresionPtr& izquierda, const ExpresionPtr& derecha, PrecedenciaSql deIzquierda, PrecedenciaSql deDerecha)
{
    return junta(1, {{operando(izquierda, deIzquierda)}, {operando(derecha, deDerecha), TrasOperador}});
}

Medida funcion(const ExpresionPtr& primero, const ExpresionPtr& segundo, int vecesElSegundo)
{
    return junta(1, {{medida(*primero), TrasFuncion}, {medida(*segundo), TrasSegundo, vecesElSegundo}});
}

Medida consulta(const Consulta& una);

Medida nodo(const enlazado::Columna&)
{
    return {.abiertos = DeColumna};
}

Medida nodo(const PrimeraGrafia&)
{
    return {.abiertos = DeGrafia, .altura = AlturaDeGrafia, .escritos = 3};
}

Medida nodo(const enlazado::Parametro&)
{
    return {};
}

Medida nodo(const Nulo&)
{
    return {};
}

Medida nodo(const Constante&)
{
    return {.abiertos = 2, .altura = 2};
}

/// MariaDB writes a divisor twice.
Medida nodo(const Aritmetica& cuenta)
{
    const ExpresionPtr& izquierda = cuenta.izquierda;
    const ExpresionPtr& derecha = cuenta.derecha;
    switch (cuenta.operador) {
    case OperadorAritmetico::Suma:
    case OperadorAritmetico::Resta:
        return infija(izquierda, derecha, PrecedenciaSql::Suma, PrecedenciaSql::Producto);
    case OperadorAritmetico::Producto:
        return infija(izquierda, derecha, PrecedenciaSql::Producto, PrecedenciaSql::Signo);
    case OperadorAritmetico::Division:
    case OperadorAritmetico::DivisionEntera:
    case OperadorAritmetico::Resto:
        return funcion(izquierda, derecha, 2);
    }
    Q_UNREACHABLE();
}

Medida nodo(const CambioDeSigno& cambio)
{
    return junta(1, {{operando(cambio.operando, PrecedenciaSql::Primaria), TrasSigno}});
}

/// Either side may be put into a function that makes a Null the empty text.
Medida nodo(const TextosUnidos& unidos)
{
    const Medida izquierda = junta(1, {{operando(unidos.izquierda, PrecedenciaSql::Comparacion)}});
    const Medida derecha = junta(1, {{operando(unidos.derecha, PrecedenciaSql::Comparacion), TrasFuncion}});
    const bool cadena = std::holds_alternative<TextosUnidos>(unidos.izquierda->dato);
    return junta(1, {{izquierda, cadena ? 0 : TrasFuncion}, {derecha, TrasOperador}});
}

/// A date is written five times, but it is never more than a column or its maximum.
Medida nodo(const ComoTexto& texto)
{
    const int veces = texto.operando->tipo == TipoColumna::FechaHora ? 5 : 1;
    return junta(3, {{operando(texto.operando, PrecedenciaSql::Suma), TrasFuncion, veces}});
}

Medida nodo(const enlazado::Parte& parte)
{
    return junta(1, {{medida(*parte.fecha), TrasFuncion}});
}

Medida nodo(const Agregado& agregado)
{
    return agregado.operando ? junta(1, {{cotejada(agregado.operando), TrasFuncion}}) : Medida{.abiertos = TrasFuncion};
}

Medida nodo(const Cabe& cabe)
{
    return junta(1, {{medida(*cabe.operando), TrasFuncion}});
}

Medida nodo(const ComoValor& valor)
{
    return junta(1, {{medida(*valor.condicion), TrasSigno + TrasParentesis}});
}

Medida nodo(const Logica& logica)
{
    const PrecedenciaSql minima = logica.operador == OperadorLogico::O ? PrecedenciaSql::O : PrecedenciaSql::Y;
    return infija(logica.izquierda, logica.derecha, minima, minima);
}

Medida nodo(const No& negacion)
{
    return junta(1, {{operando(negacion.operando, PrecedenciaSql::Comparacion), TrasSigno}});
}

Medida nodo(const Comparacion& comparacion)
{
    return junta(1, {{cotejada(comparacion.izquierda)}, {operando(comparacion.derecha, PrecedenciaSql::Suma), TrasOperador}});
}

Medida nodo(const Parecido& parecido)
{
    return junta(1, {{cotejada(parecido.valor)}, {operando(parecido.patron, PrecedenciaSql::Primaria), TrasOperador}});
}

Medida nodo(const Entre& entre)
{
    return junta(1, {{cotejada(entre.valor)},
                     {operando(entre.desde, PrecedenciaSql::Suma), TrasOperador},
                     {operando(entre.hasta, PrecedenciaSql::Suma), TrasY}});
}

Medida nodo(const EnLista& en)
{
    Medida todo = junta(1, {{cotejada(en.valor)}});
    for (const ExpresionPtr& elemento : en.lista)
        todo = junta(0, {{todo}, {junta(1, {{medida(*elemento)}}), TrasElemento}});
    return todo;
}

Medida nodo(const EnConsulta& en)
{
    return junta(1, {{cotejada(en.valor)}, {consulta(*en.consulta), TrasIn}});
}

Medida nodo(const EsNulo& prueba)
{
    return junta(1, {{operando(prueba.valor, PrecedenciaSql::Suma)}});
}

/// Sums up what stands one behind another.
class Suma
{
public:
    void anade(const Medida& parte, int detras) { m_todo = junta(0, {{m_todo}, {parte, detras}}); }
    void anade(const ExpresionPtr& expresion, int detras)
    {
        if (expresion)
            anade(cotejada(expresion), detras);
    }
    void anade(const Fuente& fuente, int detras)
    {
        const auto* unida = std::get_if<Union>(&fuente.dato);
        if (!unida)
            return;
        const bool parentesis = std::holds_alternative<Union>(unida->derecha->dato);
        anade(Medida{.escritos = 3}, detras);
        anade(*unida->izquierda, detras);
        anade(*unida->derecha, detras + (parentesis ? TrasUnion : 0));
        anade(unida->condicion, detras);
    }
    [[nodiscard]] const Medida& todo() const { return m_todo; }

private:
    Medida m_todo{.abiertos = DeSelect, .altura = 1, .escritos = 0};
};

Medida consulta(const Consulta& una)
{
    Suma suma;
    for (const Salida& salida : una.lista)
        suma.anade(salida.expresion, TrasSelect);
    for (const FuentePtr& fuente : una.desde)
        suma.anade(*fuente, TrasOn);
    suma.anade(una.donde, TrasWhere);
    for (const ExpresionPtr& grupo : una.grupos)
        suma.anade(grupo, TrasGrupo);
    suma.anade(una.teniendo, TrasHaving);
    for (const Clave& clave : una.orden)
        suma.anade(clave.expresion, TrasClave);
    return suma.todo();
}

Medida sentencia(const Consulta& una)
{
    return consulta(una);
}

Medida asignaciones(const std::vector<Asignacion>& todas, const ExpresionPtr& donde)
{
    Suma suma;
    for (const Asignacion& asignacion : todas)
        suma.anade(asignacion.valor, TrasAsignacion);
    suma.anade(donde, TrasAsignacion);
    return suma.todo();
}

Medida sentencia(const Insercion& insercion)
{
    return asignaciones(insercion.asignaciones, nullptr);
}

Medida sentencia(const Modificacion& modificacion)
{
    return asignaciones(modificacion.asignaciones, modificacion.donde);
}

Medida sentencia(const Borrado& borrado)
{
    return asignaciones({}, borrado.donde);
}

void exigeQueQuepa(const Medida& medida, ast::Lugar lugar)
{
    if (medida.abiertos > limites::Abiertos || medida.altura > limites::Altura)
        throw Rechazo{{ErrorSql::Clase::DemasiadoProfundo,
                       u"Hay demasiadas cuentas, condiciones o consultas unas dentro de otras: divida la sentencia en varias."_s,
                       lugar.posicion, lugar.longitud}};
    if (medida.escritos > limites::Escritos)
        throw Rechazo{{ErrorSql::Clase::DemasiadoLargo,
                       u"La sentencia tiene demasiados operandos o divisiones dentro de otras: divídala en varias."_s,
                       lugar.posicion, lugar.longitud}};
}

} // namespace

Medida medida(const Expresion& expresion)
{
    const Medida suya = std::visit([](const auto& dato) { return nodo(dato); }, expresion.dato);
    exigeQueQuepa(suya, expresion.lugar);
    return suya;
}

void compruebaMedida(const Sentencia& una)
{
    exigeQueQuepa(std::visit([](const auto& dato) { return sentencia(dato); }, una.dato), {});
}

} // namespace kestrane::jet
