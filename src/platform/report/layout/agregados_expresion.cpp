#include "platform/report/layout/agregados_expresion.h"

#include "platform/report/layout/limites.h"
#include "platform/report/layout/nodo_expresion.h"

#include <algorithm>

namespace kestrane::report {

namespace {

struct NombreAgregado
{
    QStringView nombre;
    FuncionAgregado funcion;
};

constexpr NombreAgregado Nombres[] = {
    {u"suma", FuncionAgregado::Suma},     {u"cuenta", FuncionAgregado::Cuenta}, {u"media", FuncionAgregado::Media},
    {u"minimo", FuncionAgregado::Minimo}, {u"maximo", FuncionAgregado::Maximo}, {u"acumulado", FuncionAgregado::Acumulado},
};

bool sonIguales(const Agregado& a, const Agregado& b)
{
    return a.funcion == b.funcion && a.nivel == b.nivel && a.de.vacia() == b.de.vacia() &&
           (a.de.vacia() || iguales(a.de.raiz(), b.de.raiz()));
}

} // namespace

std::optional<FuncionAgregado> agregadoDeNombre(QStringView nombre)
{
    const auto* hallado =
        std::ranges::find_if(Nombres, [&](const auto& n) { return n.nombre.compare(nombre, Qt::CaseInsensitive) == 0; });
    return hallado == std::ranges::end(Nombres) ? std::nullopt : std::optional{hallado->funcion};
}

std::optional<int> nivelDeGrupo(const QStringList& grupos, QStringView nombre)
{
    if (nombre.compare(u"informe", Qt::CaseInsensitive) == 0)
        return 0;
    const auto hallado =
        std::ranges::find_if(grupos, [&](const QString& g) { return nombre.compare(g, Qt::CaseInsensitive) == 0; });
    return hallado == grupos.end() ? std::nullopt : std::optional{static_cast<int>(hallado - grupos.begin()) + 1};
}

std::optional<int> apuntaAgregado(std::vector<Agregado>& todos, const Agregado& nuevo)
{
    const auto igual = std::ranges::find_if(todos, [&](const Agregado& este) { return sonIguales(este, nuevo); });
    const auto lugar = static_cast<int>(igual - todos.begin());
    if (igual != todos.end())
        return lugar;
    if (todos.size() >= limites::Agregados)
        return std::nullopt;
    todos.push_back(nuevo);
    return lugar;
}

} // namespace kestrane::report
