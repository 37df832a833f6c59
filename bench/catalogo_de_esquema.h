#pragma once

#include "instalacion/esquema.h"
#include "platform/jet/tipos.h"

#include <map>

namespace kestrane::bench {

/// The shop's tables as an engine's catalogue gives them, without an engine.
class CatalogoDeEsquema : public jet::Catalogo
{
public:
    /// `orden` is the column that keeps the stored order: "rowid" on SQLite, "orden_" on the servers.
    explicit CatalogoDeEsquema(const QString& orden)
    {
        for (const instalacion::TablaEsquema& tabla : instalacion::baseTienda().tablas) {
            jet::Tabla& descrita = m_tablas[QString{tabla.nombre}.toLower()];
            descrita.nombre = QString{tabla.nombre}.toLower();
            descrita.orden = {orden};
            descrita.identidad = orden;
            for (const instalacion::ColumnaEsquema& columna : tabla.columnas)
                descrita.columnas.push_back({QString{columna.nombre}.toLower(), columna.tipo, columna.ancho, true});
        }
    }
    const jet::Tabla* tabla(QStringView nombre) override
    {
        const auto encontrada = m_tablas.find(nombre.toString().toLower());
        return encontrada == m_tablas.end() ? nullptr : &encontrada->second;
    }

private:
    std::map<QString, jet::Tabla> m_tablas;
};

} // namespace kestrane::bench
