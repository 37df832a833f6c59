#include "platform/report/preview/seleccion.h"

#include <QStringList>

namespace kestrane::report {

std::optional<std::pair<LugarTexto, LugarTexto>> Seleccion::enPagina(int pagina, LugarTexto final) const
{
    if (vacia() || pagina < desde().pagina || pagina > hasta().pagina)
        return std::nullopt;
    return std::pair{pagina == desde().pagina ? desde().lugar : LugarTexto{}, pagina == hasta().pagina ? hasta().lugar : final};
}

std::optional<QString> Seleccion::texto(PaginasVista& paginas, const AvanceExportacion& avance) const
{
    QStringList todo;
    const double cuantas = hasta().pagina - desde().pagina + 1;
    for (int pagina = desde().pagina; pagina <= hasta().pagina; ++pagina) {
        const TextoPagina texto{paginas.compuesta(pagina)};
        if (const auto trecho = enPagina(pagina, texto.final()))
            todo += texto.entre(trecho->first, trecho->second);
        if (avance && !avance((pagina - desde().pagina + 1) / cuantas))
            return std::nullopt;
    }
    return todo.join(u'\n');
}

} // namespace kestrane::report
