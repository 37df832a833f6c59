#pragma once

#include "pipeline/informe_nuevo.h"
#include "platform/database/recordset.h"

/// The rows of the general cash report, one for each seller, found again by their key `texto21`.
namespace kestrane {

/// The columns of a family of lines.
struct FamiliaDeCaja
{
    QStringView columna;  ///< its amount, gross euros
    QStringView etiqueta; ///< the column of its name, "" of the products, which have none
    QStringView nombre;
};

namespace familias_de_caja {
inline constexpr FamiliaDeCaja Productos{u"numerico3", {}, {}};
inline constexpr FamiliaDeCaja Servicios{u"numerico1", u"texto1", u"Servicios"};
inline constexpr FamiliaDeCaja Packs{u"numerico2", u"texto2", u"Pack Servicios"};
inline constexpr FamiliaDeCaja PacksSpa{u"numerico4", u"texto3", u"Pack Spa"};
} // namespace familias_de_caja

class Vendedores
{
public:
    /// Clears `informes`. `listados` outlives the object.
    explicit Vendedores(Listados& listados) : m_listados{listados} {}

    /// Sold lines: the family's amount becomes the sum. `suma` stands on a row of `total` and `codEmpleado`.
    void vende(const FamiliaDeCaja& familia, Recordset& suma);
    /// The same for the very first sums, whose rows need not be looked for.
    void vendeElPrimero(const FamiliaDeCaja& familia, Recordset& suma);
    /// Returned lines: the sum is taken off.
    void devuelve(const FamiliaDeCaja& familia, Recordset& suma);
    /// Lines of annulled sales: the sum is added.
    void anula(const FamiliaDeCaja& familia, Recordset& suma);

    /// Adds the price of a shared service to the row of the key, which is made when there is none. One that is there, whoever made
    /// it, gets no other column.
    void comparte(const QString& clave, const QString& nombre, const Valor& precio);
    /// A row of services of its own, though the key may be there already.
    void anadeServicios(const QString& clave, const QString& nombre, const Valor& importe);

private:
    void aplica(const FamiliaDeCaja& familia, Recordset& suma, const Valor& enFilaNueva,
                Valor (*enFila)(const Valor&, const Valor&));
    void anade(const FamiliaDeCaja& familia, const QString& clave, const QString& nombre, const Valor& importe);
    [[nodiscard]] bool busca(Recordset& fila, const QString& clave);
    [[nodiscard]] QString nombreDe(const Valor& empleado);

    Listados& m_listados;
    InformeNuevo m_informe{m_listados, cabeceras::EmpresaYPeriodo};
};

} // namespace kestrane
