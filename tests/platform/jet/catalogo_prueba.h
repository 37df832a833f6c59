#pragma once

#include "platform/jet/tipos.h"
#include "platform/jet/traductor.h"

#include <QHash>

#include <memory>
#include <vector>

namespace kestrane::jet {

/// A catalogue of tables that tests make themselves.
class CatalogoPrueba : public Catalogo
{
public:
    CatalogoPrueba() = default;
    explicit CatalogoPrueba(std::vector<Tabla> tablas)
    {
        for (Tabla& tabla : tablas)
            anade(std::move(tabla));
    }

    void anade(Tabla tabla)
    {
        const QString clave = tabla.nombre.toCaseFolded();
        m_tablas.insert(clave, std::make_shared<const Tabla>(std::move(tabla)));
    }
    [[nodiscard]] const Tabla* tabla(QStringView nombre) override
    {
        const auto donde = m_tablas.constFind(nombre.toString().toCaseFolded());
        return donde == m_tablas.cend() ? nullptr : donde->get();
    }

    [[nodiscard]] const QHash<QString, std::shared_ptr<const Tabla>>& tablas() const { return m_tablas; }

private:
    QHash<QString, std::shared_ptr<const Tabla>> m_tablas;
};

/// What an engine sorts stored rows by: SQLite by their number, the servers by the hidden column.
[[nodiscard]] inline QString identidadDe(Motor motor)
{
    return motor == Motor::Sqlite ? QStringLiteral("rowid") : QStringLiteral("orden_");
}

[[nodiscard]] inline Tabla tablaDePrueba(const QString& nombre, std::vector<Columna> columnas, Motor motor = Motor::Sqlite)
{
    Tabla tabla;
    tabla.nombre = nombre;
    tabla.columnas = std::move(columnas);
    tabla.identidad = identidadDe(motor);
    tabla.orden = {tabla.identidad};
    return tabla;
}

/// A shop of four tables, small enough to have in mind while reading a test.
[[nodiscard]] inline CatalogoPrueba tiendaDePrueba(Motor motor = Motor::Sqlite)
{
    using enum TipoColumna;
    const auto obligatoria = [](Columna columna) {
        columna.admiteNulo = false;
        return columna;
    };
    CatalogoPrueba catalogo;
    catalogo.anade(tablaDePrueba(QStringLiteral("ventas"),
                                 {obligatoria({QStringLiteral("numero"), Entero32}),
                                  {QStringLiteral("fecha"), FechaHora},
                                  {QStringLiteral("hora"), FechaHora},
                                  {QStringLiteral("cliente"), Entero32},
                                  {QStringLiteral("pago"), Entero16},
                                  {QStringLiteral("total"), Doble},
                                  {QStringLiteral("tienda"), Texto, 50},
                                  obligatoria({QStringLiteral("borrar"), SiNo})},
                                 motor));
    catalogo.anade(tablaDePrueba(QStringLiteral("lineas"),
                                 {{QStringLiteral("num_venta"), Entero32},
                                  {QStringLiteral("codigo"), Entero32},
                                  {QStringLiteral("tipo"), Texto, 6},
                                  {QStringLiteral("precio"), Doble},
                                  {QStringLiteral("tienda"), Texto, 50}},
                                 motor));
    catalogo.anade(tablaDePrueba(QStringLiteral("clientes"),
                                 {obligatoria({QStringLiteral("codigo"), Entero32}),
                                  {QStringLiteral("nombre"), Texto, 100},
                                  {QStringLiteral("apellidos"), Texto, 100},
                                  {QStringLiteral("notas"), Memo},
                                  {QStringLiteral("nacimiento"), FechaHora}},
                                 motor));
    Tabla sinClave;
    sinClave.nombre = QStringLiteral("sinclave");
    sinClave.columnas = {{QStringLiteral("a"), Entero32}};
    catalogo.anade(sinClave);
    return catalogo;
}

} // namespace kestrane::jet
