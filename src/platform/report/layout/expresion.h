#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/valor.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <span>
#include <vector>

namespace kestrane::report {

struct NodoExpresion;

/// Where a layout says something: its file, without a path, and the line.
struct LugarLayout
{
    QString fichero;
    int linea = 0;
};

/// An expression of a layout, parsed: a cheap value. The empty one stands for "none".
class Expresion
{
public:
    Expresion() = default;
    /// For the parser.
    Expresion(std::shared_ptr<const NodoExpresion> raiz, LugarLayout lugar);

    [[nodiscard]] bool vacia() const { return m_raiz == nullptr; }
    [[nodiscard]] const NodoExpresion& raiz() const { return *m_raiz; }
    [[nodiscard]] const LugarLayout& lugar() const { return m_lugar; }

private:
    std::shared_ptr<const NodoExpresion> m_raiz;
    LugarLayout m_lugar;
};

/// What is reckoned over the rows of a report or of one of its groups.
enum class FuncionAgregado { Suma, Cuenta, Media, Minimo, Maximo, Acumulado };

/// One aggregate that some expression of a layout asks for; expressions name it by its place in Layout::agregados.
struct Agregado
{
    FuncionAgregado funcion = FuncionAgregado::Suma;
    Expresion de;  ///< over columns alone; Null rows do not count. Empty, for Cuenta alone: every row counts
    int nivel = 0; ///< 0: the whole report; n: the group Layout::grupos[n - 1]. Acumulado begins anew there
};

/// What an expression sees where it is evaluated.
class AmbitoExpresion
{
public:
    virtual ~AmbitoExpresion() = default;
    /// A column of the current row, by its place in the result.
    [[nodiscard]] virtual Valor columna(int indice) const = 0;
    /// The value of Layout::agregados[indice] there.
    [[nodiscard]] virtual Valor agregado(int indice) const = 0;
    /// From 1.
    [[nodiscard]] virtual int pagina() const = 0;
    /// The number of pages, 0 as long as it is not known.
    [[nodiscard]] virtual int paginas() const = 0;
    /// From 1; counts the rows of the report.
    [[nodiscard]] virtual qsizetype fila() const = 0;
};

/// An expression whose columns are found: fast to evaluate many times.
class ExpresionEnlazada
{
public:
    ExpresionEnlazada();
    /// `columnas` are the names of the result, case ignored. ErrorEjecucion LayoutIncorrecto with file, line and name for a column
    /// that is not there.
    ExpresionEnlazada(const Expresion& expresion, const QStringList& columnas);
    ~ExpresionEnlazada();
    ExpresionEnlazada(ExpresionEnlazada&&) noexcept;
    ExpresionEnlazada& operator=(ExpresionEnlazada&&) noexcept;

    [[nodiscard]] bool vacia() const;
    /// Null in gives Null out; `&` joins as the platform's conversion does. ErrorEjecucion (13, 11, 6) with file and line.
    [[nodiscard]] Valor valor(const AmbitoExpresion& ambito, const ConfiguracionRegional& regional) const;
    /// For conditions: true when the value is neither Null nor 0. An empty expression holds.
    [[nodiscard]] bool cierto(const AmbitoExpresion& ambito, const ConfiguracionRegional& regional) const;
    /// The columns that it reads.
    [[nodiscard]] std::span<const int> columnas() const;
    /// Whether it needs the number of pages.
    [[nodiscard]] bool usaPaginas() const;
    /// Whether it needs the number of its page.
    [[nodiscard]] bool usaPagina() const;

private:
    struct Programa;
    std::unique_ptr<Programa> m_programa;
};

/// What an expression may hold: keys are needed before there are pages and sums.
enum class AlcanceExpresion { Todo, SoloColumnas };

/// The groups that an expression may name in its aggregates, from the outside in, and the aggregates found so far.
struct ContextoAnalisis
{
    QStringList grupos;
    int nivel = 0; ///< of an aggregate that names no group: that of the section in which the expression stands
    std::vector<Agregado>& agregados;
    QString titulo = {}; ///< what the word `titulo` stands for: the report's
    AlcanceExpresion alcance = AlcanceExpresion::Todo;
};

/// Parses `texto`. ErrorEjecucion LayoutIncorrecto with file, line and what was expected.
[[nodiscard]] Expresion analizaExpresion(const QString& texto, const LugarLayout& lugar, ContextoAnalisis& contexto);

} // namespace kestrane::report
