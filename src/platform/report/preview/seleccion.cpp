#include "platform/report/preview/seleccion.h"

#include <QStringList>

namespace kestrane::report {

std::optional<std::pair<LugarTexto, LugarTexto>> Seleccion::enPagina(int pagina, LugarTexto final) const
{
    if (vacia() || pagina < desde().pagina || pagina > hasta().pagina)
        return std::nullopt;
    return std::pair{pagina == desde().pagina ? desde().lugar : LugarTexto{}, pagina == hasta().pagina ? hasta().lugar : final};
}

QString Seleccion::texto(PaginasVista& paginas) const
{
    QStringList todo;
    for (int pagina = desde().pagina; pagina <= hasta().pagina; ++pagina) {
        const TextoPagina texto{paginas.compuesta(pagina)};
        if (const auto trecho = enPagina(pagina, texto.final()))
            todo += texto.entre(trecho->first, trecho->second);
    }
    return todo.join(u'\n');
}

} // namespace kestrane::report
