#include "platform/database/odbc/odbc_altas.h"

#include "platform/database/odbc/altas_mariadb.h"
#include "platform/database/odbc/altas_postgresql.h"

namespace kestrane::database::odbc {

std::unique_ptr<OdbcAltas> altasDe(std::shared_ptr<OdbcConexion> conexion, const jet::Tabla& tabla, std::span<const int> columnas)
{
    std::vector<jet::Columna> elegidas;
    for (const int columna : columnas)
        elegidas.push_back(tabla.columnas[static_cast<size_t>(columna)]);
    if (conexion->motor() == jet::Motor::MariaDb)
        return std::make_unique<AltasMariaDb>(std::move(conexion), tabla.nombre, std::move(elegidas));
    return std::make_unique<AltasPostgreSql>(std::move(conexion), tabla.nombre, std::move(elegidas));
}

} // namespace kestrane::database::odbc
