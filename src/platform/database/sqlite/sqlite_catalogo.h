#pragma once

#include "platform/database/sqlite/sqlite_recursos.h"
#include "platform/jet/tipos.h"

#include <QHash>

#include <memory>

namespace kestrane::database::sqlite {

class SqliteMotor;

/// The type that a column's declaration stands for: the suite's own words and those of other programs; a declaration that says
/// nothing follows the engine's affinities.
struct TipoDeclarado
{
    jet::TipoColumna tipo = jet::TipoColumna::Memo;
    int ancho = 0;

    friend bool operator==(const TipoDeclarado&, const TipoDeclarado&) = default;
};
[[nodiscard]] TipoDeclarado tipoDeclarado(QStringView declaracion);

/// The tables of an embedded file, each read when it is first asked for.
class SqliteCatalogo final : public jet::Catalogo
{
public:
    /// `motor` outlives it.
    explicit SqliteCatalogo(SqliteMotor& motor) : m_motor{motor} {}

    [[nodiscard]] const jet::Tabla* tabla(QStringView nombre) override;

private:
    struct Definicion
    {
        QString nombre;
        bool esTabla = true;
        bool sinNumeroDeFila = false;
        bool tieneReglas = false; ///< checks or triggers of its own
    };

    /// The spelling of the file, "" when there is no such table.
    [[nodiscard]] QString nombrePropio(QStringView pedido);
    [[nodiscard]] Definicion definicion(const QString& nombre);
    [[nodiscard]] std::unique_ptr<jet::Tabla> lee(const Definicion& definicion);
    void leeColumnas(const Definicion& definicion, jet::Tabla& tabla);
    [[nodiscard]] bool tieneIndiceUnico(const QString& tabla);

    SqliteMotor& m_motor;
    QHash<QString, std::shared_ptr<jet::Tabla>> m_tablas;
};

} // namespace kestrane::database::sqlite
