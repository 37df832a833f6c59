#include "platform/jet/ast/impresor.h"

#include "platform/jet/ast/precedencia.h"
#include "platform/jet/caracteres.h"

#include <QLocale>

#include <limits>

using namespace Qt::StringLiterals;

namespace kestrane::jet::ast {

Precedencia precedenciaDe(const Expresion& expresion)
{
    if (const auto* binaria = std::get_if<Binaria>(&expresion.dato))
        return filaDe(binaria->operador).precedencia;
    if (const auto* unaria = std::get_if<Unaria>(&expresion.dato))
        return unaria->operador == OperadorUnario::No ? Precedencia::No : Precedencia::Signo;
    const bool prueba = std::holds_alternative<Parecido>(expresion.dato) || std::holds_alternative<Entre>(expresion.dato) ||
                        std::holds_alternative<EnLista>(expresion.dato) || std::holds_alternative<EnConsulta>(expresion.dato) ||
                        std::holds_alternative<EsNulo>(expresion.dato);
    return prueba ? Precedencia::Comparacion : Precedencia::Primaria;
}

namespace {

bool esNombreLlano(const QString& nombre)
{
    for (const QChar c : nombre)
        if (c.unicode() > 127 || !tieneRasgo(c.unicode(), DeNombre))
            return false;
    return !nombre.isEmpty() && !nombre[0].isDigit() && !palabraClave(nombre);
}

QString entreCorchetes(const QString& nombre)
{
    return esNombreLlano(nombre) ? nombre : u'[' + nombre + u']';
}

class Impresor
{
public:
    QString texto() && { return std::move(m_texto); }

    void sentencia(const Sentencia& s)
    {
        std::visit([this](const auto& dato) { escribe(dato); }, s);
    }

    void expresion(const Expresion& e)
    {
        std::visit([this](const auto& dato) { escribe(dato); }, e.dato);
    }

    /// An operand, in parentheses when it holds less tightly than its place asks.
    void expresion(const Expresion& e, Precedencia minima)
    {
        if (precedenciaDe(e) >= minima)
            return expresion(e);
        m_texto += u'(';
        expresion(e);
        m_texto += u')';
    }

private:
    void escribe(const Columna& columna)
    {
        if (!columna.tabla.isEmpty())
            m_texto += entreCorchetes(columna.tabla) + u'.';
        m_texto += entreCorchetes(columna.nombre);
    }

    void escribe(const Valor& valor)
    {
        switch (valor.clase) {
        case Literal::Clase::Entero:
            m_texto += QString::number(static_cast<qint64>(valor.numero));
            return;
        case Literal::Clase::Doble:
            doble(valor.numero);
            return;
        case Literal::Clase::Texto:
            m_texto += u'\'' + QString(valor.texto).replace(u"'"_s, u"''"_s) + u'\'';
            return;
        case Literal::Clase::Fecha:
            fecha(valor.fecha);
            return;
        }
    }

    void doble(double numero)
    {
        const QString corto = QString::number(numero, 'g', QLocale::FloatingPointShortest);
        m_texto += corto;
        const bool pareceEntero = !corto.contains(u'.') && !corto.contains(u'e');
        if (pareceEntero && numero <= std::numeric_limits<qint32>::max())
            m_texto += u".0"_s;
    }

    void fecha(Fecha f)
    {
        const auto cifras = [](int numero, int ancho) { return QString::number(numero).rightJustified(ancho, u'0'); };
        m_texto += u'#' + cifras(f.mes(), 2) + u'/' + cifras(f.dia(), 2) + u'/' + cifras(f.anio(), 4);
        if (!f.esMedianoche())
            m_texto += u' ' + cifras(f.hora(), 2) + u':' + cifras(f.minuto(), 2) + u':' + cifras(f.segundo(), 2);
        m_texto += u'#';
    }

    void escribe(Nulo) { m_texto += u"null"_s; }
    void escribe(Logico logico) { m_texto += logico.valor ? u"true"_s : u"false"_s; }

    void escribe(const Unaria& unaria)
    {
        const bool negacion = unaria.operador == OperadorUnario::No;
        m_texto += negacion ? u"not "_s : unaria.operador == OperadorUnario::Menos ? u"-"_s : u"+"_s;
        expresion(*unaria.operando, negacion ? Precedencia::No : Precedencia::Signo);
    }

    void escribe(const Binaria& binaria)
    {
        const FilaDeOperador& fila = filaDe(binaria.operador);
        expresion(*binaria.izquierda, fila.precedencia);
        m_texto += u' ' + nombreDeToken(fila.token).remove(u'"').toLower() + u' ';
        expresion(*binaria.derecha, masFuerte(fila.precedencia));
    }

    void prueba(const ExpresionPtr& valor, Sentido sentido, QStringView palabra)
    {
        expresion(*valor, Precedencia::Comparacion);
        m_texto += sentido == Sentido::Negado ? u" not "_s : u" "_s;
        m_texto += palabra;
    }

    void escribe(const Parecido& parecido)
    {
        prueba(parecido.valor, parecido.sentido, u"like ");
        expresion(*parecido.patron, masFuerte(Precedencia::Comparacion));
    }

    void escribe(const Entre& entre)
    {
        prueba(entre.valor, entre.sentido, u"between ");
        expresion(*entre.desde, masFuerte(Precedencia::Comparacion));
        m_texto += u" and "_s;
        expresion(*entre.hasta, masFuerte(Precedencia::Comparacion));
    }

    void escribe(const EnLista& en)
    {
        prueba(en.valor, en.sentido, u"in (");
        conComas(en.lista, [this](const ExpresionPtr& e) { expresion(*e); });
        m_texto += u')';
    }

    void escribe(const EnConsulta& en)
    {
        prueba(en.valor, en.sentido, u"in (");
        escribe(*en.consulta);
        m_texto += u')';
    }

    void escribe(const EsNulo& es)
    {
        expresion(*es.valor, Precedencia::Comparacion);
        m_texto += es.sentido == Sentido::Negado ? u" is not null"_s : u" is null"_s;
    }

    void escribe(const Llamada& llamada)
    {
        m_texto += entreCorchetes(llamada.funcion) + u'(';
        if (llamada.asterisco)
            m_texto += u'*';
        conComas(llamada.argumentos, [this](const ExpresionPtr& e) { expresion(*e); });
        m_texto += u')';
    }

    void escribe(const Consulta& consulta)
    {
        m_texto += consulta.filas == Filas::Distintas ? u"select distinct "_s : u"select "_s;
        if (consulta.limite) {
            m_texto += u"top "_s;
            expresion(*consulta.limite);
            m_texto += u' ';
        }
        conComas(consulta.lista, [this](const ElementoLista& elemento) { elementoDeLista(elemento); });
        m_texto += u" from "_s;
        conComas(consulta.desde, [this](const FuentePtr& fuente) { escribeFuente(*fuente); });
        clausula(u" where ", consulta.donde);
        if (!consulta.grupos.empty()) {
            m_texto += u" group by "_s;
            conComas(consulta.grupos, [this](const ExpresionPtr& e) { expresion(*e); });
        }
        clausula(u" having ", consulta.teniendo);
        if (!consulta.orden.empty()) {
            m_texto += u" order by "_s;
            conComas(consulta.orden, [this](const ClaveDeOrden& clave) { claveDeOrden(clave); });
        }
    }

    void elementoDeLista(const ElementoLista& elemento)
    {
        if (const auto* asterisco = std::get_if<Asterisco>(&elemento.dato)) {
            m_texto += asterisco->tabla.isEmpty() ? u"*"_s : entreCorchetes(asterisco->tabla) + u".*"_s;
            return;
        }
        const auto& conAlias = std::get<ElementoExpresion>(elemento.dato);
        expresion(*conAlias.expresion);
        if (!conAlias.alias.isEmpty())
            m_texto += u" as "_s + entreCorchetes(conAlias.alias);
    }

    void escribeFuente(const Fuente& fuente)
    {
        if (const auto* tabla = std::get_if<FuenteTabla>(&fuente.dato)) {
            m_texto += entreCorchetes(tabla->nombre);
            if (!tabla->alias.isEmpty())
                m_texto += u" as "_s + entreCorchetes(tabla->alias);
            return;
        }
        const auto& unida = std::get<Union>(fuente.dato);
        escribeFuente(*unida.izquierda);
        m_texto += unida.clase == ClaseUnion::Izquierda ? u" left join "_s : u" inner join "_s;
        const bool parentesis = std::holds_alternative<Union>(unida.derecha->dato);
        m_texto += parentesis ? u"("_s : u""_s;
        escribeFuente(*unida.derecha);
        m_texto += parentesis ? u") on "_s : u" on "_s;
        expresion(*unida.condicion);
    }

    void claveDeOrden(const ClaveDeOrden& clave)
    {
        expresion(*clave.expresion);
        if (clave.direccion == Direccion::Descendente)
            m_texto += u" desc"_s;
    }

    void escribe(const Insercion& insercion)
    {
        m_texto += u"insert into "_s + entreCorchetes(insercion.tabla.texto);
        if (!insercion.columnas.empty()) {
            m_texto += u" ("_s;
            conComas(insercion.columnas, [this](const Nombre& columna) { m_texto += entreCorchetes(columna.texto); });
            m_texto += u')';
        }
        m_texto += u" values ("_s;
        conComas(insercion.valores, [this](const ExpresionPtr& e) { expresion(*e); });
        m_texto += u')';
    }

    void escribe(const Modificacion& modificacion)
    {
        m_texto += u"update "_s + entreCorchetes(modificacion.tabla.texto) + u" set "_s;
        conComas(modificacion.asignaciones, [this](const Asignacion& asignacion) {
            m_texto += entreCorchetes(asignacion.columna.texto) + u" = "_s;
            expresion(*asignacion.valor);
        });
        clausula(u" where ", modificacion.donde);
    }

    void escribe(const Borrado& borrado)
    {
        m_texto += u"delete from "_s + entreCorchetes(borrado.tabla.texto);
        clausula(u" where ", borrado.donde);
    }

    void clausula(QStringView palabra, const ExpresionPtr& condicion)
    {
        if (!condicion)
            return;
        m_texto += palabra;
        expresion(*condicion);
    }

    template<class Lista, class Escribe>
    void conComas(const Lista& lista, Escribe escribeUno)
    {
        bool primero = true;
        for (const auto& elemento : lista) {
            if (!primero)
                m_texto += u", "_s;
            primero = false;
            escribeUno(elemento);
        }
    }

    QString m_texto;
};

} // namespace

QString imprime(const Sentencia& sentencia)
{
    Impresor impresor;
    impresor.sentencia(sentencia);
    return std::move(impresor).texto();
}

QString imprime(const Expresion& expresion)
{
    Impresor impresor;
    impresor.expresion(expresion);
    return std::move(impresor).texto();
}

} // namespace kestrane::jet::ast
