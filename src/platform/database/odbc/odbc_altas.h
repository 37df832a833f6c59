#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/odbc/odbc_conexion.h"
#include "platform/jet/tipos.h"

#include <memory>
#include <span>
#include <vector>

namespace kestrane::database::odbc {

/// Many rows for one table, by the way that costs the server and its driver least; prepared once.
class OdbcAltas
{
public:
    virtual ~OdbcAltas() = default;

    /// Inserts all rows of `filas` in order, one field for each column. Nothing is inserted when it throws.
    virtual void inserta(AlmacenFilas& filas) = 0;
};

/// For rows that hold the columns `columnas` of `tabla`.
[[nodiscard]] std::unique_ptr<OdbcAltas> altasDe(std::shared_ptr<OdbcConexion> conexion, const jet::Tabla& tabla,
                                                 std::span<const int> columnas);

} // namespace kestrane::database::odbc
