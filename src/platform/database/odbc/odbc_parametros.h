#pragma once

#include "platform/database/motor.h"
#include "platform/database/odbc/odbc_conexion.h"

#include <memory>
#include <span>

namespace kestrane::database::odbc {

/// The parameter marks of a statement, bound once to memory that stays where it is; each run only writes the values there.
class OdbcParametros
{
public:
    OdbcParametros(OdbcConexion& conexion, SQLHSTMT sentencia, std::span<const jet::TipoColumna> tipos);

    /// Writes the values of the next run, one for each mark.
    void pon(std::span<const Ligado> valores);

private:
    struct Marca
    {
        jet::TipoColumna tipo = jet::TipoColumna::Texto;
        SQLLEN indicador = SQL_NULL_DATA;
        union
        {
            SQLINTEGER entero32;
            SQLSMALLINT entero16;
            double doble;
            SQL_TIMESTAMP_STRUCT fecha{};
        };
        std::unique_ptr<char[]> texto;
        qsizetype capacidad = 0; ///< bytes of `texto`
    };

    void liga(size_t indice);
    void ponNumero(Marca& marca, double valor);
    void ponFecha(Marca& marca, Fecha valor);
    void ponTexto(size_t indice, QStringView valor);
    [[noreturn]] static void tiposDistintos(size_t indice);

    OdbcConexion& m_conexion;
    SQLHSTMT m_sentencia;
    std::unique_ptr<Marca[]> m_marcas; ///< the driver holds their addresses
    size_t m_cuantas;
};

} // namespace kestrane::database::odbc
