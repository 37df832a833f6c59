#include "pipeline/forms/visibilidad_menu.h"

#include "pipeline/sabores.h"

#include <algorithm>

namespace kestrane {

namespace {

constexpr bool X = true; ///< shown
constexpr bool O = false;

// In the order of the members: as built, PELUQUERIA, SPA, ESTETICA and CLINICAS; shops, those of sizes and colours, SUPERMERCADO.
constexpr VisibilidadControl Visibilidades[] = {
    {u"cmdAlbaranes", O, O, O, O, X, X, X},           //
    {u"cmd_Ventas1", X, X, X, X, O, O, O},            //
    {u"cmd_Ventas4", O, O, X, O, O, O, O},            //
    {u"cmd_Ventas20", O, O, O, O, O, X, O},           //
    {u"cmd_Generales4", X, X, X, X, O, O, O},         //
    {u"cmd_Generales5", O, O, X, O, O, O, O},         //
    {u"cmd_Generales7", X, O, X, X, O, O, O},         //
    {u"cmd_Generales21", O, O, O, O, X, X, X},        //
    {u"cmd_Generales22", O, O, O, O, X, X, X},        //
    {u"cmd_GeneralesCliDinDep", X, X, X, X, O, O, O}, //
    {u"Command5", X, X, X, X, O, O, O},               //
    {u"Frame11", X, X, X, X, O, O, O},                //
    {u"Frame10", X, X, X, X, X, X, O},                //
    {u"Command11", X, X, X, X, X, O, O},              //
    {u"Command12", X, X, X, X, X, O, O},              //
    {u"Command19", X, X, X, X, X, O, O},              //
    {u"fr_TallaColor", O, O, O, O, O, X, O},          //
};

constexpr QStringView SinUso[] = {u"cmdListados", u"Command1", u"Command3", u"cmd_Estadisticas6"};

/// The column of a flavour's states.
bool VisibilidadControl::*columnaDe(QStringView tipoPrograma)
{
    if (esDeTallaYColor(tipoPrograma))
        return &VisibilidadControl::tallaColor;
    if (tipoPrograma == u"SUPERMERCADO")
        return &VisibilidadControl::supermercado;
    if (esComercio(tipoPrograma))
        return &VisibilidadControl::comercio;
    if (tipoPrograma == u"PELUQUERIA")
        return &VisibilidadControl::peluqueria;
    if (tipoPrograma == u"SPA")
        return &VisibilidadControl::spa;
    if (tipoPrograma == u"ESTETICA" || tipoPrograma == u"CLINICAS")
        return &VisibilidadControl::estetica;
    return nullptr;
}

} // namespace

std::span<const VisibilidadControl> visibilidades()
{
    return Visibilidades;
}

std::optional<bool> loMuestra(const VisibilidadControl& control, QStringView tipoPrograma)
{
    if (const auto columna = columnaDe(tipoPrograma))
        return control.*columna;
    return std::nullopt;
}

bool siempreOculto(QStringView control)
{
    return std::find(std::begin(SinUso), std::end(SinUso), control) != std::end(SinUso);
}

} // namespace kestrane
