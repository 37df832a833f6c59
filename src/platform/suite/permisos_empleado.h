#pragma once

#include "platform/database/conexion.h"

#include <QSet>
#include <QString>

namespace kestrane {

/// What one employee may use. Names of controls do not mind case.
class Permisos
{
public:
    /// A control that was not forbidden is allowed.
    [[nodiscard]] bool permite(const QString& control) const { return !m_vedados.contains(control.toCaseFolded()); }
    void veda(const QString& control) { m_vedados.insert(control.toCaseFolded()); }

private:
    QSet<QString> m_vedados;
};

/// The suite's rights, as data: what windows do with them stands with the windows.
class PermisosEmpleado
{
public:
    virtual ~PermisosEmpleado() = default;
    /// The rights of the employee with that code.
    [[nodiscard]] virtual Permisos leePermisos(Conexion& conexion, qint32 empleado) = 0;
};

/// Reads the shop's table `permisos_listados`. Without the table, or without a row that forbids, all is allowed.
class PermisosEnTabla final : public PermisosEmpleado
{
public:
    [[nodiscard]] Permisos leePermisos(Conexion& conexion, qint32 empleado) override;
};

} // namespace kestrane
