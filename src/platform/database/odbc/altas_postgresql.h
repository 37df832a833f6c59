#pragma once

#include "platform/database/bloque_bytes.h"
#include "platform/database/odbc/odbc_altas.h"

namespace kestrane::database::odbc {

/// One statement for any number of rows: each column goes as one array, and the server takes them apart again. Row by row, and as
/// rows of VALUES too, the driver is several times slower.
class AltasPostgreSql final : public OdbcAltas
{
public:
    AltasPostgreSql(std::shared_ptr<OdbcConexion> conexion, const QString& tabla, std::vector<jet::Columna> columnas);

    void inserta(AlmacenFilas& filas) override;

private:
    /// A column of the rows to be sent, as the text of an array.
    struct Lista
    {
        jet::TipoColumna tipo = jet::TipoColumna::Texto;
        BloqueBytes texto;
        QString ancho; ///< the same for a driver that takes UTF-16
        SQLLEN bytes = 0;
    };

    void anade(const AlmacenFilas& filas);
    [[nodiscard]] qsizetype bytesReunidos() const;
    void envia();
    void liga(size_t indice);
    void vacia();

    std::shared_ptr<OdbcConexion> m_conexion;
    ManejadorSentencia m_sentencia;
    std::vector<Lista> m_listas;
};

/// Appends a field to the text of an array, with the mark before it.
void anadeElemento(BloqueBytes& texto, const Celda& celda, jet::TipoColumna tipo);

} // namespace kestrane::database::odbc
