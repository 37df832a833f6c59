#pragma once

#include <QStringView>

/// The flavours of the suite (`TipoPrograma`), by the groups that reports tell apart. Compared in full and with case; a text that
/// is no flavour is in no group.
namespace kestrane {

/// PERFUMERIA, TPV, TALLACOLOR, ZAPATERIA, SUPERMERCADO, PANADERIA.
[[nodiscard]] bool esComercio(QStringView tipoPrograma);
/// TALLACOLOR, ZAPATERIA.
[[nodiscard]] bool esDeTallaYColor(QStringView tipoPrograma);
/// PERFUMERIA, TPV, SUPERMERCADO, PANADERIA.
[[nodiscard]] bool esDeAlimentacionYPerfume(QStringView tipoPrograma);

} // namespace kestrane
