#pragma once

#include <QStringView>

#include <optional>
#include <span>

namespace kestrane {

/// A control of the menu that not every flavour shows. The states are those after the menu has adapted itself.
struct VisibilidadControl
{
    QStringView control;
    bool diseno;       ///< as the form is built
    bool peluqueria;   ///< PELUQUERIA
    bool spa;          ///< SPA
    bool estetica;     ///< ESTETICA, CLINICAS
    bool comercio;     ///< PERFUMERIA, TPV, PANADERIA
    bool tallaColor;   ///< TALLACOLOR, ZAPATERIA
    bool supermercado; ///< SUPERMERCADO
};

[[nodiscard]] std::span<const VisibilidadControl> visibilidades();

/// Whether a flavour shows the control; nothing for a text that is no flavour, compared in full and with case: such a menu stays as
/// it is built.
[[nodiscard]] std::optional<bool> loMuestra(const VisibilidadControl& control, QStringView tipoPrograma);

/// True for a control that the form is built with out of sight and that no flavour shows.
[[nodiscard]] bool siempreOculto(QStringView control);

} // namespace kestrane
