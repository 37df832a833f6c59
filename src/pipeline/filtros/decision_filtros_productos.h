#pragma once

#include "run_context/contexto_ejecucion.h"

#include <span>

namespace kestrane {

/// The four blocks on the first page of frmFiltrosProductos.
enum class BloqueProductos { Proveedor, Seccion, Tipo, BajoMinimo };

/// What stands over a block, and begins the title of a listing chosen in it.
[[nodiscard]] QString leyendaDe(BloqueProductos bloque);

/// An option of the block by class of product.
struct OpcionDeClase
{
    QStringView control;
    QStringView leyenda;
    QStringView clase; ///< "V", "CI", "A" or "" (all)
    QStringView titulo;
};

/// As they stand in the block.
[[nodiscard]] std::span<const OpcionDeClase> opcionesDeClase();

/// What frmFiltrosProductos sets: which products are listed, and under what title. Their order is a press of ordenes.h.
class DecisionFiltrosProductos
{
public:
    /// The context outlives the object.
    explicit DecisionFiltrosProductos(ContextoEjecucion& contexto) : m_contexto{contexto} {}

    /// No section, no supplier, no class. The title and whether they are under their minimum stay until a choice.
    void carga();
    /// A press on a panel of `bloque`, which is not the one of classes: the title and that block's own filter.
    void elige(BloqueProductos bloque, const ElementoPanel& elemento);
    void eligeClase(const OpcionDeClase& opcion);
    /// The accept button of a block: the filters of the others are cleared.
    void acepta(BloqueProductos bloque);

private:
    ContextoEjecucion& m_contexto;
};

} // namespace kestrane
