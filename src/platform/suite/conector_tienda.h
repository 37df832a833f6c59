#pragma once

#include "platform/database/conexion.h"

#include <QString>

namespace kestrane {

/// The suite's way to the shop database: the program itself knows neither its connection string nor a user.
class ConectorTienda
{
public:
    virtual ~ConectorTienda() = default;
    /// Configures and opens `conexion` on the shop database. `texto` is empty, or the connection string to use in place of the
    /// suite's own. Error -2147467259 when it cannot be opened.
    virtual void AbrirConexion(const QString& texto, Conexion& conexion) = 0;
};

/// Opens the data source "TiendaKestrane".
class ConectorTiendaDsn final : public ConectorTienda
{
public:
    void AbrirConexion(const QString& texto, Conexion& conexion) override;
};

} // namespace kestrane
