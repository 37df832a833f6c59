#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/expresion.h"
#include "platform/report/layout/funciones_expresion.h"
#include "platform/report/layout/nodo_expresion.h"
#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_ejecucion.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

struct NodoEnlazado
{
    ClaseNodo clase = ClaseNodo::Literal;
    Valor literal = {}; ///< also what stands for the number of pages as long as it is not known
    int indice = 0;     ///< of a column or an aggregate
    const FuncionExpresion* funcion = nullptr;
    std::vector<NodoEnlazado> hijos = {};
};

/// Where a bound expression is evaluated.
struct Evaluacion
{
    const AmbitoExpresion& ambito;
    const ConfiguracionRegional& regional;

    [[nodiscard]] Valor valor(const NodoEnlazado& nodo) const;
};

class ArgumentosEnlazados final : public Argumentos
{
public:
    ArgumentosEnlazados(const NodoEnlazado& nodo, const Evaluacion& evaluacion) : m_nodo{nodo}, m_evaluacion{evaluacion} {}

    [[nodiscard]] int cuantos() const override { return static_cast<int>(m_nodo.hijos.size()); }
    [[nodiscard]] Valor valor(int indice) const override { return m_evaluacion.valor(m_nodo.hijos[static_cast<size_t>(indice)]); }
    [[nodiscard]] const ConfiguracionRegional& regional() const override { return m_evaluacion.regional; }

private:
    const NodoEnlazado& m_nodo;
    const Evaluacion& m_evaluacion;
};

Valor Evaluacion::valor(const NodoEnlazado& nodo) const
{
    switch (nodo.clase) {
    case ClaseNodo::Literal:
        return nodo.literal;
    case ClaseNodo::Columna:
        return ambito.columna(nodo.indice);
    case ClaseNodo::Agregado:
        return ambito.agregado(nodo.indice);
    case ClaseNodo::Pagina:
        return qint32{ambito.pagina()};
    case ClaseNodo::Paginas:
        return ambito.paginas() > 0 ? Valor{qint32{ambito.paginas()}} : nodo.literal;
    case ClaseNodo::Fila:
        return static_cast<double>(ambito.fila());
    case ClaseNodo::Llamada:
        break;
    }
    return nodo.funcion->evalua(ArgumentosEnlazados{nodo, *this});
}

int lugarDeColumna(const QString& nombre, const QStringList& columnas, const LugarLayout& lugar)
{
    const auto hallada =
        std::ranges::find_if(columnas, [&](const QString& c) { return c.compare(nombre, Qt::CaseInsensitive) == 0; });
    if (hallada == columnas.end())
        fallaLayout(lugar, u"la consulta no da ninguna columna «"_s + nombre + u"»; da "_s + columnas.join(u", "_s) + u'.');
    return static_cast<int>(hallada - columnas.begin());
}

} // namespace

struct ExpresionEnlazada::Programa
{
    NodoEnlazado raiz;
    LugarLayout lugar;
    std::vector<int> columnas;
    bool usaPaginas = false;
    bool usaPagina = false;

    /// Where a text comes of it, the unknown number of pages reads "..."; in a reckoning it is Null.
    enum class Lugar { EnTexto, EnCuenta };

    NodoEnlazado enlaza(const NodoExpresion& nodo, const QStringList& nombres, Lugar donde = Lugar::EnTexto)
    {
        NodoEnlazado enlazado{nodo.clase, nodo.literal, nodo.indice, nodo.funcion};
        usaPagina = usaPagina || nodo.clase == ClaseNodo::Pagina;
        if (nodo.clase == ClaseNodo::Paginas) {
            usaPaginas = true;
            enlazado.literal = donde == Lugar::EnTexto ? Valor{u"..."_s} : Valor{};
        }
        if (nodo.clase == ClaseNodo::Columna) {
            enlazado.indice = lugarDeColumna(nodo.nombre, nombres, lugar);
            if (std::ranges::find(columnas, enlazado.indice) == columnas.end())
                columnas.push_back(enlazado.indice);
        }
        enlazado.hijos.reserve(nodo.hijos.size());
        const bool junta = nodo.funcion != nullptr && nodo.funcion->nombre == u"&";
        for (const NodoPtr& hijo : nodo.hijos)
            enlazado.hijos.push_back(enlaza(*hijo, nombres, junta ? Lugar::EnTexto : Lugar::EnCuenta));
        return enlazado;
    }

    /// What `calcula` gives; its errors tell where the expression stands.
    template<class Calculo>
    [[nodiscard]] auto conLugar(Calculo calcula) const
    {
        try {
            return calcula();
        } catch (const ErrorEjecucion& error) {
            throw error.conContexto(describe(lugar) + u'.');
        }
    }
};

ExpresionEnlazada::ExpresionEnlazada() = default;
ExpresionEnlazada::~ExpresionEnlazada() = default;
ExpresionEnlazada::ExpresionEnlazada(ExpresionEnlazada&&) noexcept = default;
ExpresionEnlazada& ExpresionEnlazada::operator=(ExpresionEnlazada&&) noexcept = default;

ExpresionEnlazada::ExpresionEnlazada(const Expresion& expresion, const QStringList& columnas)
{
    if (expresion.vacia())
        return;
    m_programa = std::make_unique<Programa>();
    m_programa->lugar = expresion.lugar();
    m_programa->raiz = m_programa->enlaza(expresion.raiz(), columnas);
}

bool ExpresionEnlazada::vacia() const
{
    return m_programa == nullptr;
}

Valor ExpresionEnlazada::valor(const AmbitoExpresion& ambito, const ConfiguracionRegional& regional) const
{
    if (vacia())
        return {};
    return m_programa->conLugar([&] { return Evaluacion{ambito, regional}.valor(m_programa->raiz); });
}

bool ExpresionEnlazada::cierto(const AmbitoExpresion& ambito, const ConfiguracionRegional& regional) const
{
    if (vacia())
        return true;
    const Valor condicion = valor(ambito, regional);
    return m_programa->conLugar([&] { return !condicion.esNulo() && aLogico(condicion, regional); });
}

std::span<const int> ExpresionEnlazada::columnas() const
{
    return vacia() ? std::span<const int>{} : std::span<const int>{m_programa->columnas};
}

bool ExpresionEnlazada::usaPaginas() const
{
    return !vacia() && m_programa->usaPaginas;
}

bool ExpresionEnlazada::usaPagina() const
{
    return !vacia() && m_programa->usaPagina;
}

} // namespace kestrane::report
