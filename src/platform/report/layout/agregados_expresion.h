#pragma once

#include "platform/report/layout/expresion.h"

#include <optional>

namespace kestrane::report {

/// What layouts call `nombre` ("suma", "cuenta"), case ignored.
[[nodiscard]] std::optional<FuncionAgregado> agregadoDeNombre(QStringView nombre);

/// The level of the group `nombre`, case ignored, where `grupos` go from the outside in; 0 for "informe".
[[nodiscard]] std::optional<int> nivelDeGrupo(const QStringList& grupos, QStringView nombre);

/// The place of `nuevo` in `todos`, to which it is added unless an equal one is there: those are reckoned once. Nothing when there
/// is no room for more.
[[nodiscard]] std::optional<int> apuntaAgregado(std::vector<Agregado>& todos, const Agregado& nuevo);

} // namespace kestrane::report
