#pragma once

#include "platform/database/odbc/odbc_conexion.h"
#include "platform/jet/tipos.h"

#include <QHash>

#include <memory>

namespace kestrane::database::odbc {

/// The column that gives rows their order on servers; hidden from `*`.
inline constexpr char16_t ColumnaDeOrden[] = u"orden_";

/// The tables that a connection sees without naming a schema, each read by one query when it is first asked for.
class OdbcCatalogo final : public jet::Catalogo
{
public:
    explicit OdbcCatalogo(std::shared_ptr<OdbcConexion> conexion) : m_conexion{std::move(conexion)} {}

    [[nodiscard]] const jet::Tabla* tabla(QStringView nombre) override;

private:
    std::shared_ptr<OdbcConexion> m_conexion;
    QHash<QString, std::shared_ptr<jet::Tabla>> m_tablas; ///< by the name without its case
};

/// What a column's type on the server is here; unknown ones are read as texts.
struct TipoServidor
{
    jet::TipoColumna tipo = jet::TipoColumna::Memo;
    int ancho = 0;
    bool esVerdadDelMotor = false; ///< as in jet::Columna

    friend bool operator==(const TipoServidor&, const TipoServidor&) = default;
};
/// `tipo` as the server's catalogue names it ("int4", "varchar"), `ancho` in characters, 0 when unlimited.
[[nodiscard]] TipoServidor tipoDeServidor(jet::Motor motor, QStringView tipo, int ancho);

} // namespace kestrane::database::odbc
