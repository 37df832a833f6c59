#pragma once

#include "platform/database/odbc/odbc_altas.h"

namespace kestrane::database::odbc {

/// Arrays of parameters, one for each column: the driver sends them to the server as one bulk.
class AltasMariaDb final : public OdbcAltas
{
public:
    AltasMariaDb(std::shared_ptr<OdbcConexion> conexion, const QString& tabla, std::vector<jet::Columna> columnas);

    void inserta(AlmacenFilas& filas) override;

private:
    struct Lista
    {
        jet::TipoColumna tipo = jet::TipoColumna::Texto;
        qsizetype ancho = 0; ///< bytes of a row's place
        std::vector<char> lugares;
        std::vector<SQLLEN> indicadores;
    };

    void mideAnchos(AlmacenFilas& filas);
    [[nodiscard]] qsizetype filasPorEnvio() const;
    void reserva(qsizetype filas);
    void liga(size_t indice);
    static void pon(Lista& lista, size_t fila, const Celda& celda);
    void envia(qsizetype filas);

    std::shared_ptr<OdbcConexion> m_conexion;
    ManejadorSentencia m_sentencia;
    std::vector<Lista> m_listas;
};

} // namespace kestrane::database::odbc
