#pragma once

#include "platform/database/almacen_filas.h"
#include "platform/database/odbc/odbc_conexion.h"
#include "platform/jet/tipos.h"

#include <memory>
#include <span>
#include <vector>

namespace kestrane::database::odbc {

/// The columns of a result, bound to blocks of rows. The first block is small, so that a prepared look-up costs little memory; a
/// result that does not fit it gets a large one, which goes when the result ends.
///
/// Texts that are longer than their place in the block are read on their own, whole.
class OdbcColumnas
{
public:
    OdbcColumnas(OdbcConexion& conexion, SQLHSTMT sentencia, std::span<const jet::TipoColumna> tipos);

    /// To be called behind each run, before the first row is asked for.
    void empieza();
    /// Writes the next row into `destino`; false past the last.
    [[nodiscard]] bool siguiente(AlmacenFilas& destino);
    /// Lets go of a large block.
    void termina() noexcept;

private:
    struct Columna
    {
        jet::TipoColumna tipo = jet::TipoColumna::Texto;
        SQLSMALLINT tipoC = SQL_C_CHAR;
        SQLLEN ancho = 0;       ///< bytes of a row's place in the block
        qsizetype posicion = 0; ///< of its first place
        qsizetype indicadores = 0;
    };

    void describe(std::span<const jet::TipoColumna> tipos);
    [[nodiscard]] Columna describeUna(int indice, jet::TipoColumna tipo);
    [[nodiscard]] Columna describeTexto(int indice, jet::TipoColumna tipo);
    [[nodiscard]] SQLSMALLINT tipoDeDriver(int indice) const;
    [[nodiscard]] int filasQueCaben(qsizetype bytes) const;
    void liga(int filas);
    [[nodiscard]] bool leeBloque();
    void exigeFilasBuenas(SQLRETURN resultado);
    void copiaFila(AlmacenFilas& destino);
    void copiaCelda(AlmacenFilas& destino, int indice);
    void copiaFecha(AlmacenFilas& destino, int indice, const char* celda);
    [[noreturn]] void fechaIlegible(int indice, const QString& leida) const;
    [[nodiscard]] QString nombre(int indice) const;
    void copiaTexto(AlmacenFilas& destino, int indice, SQLLEN bytes);
    void leeTextoLargo(AlmacenFilas& destino, int indice, SQLLEN bytes);
    [[nodiscard]] SQLLEN leeTrozo(int indice, char* donde, SQLLEN sitio);
    [[nodiscard]] SQLLEN largoDeTrozo(const char* trozo, SQLLEN sitio) const;
    void ponTexto(AlmacenFilas& destino, const char* texto, SQLLEN bytes) const;
    [[nodiscard]] SQLLEN bytesDelFinal() const { return m_conexion.enUtf8() ? 1 : SQLLEN{sizeof(SQLWCHAR)}; }

    OdbcConexion& m_conexion;
    SQLHSTMT m_sentencia;
    std::vector<Columna> m_columnas;
    qsizetype m_bytesPorFila = 0;
    int m_maximoFilas = 1;
    std::unique_ptr<char[]> m_bloque;
    bool m_bloqueGrande = false;
    std::vector<SQLUSMALLINT> m_estados; ///< of the rows of the block
    int m_filasDelBloque = 0;            ///< rows that fit it
    SQLULEN m_leidas = 0;                ///< rows that it holds
    SQLULEN m_fila = 0;                  ///< the one to be handed out next
    bool m_agotado = false;              ///< no block comes behind this one
    std::vector<char> m_largo;
};

} // namespace kestrane::database::odbc
