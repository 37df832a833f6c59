#pragma once

#include "platform/database/conexion.h"
#include "platform/database/motor_contado.h"
#include "platform/database/sqlite/base_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane::database {

/// A database with a table `t` of 300 rows, "fila 1" to "fila 300", another with their numbers, and an engine that counts what it
/// is asked for.
class PasosMotor : public testing::Test
{
protected:
    PasosMotor()
    {
        m_conexion.Open(QStringLiteral("dsn=Prueba"));
        m_pasos.aCero();
    }

    sqlite::BaseDePrueba m_base{"create table t (a LONG, b TEXT(50)); create table padres (n LONG); "
                                "with recursive c(i) as (select 1 union all select i + 1 from c where i < 300) "
                                "insert into t select i, 'fila ' || i from c; insert into padres select a from t"};
    Pasos m_pasos;
    EntornoDatos m_entorno{opcionesContadas(m_base.carpeta(), m_pasos)};
    Conexion m_conexion{m_entorno};
};

} // namespace kestrane::database
