#pragma once

#include "platform/database/motor.h"
#include "platform/database/odbc/odbc_columnas.h"
#include "platform/database/odbc/odbc_conexion.h"
#include "platform/database/odbc/odbc_parametros.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace kestrane::database::odbc {

/// A statement prepared once on the server. One without parameters and result goes there as it stands each time: so do those that
/// servers do not prepare (transactions, definitions).
class OdbcSentencia final : public SentenciaMotor
{
public:
    OdbcSentencia(std::shared_ptr<OdbcConexion> conexion, const QByteArray& sql, std::span<const jet::TipoColumna> parametros,
                  std::span<const jet::TipoColumna> resultado);

    void ejecuta(std::span<const Ligado> parametros) override;
    [[nodiscard]] bool siguiente(AlmacenFilas& destino) override;
    [[nodiscard]] qint64 afectadas() const override { return m_afectadas; }
    void reinicia() noexcept override;

private:
    [[nodiscard]] SQLRETURN corre();

    std::shared_ptr<OdbcConexion> m_conexion;
    QString m_directa; ///< its text when it is not prepared
    ManejadorSentencia m_sentencia;
    OdbcParametros m_parametros;
    std::vector<jet::TipoColumna> m_resultado;
    std::optional<OdbcColumnas> m_columnas; ///< from the first run on: only then the drivers know the widths
    qint64 m_afectadas = 0;
};

} // namespace kestrane::database::odbc
