#include "platform/database/odbc/contexto_servidor.h"

namespace kestrane::database::conformidad {

std::unique_ptr<ContextoMotor> creaContexto()
{
    return contextoServidor(QStringLiteral("KestraneMariaTienda"), QStringLiteral("KestraneMariaListados"));
}

} // namespace kestrane::database::conformidad
