#pragma once

#include "instalacion/esquema.h"
#include "platform/jet/catalogo_prueba.h"

namespace kestrane::jet {

/// The catalogue that an engine would give of one of the system's databases.
[[nodiscard]] inline CatalogoPrueba catalogoDe(const instalacion::BaseEsquema& base, Motor motor)
{
    CatalogoPrueba catalogo;
    for (const instalacion::TablaEsquema& descrita : base.tablas) {
        std::vector<Columna> columnas;
        for (const instalacion::ColumnaEsquema& columna : descrita.columnas)
            columnas.push_back(
                {QString(columna.nombre).toLower(), columna.tipo, columna.ancho, columna.nulos == instalacion::Nulos::Admite});
        catalogo.anade(tablaDePrueba(QString(descrita.nombre).toLower(), std::move(columnas), motor));
    }
    return catalogo;
}

} // namespace kestrane::jet
