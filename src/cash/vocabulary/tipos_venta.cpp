#include "cash/vocabulary/tipos_venta.h"

#include <algorithm>

namespace kestrane {

namespace {

using enum FamiliaVenta;

constexpr TipoVenta Tipos[] = {
    {u"S", Servicios, u"Servicios", u"Servicios", {}},
    {u"B", Servicios, u"Servicios", u"Servicios", {}},
    {u"CB", Servicios, u"Servicios", u"Servicios", u"Cons.Bono: "},
    {u"P", Productos, u"Productos", u"Productos", {}},
    {u"F", Packs, u"Familias", u"Familias", {}},
    {u"BF", Packs, u"Familias", u"Familias", {}},
    {u"CBF", Packs, u"Familias", u"Familias", u"Cons.Bono: "},
    {u"PSPA", PacksSpa, u"Cabecera_pack_spa", {}, u"Pack Spa - "},
    {u"CPSPA", Ninguna, u"Servicios", {}, u"Cons.Pack Spa: "},
    {u"SF", Ninguna, u"Servicios", {}, u"Servicio de Pack: "},
    {u"CSF", Ninguna, u"Servicios", {}, u"Cons.Pack Servicios: "},
    {u"SP", Ninguna, {}, u"pack", {}},
};

constexpr TipoVenta Desconocido{};

} // namespace

std::span<const TipoVenta> tiposDeVenta()
{
    return Tipos;
}

const TipoVenta& tipoDeVenta(QStringView codigo)
{
    const auto* const tipo = std::ranges::find(Tipos, codigo, &TipoVenta::codigo);
    return tipo == std::end(Tipos) ? Desconocido : *tipo;
}

bool MismaLineaVenta(qint32 codigo1, QStringView tipo1, qint32 codigo2, QStringView tipo2)
{
    if (codigo1 != codigo2)
        return false;
    const FamiliaVenta familia = tipoDeVenta(tipo1).familia;
    const bool afines = familia == tipoDeVenta(tipo2).familia && (familia == Servicios || familia == Packs);
    return tipo1 == tipo2 || afines;
}

} // namespace kestrane
