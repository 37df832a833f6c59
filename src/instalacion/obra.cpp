#include "instalacion/obra.h"

namespace kestrane::instalacion {

using namespace Qt::StringLiterals;

bool creaIndice(const QString& sentencia)
{
    return sentencia.startsWith("CREATE INDEX"_L1) || sentencia.startsWith("CREATE UNIQUE INDEX"_L1);
}

void ejecuta(database::MotorBase& motor, const QString& sql)
{
    const auto sentencia = motor.prepara(sql.toUtf8(), {}, {});
    sentencia->ejecuta({});
    sentencia->reinicia();
}

} // namespace kestrane::instalacion
