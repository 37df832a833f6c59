#include "pipeline/forms/impresoras_del_sistema.h"

#include "platform/printing/impresora.h"

namespace kestrane {

std::vector<ImpresoraInstalada> ImpresorasDelSistema::lista() const
{
    std::vector<ImpresoraInstalada> todas;
    for (const printing::Impresora& una : printing::impresoras())
        todas.push_back({.dispositivo = una.nombre, .controlador = una.controlador, .puerto = una.puerto});
    return todas;
}

} // namespace kestrane
