#include "platform/jet/enlazado.h"

#include <algorithm>

namespace kestrane::jet::enlazado {

namespace {

enum class Literales { ElMismo, Cualquiera };

/// Compares two trees node by node, with one function for each kind: a new kind has to say here when it is equal.
class Comparador
{
public:
    explicit Comparador(Literales literales) : m_literales{literales} {}

    [[nodiscard]] bool iguales(const Expresion& a, const Expresion& b) const
    {
        if (const Columna* columna = columnaMostrada(a)) {
            const Columna* otra = columnaMostrada(b);
            return otra && *otra == *columna;
        }
        if (a.dato.index() != b.dato.index())
            return false;
        return std::visit([&](const auto& x) { return igual(x, std::get<std::decay_t<decltype(x)>>(b.dato)); }, a.dato);
    }

private:
    [[nodiscard]] bool iguales(const ExpresionPtr& a, const ExpresionPtr& b) const { return iguales(*a, *b); }

    template<class Dos>
    [[nodiscard]] bool igualesLosDos(const Dos& x, const Dos& y) const
    {
        return iguales(x.izquierda, y.izquierda) && iguales(x.derecha, y.derecha);
    }

    [[nodiscard]] bool igual(const Columna& x, const Columna& y) const { return x == y; }
    [[nodiscard]] bool igual(const PrimeraGrafia& x, const PrimeraGrafia& y) const { return x.columna == y.columna; }
    [[nodiscard]] bool igual(const Parametro& x, const Parametro& y) const
    {
        return m_literales == Literales::Cualquiera || (x.literal == y.literal && x.negado == y.negado);
    }
    [[nodiscard]] bool igual(const Nulo&, const Nulo&) const { return true; }
    [[nodiscard]] bool igual(const Constante& x, const Constante& y) const { return x.valor == y.valor; }
    [[nodiscard]] bool igual(const Aritmetica& x, const Aritmetica& y) const
    {
        return x.operador == y.operador && igualesLosDos(x, y);
    }
    [[nodiscard]] bool igual(const CambioDeSigno& x, const CambioDeSigno& y) const { return iguales(x.operando, y.operando); }
    [[nodiscard]] bool igual(const TextosUnidos& x, const TextosUnidos& y) const { return igualesLosDos(x, y); }
    [[nodiscard]] bool igual(const ComoTexto& x, const ComoTexto& y) const { return iguales(x.operando, y.operando); }
    [[nodiscard]] bool igual(const Parte& x, const Parte& y) const { return x.parte == y.parte && iguales(x.fecha, y.fecha); }
    [[nodiscard]] bool igual(const Agregado& x, const Agregado& y) const
    {
        const bool delMismo = x.operando && y.operando ? iguales(x.operando, y.operando) : !x.operando && !y.operando;
        return x.funcion == y.funcion && delMismo;
    }
    [[nodiscard]] bool igual(const Cabe& x, const Cabe& y) const
    {
        return x.columna == y.columna && x.ancho == y.ancho && iguales(x.operando, y.operando);
    }
    [[nodiscard]] bool igual(const ComoValor& x, const ComoValor& y) const { return iguales(x.condicion, y.condicion); }
    [[nodiscard]] bool igual(const Logica& x, const Logica& y) const { return x.operador == y.operador && igualesLosDos(x, y); }
    [[nodiscard]] bool igual(const No& x, const No& y) const { return iguales(x.operando, y.operando); }
    [[nodiscard]] bool igual(const Comparacion& x, const Comparacion& y) const
    {
        return x.operador == y.operador && igualesLosDos(x, y);
    }
    [[nodiscard]] bool igual(const Parecido& x, const Parecido& y) const
    {
        return x.sentido == y.sentido && iguales(x.valor, y.valor) && iguales(x.patron, y.patron);
    }
    [[nodiscard]] bool igual(const Entre& x, const Entre& y) const
    {
        return x.sentido == y.sentido && iguales(x.valor, y.valor) && iguales(x.desde, y.desde) && iguales(x.hasta, y.hasta);
    }
    [[nodiscard]] bool igual(const EnLista& x, const EnLista& y) const
    {
        const auto iguales = [this](const ExpresionPtr& a, const ExpresionPtr& b) { return this->iguales(a, b); };
        return x.sentido == y.sentido && iguales(x.valor, y.valor) && std::ranges::equal(x.lista, y.lista, iguales);
    }
    /// Each place of a statement has tables of its own.
    [[nodiscard]] bool igual(const EnConsulta&, const EnConsulta&) const { return false; }
    [[nodiscard]] bool igual(const EsNulo& x, const EsNulo& y) const { return x.sentido == y.sentido && iguales(x.valor, y.valor); }

    Literales m_literales;
};

} // namespace

bool iguales(const Expresion& a, const Expresion& b)
{
    return Comparador{Literales::ElMismo}.iguales(a, b);
}

bool mismaForma(const Expresion& a, const Expresion& b)
{
    return Comparador{Literales::Cualquiera}.iguales(a, b);
}

} // namespace kestrane::jet::enlazado
