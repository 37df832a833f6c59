#pragma once

#include "instalacion/esquema.h"
#include "platform/database/motor.h"

#include <gtest/gtest.h>

namespace kestrane::instalacion {

/// The database holds the tables of `base`, column by column as its engine's catalogue reads them, and rows have an order.
inline void expectEsquema(database::MotorBase& motor, const BaseEsquema& base)
{
    for (const TablaEsquema& esperada : base.tablas) {
        SCOPED_TRACE(esperada.nombre.data());
        const jet::Tabla* const tabla = motor.catalogo().tabla(QString{esperada.nombre}.toUpper());
        ASSERT_NE(tabla, nullptr);
        EXPECT_EQ(tabla->nombre, QString{esperada.nombre}.toLower());
        std::vector<jet::Columna> columnas;
        for (const ColumnaEsquema& una : esperada.columnas)
            columnas.push_back({QString{una.nombre}.toLower(), una.tipo, una.ancho, una.nulos == Nulos::Admite});
        EXPECT_EQ(tabla->columnas, columnas);
        EXPECT_EQ(tabla->tieneClavesUnicas, !esperada.claveUnica.isEmpty());
        EXPECT_EQ(tabla->orden.size(), 1U);
        EXPECT_FALSE(tabla->identidad.isEmpty());
        EXPECT_EQ(std::ranges::count(tabla->columnas, tabla->identidad, &jet::Columna::nombre), 0) << "the order is hidden";
    }
}

} // namespace kestrane::instalacion
