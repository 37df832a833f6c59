#include "platform/database/odbc/contexto_servidor.h"

namespace kestrane::database::conformidad {

std::unique_ptr<ContextoMotor> creaContexto()
{
    return contextoServidor(QStringLiteral("KestranePgTienda"), QStringLiteral("KestranePgListados"));
}

} // namespace kestrane::database::conformidad
