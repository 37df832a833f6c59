#pragma once

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {

/// A look-up on a shop of its own.
class PruebaVocabulario : public testing::Test
{
protected:
    void ejecuta(std::initializer_list<QString> sentencias) { m_puesto.tienda.ejecuta(sentencias); }
    void eligeTienda(const QString& tienda) { m_puesto.contexto.TiendaSeleccionada = tienda; }

    /// `accion` on each row that the shop has for `consulta`.
    template<class Accion>
    void porCadaFila(const QString& consulta, Accion accion)
    {
        Recordset filas;
        filas.Open(consulta, m_puesto.contexto.ConexionTienda);
        for (Recordset& fila : filas)
            accion(fila);
    }

    PuestoDePrueba m_puesto;
    Listados& m_listados{m_puesto.listados};
    const Valor m_nulo;
};

} // namespace kestrane::prueba
