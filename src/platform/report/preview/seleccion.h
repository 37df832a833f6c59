#pragma once

#include "platform/report/preview/paginas_vista.h"

#include <algorithm>
#include <optional>

namespace kestrane::report {

/// A place in the text of a report.
struct LugarInforme
{
    int pagina = 0;
    LugarTexto lugar;

    friend auto operator<=>(const LugarInforme&, const LugarInforme&) = default;
};

/// The text that is chosen for copying, from where the dragging began to where it is now.
class Seleccion
{
public:
    void empieza(LugarInforme lugar) { m_ancla = m_punta = lugar; }
    void extiende(LugarInforme lugar) { m_punta = lugar; }
    void quita() { m_ancla = m_punta = {}; }

    [[nodiscard]] bool vacia() const { return m_ancla == m_punta; }
    [[nodiscard]] LugarInforme desde() const { return std::min(m_ancla, m_punta); }
    [[nodiscard]] LugarInforme hasta() const { return std::max(m_ancla, m_punta); }
    /// What of a page is chosen, `final` being the end of its text; nothing when none of it is.
    [[nodiscard]] std::optional<std::pair<LugarTexto, LugarTexto>> enPagina(int pagina, LugarTexto final) const;
    /// As text: pages parted by line ends. Tells `avance` after each page how far it is; nothing when that broke it off.
    [[nodiscard]] std::optional<QString> texto(PaginasVista& paginas, const AvanceExportacion& avance = {}) const;

private:
    LugarInforme m_ancla;
    LugarInforme m_punta;
};

} // namespace kestrane::report
