#include "platform/report/layout/expresion.h"

#include "platform/report/layout/agregados_expresion.h"
#include "platform/report/layout/cursor_simbolos.h"
#include "platform/report/layout/formato.h"
#include "platform/report/layout/limites.h"
#include "platform/report/layout/nodo_expresion.h"
#include "platform/report/layout/operadores_expresion.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

struct PalabraPropia
{
    QStringView nombre;
    ClaseNodo clase;
};

constexpr PalabraPropia Palabras[] = {{u"pagina", ClaseNodo::Pagina}, {u"paginas", ClaseNodo::Paginas}, {u"fila", ClaseNodo::Fila}};

NodoPtr nodo(NodoExpresion nuevo)
{
    return std::make_shared<const NodoExpresion>(std::move(nuevo));
}

/// By strength of operators: what stands to the right of one takes in the operators that bind tighter.
class AnalizadorExpresion : private CursorSimbolos
{
public:
    AnalizadorExpresion(const QString& texto, const LugarLayout& lugar, ContextoAnalisis& contexto)
        : CursorSimbolos{texto, lugar}
        , m_contexto{contexto}
        , m_alcance{contexto.alcance}
    {
    }

    NodoPtr todo()
    {
        NodoPtr raiz = expresion(0);
        if (actual().clase != ClaseSimbolo::Fin)
            esperaba(u"un operador o el final"_s);
        return raiz;
    }

private:
    /// One level of nesting while it lives.
    class Nivel
    {
    public:
        explicit Nivel(AnalizadorExpresion& analizador) : m_analizador{analizador}
        {
            if (++m_analizador.m_anidamiento > limites::AnidamientoExpresion)
                m_analizador.falla(u"hay demasiados paréntesis y funciones unos dentro de otros."_s);
        }
        ~Nivel() { --m_analizador.m_anidamiento; }
        Nivel(const Nivel&) = delete;
        Nivel& operator=(const Nivel&) = delete;

    private:
        AnalizadorExpresion& m_analizador;
    };

    NodoPtr expresion(int fuerza)
    {
        const Nivel nivel{*this};
        NodoPtr izquierda = delante();
        while (esOperador()) {
            const OperadorExpresion* operador = operadorEntre(actual().texto);
            if (operador == nullptr || operador->fuerza <= fuerza)
                break;
            consume();
            NodoPtr derecha = expresion(operador->fuerza);
            izquierda = nodo({.clase = ClaseNodo::Llamada, .funcion = &operador->funcion, .hijos = {izquierda, derecha}});
        }
        return izquierda;
    }

    NodoPtr delante()
    {
        const OperadorExpresion* operador = esOperador() ? operadorDelante(actual().texto) : nullptr;
        if (operador == nullptr)
            return primario();
        consume();
        NodoPtr de = expresion(operador->fuerza);
        return nodo({.clase = ClaseNodo::Llamada, .funcion = &operador->funcion, .hijos = {de}});
    }

    NodoPtr primario()
    {
        switch (actual().clase) {
        case ClaseSimbolo::Numero:
            return nodo({.literal = consume().numero});
        case ClaseSimbolo::Texto:
            return nodo({.literal = consume().texto});
        case ClaseSimbolo::Nombre:
            return nombre();
        default:
            break;
        }
        if (!consumeSi(u"("))
            esperaba(u"un valor"_s);
        NodoPtr dentro = expresion(0);
        exige(u")");
        return dentro;
    }

    NodoPtr nombre()
    {
        if (operadorEntre(actual().texto) != nullptr)
            esperaba(u"un valor"_s);
        const Simbolo escrito = consume();
        if (consumeSi(u"("))
            return llamada(escrito);
        if (escrito.texto.compare(u"titulo", Qt::CaseInsensitive) == 0)
            return nodo({.literal = m_contexto.titulo});
        const auto* palabra = std::ranges::find_if(
            Palabras, [&](const PalabraPropia& p) { return p.nombre.compare(escrito.texto, Qt::CaseInsensitive) == 0; });
        if (palabra == std::ranges::end(Palabras))
            return nodo({.clase = ClaseNodo::Columna, .nombre = escrito.texto});
        exigeAlcance(escrito);
        return nodo({.clase = palabra->clase});
    }

    void exigeAlcance(const Simbolo& escrito) const
    {
        if (m_alcance == AlcanceExpresion::SoloColumnas)
            fallaEn(escrito, u"«"_s + escrito.texto + u"» no puede estar aquí: solo columnas y cuentas con ellas."_s);
    }

    NodoPtr llamada(const Simbolo& escrito)
    {
        if (const auto agregado = agregadoDeNombre(escrito.texto)) {
            exigeAlcance(escrito);
            return llamadaAgregado(*agregado);
        }
        const FuncionExpresion* funcion = funcionDe(escrito.texto);
        if (funcion == nullptr)
            fallaEn(escrito, u"no hay ninguna función «"_s + escrito.texto + u"»."_s);
        std::vector<NodoPtr> argumentos = leeArgumentos();
        compruebaArgumentos(*funcion, argumentos, escrito);
        return nodo({.clase = ClaseNodo::Llamada, .funcion = funcion, .hijos = std::move(argumentos)});
    }

    std::vector<NodoPtr> leeArgumentos()
    {
        std::vector<NodoPtr> argumentos;
        do
            argumentos.push_back(expresion(0));
        while (consumeSi(u";"));
        if (!consumeSi(u")"))
            esperaba(u"«;» o «)»"_s);
        return argumentos;
    }

    void compruebaArgumentos(const FuncionExpresion& funcion, const std::vector<NodoPtr>& argumentos, const Simbolo& escrito) const
    {
        const int cuantos = static_cast<int>(argumentos.size());
        if (cuantos < funcion.minimo || cuantos > funcion.maximo) {
            const QString pide = funcion.minimo == funcion.maximo ? QString::number(funcion.minimo)
                                                                  : u"de %1 a %2"_s.arg(funcion.minimo).arg(funcion.maximo);
            fallaEn(escrito, u"los argumentos de «%1» han de ser %2 y hay %3."_s.arg(funcion.nombre, pide).arg(cuantos));
        }
        if (funcion.nombre == u"formato" && !esFormato(*argumentos[1]))
            fallaEn(escrito, u"el segundo argumento de «formato» ha de ser el nombre de un formato entre comillas: 'moneda'."_s);
    }

    static bool esFormato(const NodoExpresion& nodo)
    {
        return nodo.clase == ClaseNodo::Literal && nodo.literal.clase() == Valor::Clase::Texto &&
               formatoDeNombre(nodo.literal.texto()).has_value();
    }

    NodoPtr llamadaAgregado(FuncionAgregado funcion)
    {
        Agregado agregado{funcion, {}, m_contexto.nivel};
        if (funcion != FuncionAgregado::Cuenta || !esSigno(u")")) {
            m_alcance = AlcanceExpresion::SoloColumnas; // A sum of sums has no meaning of its own.
            agregado.de = Expresion{expresion(0), lugar()};
            m_alcance = m_contexto.alcance;
            if (consumeSi(u";"))
                agregado.nivel = leeGrupo();
        }
        exige(u")");
        const auto lugar = apuntaAgregado(m_contexto.agregados, agregado);
        if (!lugar)
            falla(u"el informe pide demasiadas sumas y cuentas distintas."_s);
        return nodo({.clase = ClaseNodo::Agregado, .indice = *lugar});
    }

    int leeGrupo()
    {
        const auto nivel = actual().clase == ClaseSimbolo::Nombre ? nivelDeGrupo(m_contexto.grupos, actual().texto) : std::nullopt;
        if (!nivel)
            esperaba(m_contexto.grupos.isEmpty() ? u"«informe» (no hay grupos)"_s
                                                 : u"«informe» o un grupo ("_s + m_contexto.grupos.join(u", "_s) + u')');
        consume();
        return *nivel;
    }

    ContextoAnalisis& m_contexto;
    int m_anidamiento = 0;
    AlcanceExpresion m_alcance;
};

} // namespace

Expresion::Expresion(std::shared_ptr<const NodoExpresion> raiz, LugarLayout lugar)
    : m_raiz{std::move(raiz)}
    , m_lugar{std::move(lugar)}
{
}

Expresion analizaExpresion(const QString& texto, const LugarLayout& lugar, ContextoAnalisis& contexto)
{
    if (texto.size() > limites::LongitudExpresion)
        fallaExpresion(lugar, texto, 0,
                       u"la expresión es demasiado larga: se admiten %1 letras."_s.arg(limites::LongitudExpresion));
    return Expresion{AnalizadorExpresion{texto, lugar, contexto}.todo(), lugar};
}

} // namespace kestrane::report
