#include "platform/jet/binder_interno.h"
#include "platform/jet/medida.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;

namespace {

ContextoDeExpresion contextoDe(const Ambito* ambito, QStringView donde)
{
    return {.ambito = ambito, .hayAgregados = nullptr, .sinAgregados = donde.toString(), .grupos = nullptr, .aliases = nullptr};
}

[[noreturn]] void noCabe(const Expresion& valor, const jet::Columna& destino)
{
    tiposIncompatibles(u"En la columna \"%1\" (%2) no se puede escribir %3."_s.arg(destino.nombre, nombreDeTipo(destino.tipo),
                                                                                   nombreDeFamilia(familiaDe(valor.tipo))),
                       valor.lugar);
}

/// Whether a literal of the one type can be turned into the other before it is bound.
bool literalSirve(TipoColumna literal, TipoColumna destino)
{
    if (esTexto(destino))
        return true;
    if (esTexto(literal))
        return destino != TipoColumna::SiNo;
    return familiaDe(literal) == familiaDe(destino);
}

/// Whether a value of that type may be too large for the column. A column's value fits one of its own type.
bool puedeNoCaber(const Expresion& valor, const jet::Columna& destino)
{
    const bool esColumna = std::holds_alternative<enlazado::Columna>(valor.dato);
    switch (destino.tipo) {
    case TipoColumna::Texto:
        return destino.ancho > 0;
    case TipoColumna::Entero32:
        return valor.tipo != TipoColumna::SiNo && !esColumna;
    case TipoColumna::Entero16:
        return valor.tipo != TipoColumna::SiNo && (!esColumna || valor.tipo != TipoColumna::Entero16);
    default:
        return false;
    }
}

ExpresionPtr acotado(ExpresionPtr valor, const jet::Columna& destino)
{
    if (!puedeNoCaber(*valor, destino))
        return valor;
    const ast::Lugar lugar = valor->lugar;
    return nodo(Cabe{std::move(valor), destino.nombre, destino.ancho}, destino.tipo, lugar);
}

} // namespace

Sentencia Binder::enlaza(const ast::Sentencia& leida)
{
    Sentencia enlazada;
    enlazada.dato = std::visit([this](const auto& s) -> decltype(Sentencia::dato) { return sentencia(s); }, leida);
    enlazada.tablas = std::move(m_tablas);
    compruebaMedida(enlazada);
    return enlazada;
}

Consulta Binder::sentencia(const ast::Consulta& leida)
{
    return consulta(leida, nullptr, UsoDeConsulta::Resultado);
}

Insercion Binder::sentencia(const ast::Insercion& leida)
{
    const Ambito ambito = tablaEscrita(leida.tabla);
    const Tabla& tabla = tablaDe(0);
    std::vector<int> columnas;
    columnas.reserve(leida.columnas.size());
    for (const ast::Nombre& nombre : leida.columnas)
        columnas.push_back(columnaEscrita(ambito, nombre, columnas));
    for (int i = 0; leida.columnas.empty() && i < static_cast<int>(tabla.columnas.size()); ++i)
        columnas.push_back(i);
    if (columnas.size() != leida.valores.size())
        throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta,
                       u"Hay %1 columnas y %2 valores."_s.arg(columnas.size()).arg(leida.valores.size()),
                       leida.tabla.lugar.posicion, leida.tabla.lugar.longitud}};
    Insercion insercion;
    insercion.asignaciones.reserve(columnas.size());
    for (size_t i = 0; i < columnas.size(); ++i)
        insercion.asignaciones.push_back(asigna(columnas[i], expresion(*leida.valores[i], contextoDe(nullptr, u"en VALUES"))));
    return insercion;
}

Modificacion Binder::sentencia(const ast::Modificacion& leida)
{
    const Ambito ambito = tablaEscrita(leida.tabla);
    Modificacion modificacion;
    std::vector<int> columnas;
    columnas.reserve(leida.asignaciones.size());
    for (const ast::Asignacion& asignacion : leida.asignaciones) {
        columnas.push_back(columnaEscrita(ambito, asignacion.columna, columnas));
        modificacion.asignaciones.push_back(asigna(columnas.back(), expresion(*asignacion.valor, contextoDe(&ambito, u"en SET"))));
    }
    if (leida.donde)
        modificacion.donde = condicion(*leida.donde, contextoDe(&ambito, u"en WHERE"));
    return modificacion;
}

Borrado Binder::sentencia(const ast::Borrado& leida)
{
    const Ambito ambito = tablaEscrita(leida.tabla);
    Borrado borrado;
    if (leida.donde)
        borrado.donde = condicion(*leida.donde, contextoDe(&ambito, u"en WHERE"));
    return borrado;
}

Ambito Binder::tablaEscrita(const ast::Nombre& tabla)
{
    const int indice = tablaLeida(tabla.texto, tabla.lugar);
    Ambito ambito{m_tablas, nullptr};
    ambito.anade(indice, tabla.texto, tabla.lugar);
    return ambito;
}

int Binder::columnaEscrita(const Ambito& ambito, const ast::Nombre& nombre, const std::vector<int>& anteriores) const
{
    const int columna = ambito.resuelve({{}, nombre.texto}, nombre.lugar).columna;
    if (std::ranges::find(anteriores, columna) != anteriores.end())
        throw Rechazo{{ErrorSql::Clase::SintaxisIncorrecta, u"La columna \"%1\" está dos veces."_s.arg(nombre.texto),
                       nombre.lugar.posicion, nombre.lugar.longitud}};
    return columna;
}

Asignacion Binder::asigna(int columna, ExpresionPtr valor)
{
    return {columna, paraColumna(comoValor(std::move(valor)), tablaDe(0).columnas[static_cast<size_t>(columna)])};
}

/// The value as the column takes it: a literal is converted when it is bound, anything else here or not at all.
ExpresionPtr Binder::paraColumna(ExpresionPtr valor, const jet::Columna& destino)
{
    if (auto* parametro = std::get_if<Parametro>(&valor->dato)) {
        if (!literalSirve(valor->tipo, destino.tipo))
            noCabe(*valor, destino);
        parametro->columna = destino.nombre;
        parametro->ancho = destino.tipo == TipoColumna::Texto ? destino.ancho : 0;
        valor->tipo = destino.tipo;
        return valor;
    }
    if (valor->esNulo()) {
        valor->tipo = destino.tipo;
        return valor;
    }
    if (esTexto(destino.tipo))
        return acotado(comoTexto(std::move(valor)), destino);
    const bool recorta = esEntero(destino.tipo) && destino.tipo != TipoColumna::SiNo && valor->tipo == TipoColumna::Doble;
    if (familiaDe(valor->tipo) != familiaDe(destino.tipo) || recorta)
        noCabe(*valor, destino);
    if (destino.tipo == TipoColumna::SiNo && valor->tipo != TipoColumna::SiNo)
        return comoValor(comoCondicion(std::move(valor)));
    return acotado(std::move(valor), destino);
}

Resultado<Sentencia, ErrorSql> enlaza(const ast::Sentencia& sentencia, Catalogo& catalogo)
{
    return conRechazo([&] { return Binder{catalogo}.enlaza(sentencia); });
}

} // namespace kestrane::jet
