#include "instalacion/demo/parametros.h"

namespace kestrane::demo {

std::optional<Tamano> tamanoDeTexto(QStringView texto)
{
    if (texto == u"dia")
        return Tamano::Dia;
    if (texto == u"mes")
        return Tamano::Mes;
    if (texto == u"anio")
        return Tamano::Anio;
    if (texto == u"cadena")
        return Tamano::Cadena;
    return std::nullopt;
}

std::optional<TipoTienda> tipoDeTexto(QStringView texto)
{
    for (const TipoTienda tipo : TodosLosTipos) {
        if (sabor(tipo).tipoPrograma == texto)
            return tipo;
    }
    return std::nullopt;
}

} // namespace kestrane::demo
