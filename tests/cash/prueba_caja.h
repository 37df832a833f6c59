#pragma once

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {

/// A cash report on a shop of its own, on 15 March 2024 unless a period is set.
class PruebaCaja : public testing::Test
{
protected:
    PruebaCaja() { periodo(dia(2024, 3, 15), dia(2024, 3, 15)); }

    void periodo(Fecha desde, Fecha hasta)
    {
        m_puesto.contexto.FechaDesde = desde;
        m_puesto.contexto.FechaHasta = hasta;
    }
    void marzo() { periodo(dia(2024, 3, 1), dia(2024, 3, 31)); }

    void ejecuta(std::initializer_list<QString> sentencias) { m_puesto.tienda.ejecuta(sentencias); }
    /// A row of a table of the shop: "columna, columna" and "valor, valor".
    void alta(const QString& tabla, const QString& columnas, const QString& valores)
    {
        m_puesto.tienda.ejecuta(QStringLiteral("insert into %1 (%2) values (%3)").arg(tabla, columnas, valores));
    }

    PuestoDePrueba m_puesto;
    Listados& m_listados{m_puesto.listados};
    ContextoEjecucion& m_contexto{m_puesto.contexto};
};

} // namespace kestrane::prueba
