#include "platform/jet/binder_interno.h"
#include "platform/jet/nombres.h"
#include "platform/jet/rechazo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrane::jet {

using namespace enlazado;
using Contexto = ContextoDeExpresion;

namespace {

constexpr int PrimeraExpresionSinNombre = 1000;

Contexto sinAgregados(const Ambito& ambito, QStringView clausula)
{
    return {.ambito = &ambito, .hayAgregados = nullptr, .sinAgregados = clausula.toString(), .grupos = nullptr, .aliases = nullptr};
}

/// The width that a result column takes from the table's column that it shows.
int anchoDe(const Expresion& expresion, const std::vector<const Tabla*>& tablas)
{
    const auto ancho = [&](enlazado::Columna c) {
        return tablas[static_cast<size_t>(c.fuente)]->columnas[static_cast<size_t>(c.columna)].ancho;
    };
    if (const enlazado::Columna* columna = columnaMostrada(expresion))
        return ancho(*columna);
    const auto* agregado = std::get_if<Agregado>(&expresion.dato);
    const bool muestraUno =
        agregado && (agregado->funcion == FuncionAgregada::Maximo || agregado->funcion == FuncionAgregada::Minimo);
    return muestraUno ? anchoDe(*agregado->operando, tablas) : 0;
}

OrdenFinal ordenFinal(const Consulta& consulta, bool agrupada, UsoDeConsulta uso)
{
    if ((agrupada && consulta.grupos.empty()) || (uso == UsoDeConsulta::EnIn && !consulta.limite))
        return OrdenFinal::Ninguno;
    if (consulta.filas == Filas::Distintas)
        return OrdenFinal::PorLista;
    return agrupada ? OrdenFinal::PorGrupos : OrdenFinal::PorFilas;
}

} // namespace

Consulta Binder::consulta(const ast::Consulta& leida, const Ambito* fuera, UsoDeConsulta uso)
{
    Consulta destino;
    const int primeraTabla = static_cast<int>(m_tablas.size());
    Ambito ambito{m_tablas, fuera};
    for (const ast::FuentePtr& una : leida.desde)
        destino.desde.push_back(fuente(*una, ambito));
    destino.fuentes = ambito.fuentes();
    destino.filas = leida.filas;
    const bool agrupada = enlazaCuerpo(leida, ambito, uso, destino);
    compruebaReglas(destino, agrupada);
    if (agrupada && destino.grupos.empty())
        destino.filas = Filas::Todas; // one row is distinct
    destino.ordenFinal = ordenFinal(destino, agrupada, uso);
    if (destino.ordenFinal == OrdenFinal::Ninguno)
        destino.orden.clear();
    if (destino.ordenFinal == OrdenFinal::PorFilas)
        compruebaOrdenPosible(destino, leida.lugar);
    if (uso == UsoDeConsulta::Resultado && !agrupada)
        agrupaDistintas(destino, m_tablas);
    compruebaLimite(destino, primeraTabla, leida.lugar);
    return destino;
}

/// All clauses behind FROM. Groups come before the list, which shows their texts in the oldest spelling. Tells whether there are
/// groups or aggregates.
bool Binder::enlazaCuerpo(const ast::Consulta& leida, const Ambito& ambito, UsoDeConsulta uso, Consulta& destino)
{
    if (leida.limite)
        destino.limite = expresion(*leida.limite, sinAgregados(ambito, u"en TOP"));
    if (leida.donde)
        destino.donde = condicion(*leida.donde, sinAgregados(ambito, u"en WHERE"));
    destino.grupos = grupos(leida, ambito);
    bool hayAgregados = false;
    Contexto contexto{.ambito = &ambito, .hayAgregados = &hayAgregados, .sinAgregados = {}, .grupos = nullptr, .aliases = nullptr};
    if (uso == UsoDeConsulta::Resultado)
        contexto.grupos = &destino.grupos;
    expandeLista(leida, contexto, destino);
    contexto.grupos = nullptr;
    if (leida.teniendo)
        destino.teniendo = condicion(*leida.teniendo, contexto);
    contexto.aliases = &leida;
    for (const ast::ClaveDeOrden& una : leida.orden)
        destino.orden.push_back(clave(una, contexto, destino));
    const bool agrupada = hayAgregados || !destino.grupos.empty();
    if (leida.teniendo && !agrupada)
        throw Rechazo{{ErrorSql::Clase::AgrupacionIncorrecta,
                       u"HAVING necesita GROUP BY o una función de grupo: para elegir filas use WHERE."_s,
                       leida.teniendo->lugar.posicion, leida.teniendo->lugar.longitud}};
    return agrupada;
}

/// Groups, sort keys and what they may use.
void Binder::compruebaReglas(const Consulta& consulta, bool agrupada) const
{
    if (agrupada) {
        for (const Salida& salida : consulta.lista)
            compruebaAgrupacion(*salida.expresion, consulta);
        if (consulta.teniendo)
            compruebaAgrupacion(*consulta.teniendo, consulta);
    }
    for (const Clave& clave : consulta.orden) {
        if (!clave.expresion)
            continue;
        compruebaQueVarie(*clave.expresion);
        if (agrupada)
            compruebaAgrupacion(*clave.expresion, consulta);
        else
            compruebaClave(*clave.expresion, consulta);
    }
}

FuentePtr Binder::fuente(const ast::Fuente& leida, Ambito& ambito)
{
    if (const auto* tabla = std::get_if<ast::FuenteTabla>(&leida.dato)) {
        const int indice = tablaLeida(tabla->nombre, leida.lugar);
        ambito.anade(indice, tabla->alias.isEmpty() ? tabla->nombre : tabla->alias, leida.lugar);
        return std::make_unique<Fuente>(Fuente{indice});
    }
    const auto& unida = std::get<ast::Union>(leida.dato);
    const size_t primera = ambito.cuantas();
    Union destino;
    destino.clase = unida.clase;
    destino.izquierda = fuente(*unida.izquierda, ambito);
    destino.derecha = fuente(*unida.derecha, ambito);
    const Ambito deLaUnion = ambito.desde(primera);
    destino.condicion = condicion(*unida.condicion, sinAgregados(deLaUnion, u"en ON"));
    return std::make_unique<Fuente>(Fuente{std::move(destino)});
}

int Binder::tablaLeida(const QString& nombre, ast::Lugar lugar)
{
    const Tabla* tabla = m_catalogo.tabla(nombre);
    if (!tabla)
        throw Rechazo{
            {ErrorSql::Clase::TablaDesconocida, u"No existe la tabla \"%1\"."_s.arg(nombre), lugar.posicion, lugar.longitud}};
    m_tablas.push_back(tabla);
    return static_cast<int>(m_tablas.size()) - 1;
}

std::vector<ExpresionPtr> Binder::grupos(const ast::Consulta& leida, const Ambito& ambito)
{
    std::vector<ExpresionPtr> destino;
    for (const ast::ExpresionPtr& grupo : leida.grupos) {
        ExpresionPtr enlazada = valor(*grupo, sinAgregados(ambito, u"en GROUP BY"));
        const auto esFija = [](const Expresion& e) { return e.esParametro() || std::holds_alternative<EnConsulta>(e.dato); };
        const auto esColumna = [](const Expresion& e) { return std::holds_alternative<enlazado::Columna>(e.dato); };
        if (alguna(*enlazada, esFija) || !alguna(*enlazada, esColumna))
            throw Rechazo{{ErrorSql::Clase::AgrupacionIncorrecta,
                           u"GROUP BY solo admite columnas y funciones de columnas, sin valores fijos ni consultas."_s,
                           grupo->lugar.posicion, grupo->lugar.longitud}};
        destino.push_back(std::move(enlazada));
    }
    return destino;
}

void Binder::expandeLista(const ast::Consulta& leida, const Contexto& contexto, Consulta& destino)
{
    int sinNombre = PrimeraExpresionSinNombre;
    for (const ast::ElementoLista& elemento : leida.lista) {
        if (const auto* asterisco = std::get_if<ast::Asterisco>(&elemento.dato))
            expandeAsterisco(*asterisco, elemento.lugar, contexto, destino);
        else
            destino.lista.push_back(salida(std::get<ast::ElementoExpresion>(elemento.dato), contexto, sinNombre));
        compruebaCuantas(destino.lista.size(), elemento.lugar);
    }
}

void Binder::expandeAsterisco(const ast::Asterisco& asterisco, ast::Lugar lugar, const Contexto& contexto, Consulta& destino)
{
    std::vector<int> fuentes = destino.fuentes;
    if (!asterisco.tabla.isEmpty())
        fuentes = {contexto.ambito->fuente(asterisco.tabla, lugar)};
    for (const int indice : fuentes) {
        const Tabla& tabla = tablaDe(indice);
        for (int i = 0; i < static_cast<int>(tabla.columnas.size()); ++i) {
            const jet::Columna& descrita = tabla.columnas[static_cast<size_t>(i)];
            destino.lista.push_back({columna({indice, i}, lugar, contexto), descrita.nombre, descrita.ancho, true});
        }
    }
}

Salida Binder::salida(const ast::ElementoExpresion& elemento, const Contexto& contexto, int& sinNombre)
{
    Salida salida;
    salida.expresion = valor(*elemento.expresion, contexto);
    salida.ancho = anchoDe(*salida.expresion, m_tablas);
    salida.nombre = elemento.alias;
    if (!salida.nombre.isEmpty())
        return salida;
    const enlazado::Columna* mostrada = columnaMostrada(*salida.expresion);
    salida.nombre =
        mostrada ? tablaDe(mostrada->fuente).columnas[static_cast<size_t>(mostrada->columna)].nombre : u"Expr%1"_s.arg(sinNombre++);
    return salida;
}

/// A sort key. A name that is no column of the tables may be that of a result column.
Clave Binder::clave(const ast::ClaveDeOrden& leida, const Contexto& contexto, const Consulta& destino)
{
    Clave clave;
    clave.direccion = leida.direccion;
    const auto* nombre = std::get_if<ast::Columna>(&leida.expresion->dato);
    if (nombre && nombre->tabla.isEmpty() && !contexto.ambito->busca(*nombre, leida.expresion->lugar)) {
        const auto conNombre = [&](const Salida& s) { return mismoNombre(s.nombre, nombre->nombre); };
        const auto donde = std::ranges::find_if(destino.lista, conNombre);
        if (donde != destino.lista.end()) {
            clave.salida = static_cast<int>(donde - destino.lista.begin()) + 1;
            return clave;
        }
    }
    clave.expresion = valor(*leida.expresion, contexto);
    if (destino.filas == Filas::Todas)
        return clave;
    const auto igual = [&](const Salida& s) { return iguales(*s.expresion, *clave.expresion); };
    const auto donde = std::ranges::find_if(destino.lista, igual);
    if (donde == destino.lista.end())
        throw Rechazo{{ErrorSql::Clase::ClaveDeOrdenFueraDelResultado,
                       u"Con DISTINCT solo se ordena por lo que está en la lista de SELECT."_s, clave.expresion->lugar.posicion,
                       clave.expresion->lugar.longitud}};
    clave.salida = static_cast<int>(donde - destino.lista.begin()) + 1;
    clave.expresion.reset();
    return clave;
}

void Binder::compruebaOrdenPosible(const Consulta& consulta, ast::Lugar lugar) const
{
    for (const int indice : consulta.fuentes) {
        if (!tablaDe(indice).orden.empty())
            continue;
        throw Rechazo{
            {ErrorSql::Clase::SinOrdenPosible,
             u"La tabla \"%1\" no tiene clave primaria ni columna de identidad, y sin ella sus filas no tienen un orden."_s.arg(
                 tablaDe(indice).nombre),
             lugar.posicion, lugar.longitud}};
    }
}

} // namespace kestrane::jet
