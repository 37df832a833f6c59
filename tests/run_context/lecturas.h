#pragma once

#include "run_context/arranque.h"

namespace kestrane::prueba {

/// What the start reads: the value, the default without a row, the null.
class LecturasTest : public Arranque
{
protected:
    /// A start after `sentencia` was run on the shop as it was made.
    const ContextoEjecucion& tras(const QString& sentencia)
    {
        m_tienda.ejecuta(sentencia);
        return arranca();
    }
    /// A start after the only row of a table was replaced.
    const ContextoEjecucion& conFila(const QString& tabla, const QString& columnas, const QString& valores)
    {
        m_tienda.ejecuta({QStringLiteral("delete from ") + tabla,
                          QStringLiteral("insert into %1 (%2) values (%3)").arg(tabla, columnas, valores)});
        return arranca();
    }
};

} // namespace kestrane::prueba
