#include "pipeline/catalogue/descripcion.h"

#include "pipeline/catalogue/catalogo.h"

#include <algorithm>

namespace kestrane::catalogue {

using namespace Qt::StringLiterals;

namespace {

QStringView tituloDe(Grupo grupo)
{
    const auto todos = grupos();
    const auto suyo = std::ranges::find(todos, grupo, &GrupoMenu::grupo);
    return suyo == todos.end() ? QStringView{} : suyo->titulo;
}

/// The row itself, or the one whose button opens the panel in which it stands.
const FilaCatalogo& filaDelMenu(const FilaCatalogo& fila)
{
    if (fila.grupo != Grupo::frAviso)
        return fila;
    const auto todas = catalogo();
    const auto abre = std::ranges::find_if(todas, [](const FilaCatalogo& una) {
        return una.acciones[0].presente() && una.acciones[0].accion == AccionMenu::EtiquetasDeClientes;
    });
    return abre == todas.end() ? fila : *abre;
}

} // namespace

QString descripcion(const FilaCatalogo& fila)
{
    const FilaCatalogo& delMenu = filaDelMenu(fila);
    const QStringView titulo = tituloDe(delMenu.grupo);
    return titulo.isEmpty() ? delMenu.leyenda.toString() : u"%1: %2"_s.arg(titulo, delMenu.leyenda);
}

} // namespace kestrane::catalogue
