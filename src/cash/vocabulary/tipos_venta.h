#pragma once

#include <QStringView>

#include <span>

/// The kinds of sale line, as `tipo_venta` holds them. The statements do not mind their case, the program's own tests do.
namespace kestrane {

/// Where a sold line is added up.
enum class FamiliaVenta { Ninguna, Servicios, Productos, Packs, PacksSpa };

struct TipoVenta
{
    QStringView codigo;
    FamiliaVenta familia = FamiliaVenta::Ninguna;
    QStringView catalogoDeNombre; ///< the table of NombreSeccionDeLinea, "" where there is none
    QStringView catalogoDeCodigo; ///< the table of CodigoSeccionDeLinea, which knows fewer kinds and another one
    QStringView prefijo;          ///< what stands before `producto` in detailed reports
};

/// All twelve. PSPA adds to the spa packs; SP, which other reports add there in its place, adds to nothing here.
[[nodiscard]] std::span<const TipoVenta> tiposDeVenta();
/// The kind with that code; one without code, family, catalogue or prefix for any other text.
[[nodiscard]] const TipoVenta& tipoDeVenta(QStringView codigo);

/// The reserved service: money that a client pays into a deposit, a sale in the tables and no work.
inline constexpr qint32 ServicioDeposito = 2;

/// True when two rows of a shared sale belong to one line: the same code, and the same kind or kinds that both sell or use up
/// services (S, B, CB) or packs (F, BF, CBF).
[[nodiscard]] bool MismaLineaVenta(qint32 codigo1, QStringView tipo1, qint32 codigo2, QStringView tipo2);

} // namespace kestrane
