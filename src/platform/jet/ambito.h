#pragma once

#include "platform/jet/ast/expresion.h"
#include "platform/jet/enlazado.h"
#include "platform/jet/tipos.h"

#include <optional>
#include <vector>

namespace kestrane::jet {

/// The place of a column in a table, or -1; case ignored, beyond ASCII too.
[[nodiscard]] int indiceDeColumna(const Tabla& tabla, QStringView nombre);

/// The tables that names may mean at one place of a statement. A name that is not found is looked for in the scope outside.
class Ambito
{
public:
    /// `tablas` are all tables of the statement; `fuera` the scope of the query around this one, or nullptr.
    Ambito(const std::vector<const Tabla*>& tablas, const Ambito* fuera) : m_tablas{tablas}, m_fuera{fuera} {}

    /// Makes a table visible under a name; refuses a name that is taken.
    void anade(int fuente, const QString& visible, ast::Lugar lugar);
    /// The scope of a join's condition: what was added from `primera` on, and the same scope outside.
    [[nodiscard]] Ambito desde(size_t primera) const;

    [[nodiscard]] size_t cuantas() const { return m_entradas.size(); }
    [[nodiscard]] std::vector<int> fuentes() const;
    /// The table that is visible under this name here (not outside); refuses any other name.
    [[nodiscard]] int fuente(const QString& visible, ast::Lugar lugar) const;

    /// The column that a name means, or nothing when there is none; refuses a name that means several.
    [[nodiscard]] std::optional<enlazado::Columna> busca(const ast::Columna& columna, ast::Lugar lugar) const;
    /// Refuses a name that means nothing.
    [[nodiscard]] enlazado::Columna resuelve(const ast::Columna& columna, ast::Lugar lugar) const;

private:
    struct Entrada
    {
        int fuente;
        QString visible;
    };

    [[nodiscard]] const Entrada* entrada(QStringView visible) const;
    [[nodiscard]] std::optional<enlazado::Columna> buscaEnTodas(const QString& nombre, ast::Lugar lugar) const;
    [[noreturn]] void columnaDesconocida(const ast::Columna& columna, ast::Lugar lugar) const;
    [[nodiscard]] QString nombresVisibles() const;

    const std::vector<const Tabla*>& m_tablas;
    const Ambito* m_fuera;
    std::vector<Entrada> m_entradas;
};

} // namespace kestrane::jet
