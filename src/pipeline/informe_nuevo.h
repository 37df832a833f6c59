#pragma once

#include "pipeline/listados.h"
#include "platform/database/recordset.h"

#include <QFlags>

namespace kestrane {

/// The header columns that a row may carry, in the order in which they are written.
enum class ColumnaCabecera {
    Empresa = 1,        ///< TEXTO35, the company's name
    Direccion = 2,      ///< TEXTO34, the company's address
    DireccionVacia = 4, ///< TEXTO34, the empty text
    Tienda = 8,         ///< texto33, "Tienda = " and the chosen store, where there are several stores; else it stays null
    Periodo = 16,       ///< Fecha1 and fecha2, the period
};
Q_DECLARE_FLAGS(Cabecera, ColumnaCabecera)
Q_DECLARE_OPERATORS_FOR_FLAGS(Cabecera)

/// The headers that reports have.
namespace cabeceras {
inline constexpr Cabecera Empresa = ColumnaCabecera::Empresa | ColumnaCabecera::Direccion;
inline constexpr Cabecera EmpresaYTienda = Empresa | ColumnaCabecera::Tienda;
inline constexpr Cabecera EmpresaYPeriodo = Empresa | ColumnaCabecera::Periodo;
inline constexpr Cabecera Completa = EmpresaYTienda | ColumnaCabecera::Periodo;
} // namespace cabeceras

/// The rows of the report that is being built: `informes`, cleared and open for appending. `subinformes` is left as it is.
class InformeNuevo
{
public:
    /// On the run context's connection to the reports database. `listados` outlives the object.
    InformeNuevo(Listados& listados, Cabecera cabecera);
    /// The same on a connection of the builder's own to that database, open and outliving the object.
    InformeNuevo(Listados& listados, Cabecera cabecera, Conexion& conexion);

    /// Begins a row and writes its header columns. A row that was begun and not updated is written first.
    void AddNew() { AddNew(m_cabecera); }
    /// The same for a row that carries other header columns than the rest.
    void AddNew(Cabecera cabecera);
    /// A column of the row that is being added, to write or to read back. Error 3265 when there is none.
    [[nodiscard]] database::Campo Fields(QStringView columna) { return m_filas.Fields(columna); }
    /// Joins `texto` to what a text column of that row holds; a column that is still Null then holds `texto` alone.
    void anade(QStringView columna, const QString& texto);
    /// Writes the row.
    void Update() { m_filas.Update(); }

private:
    Listados& m_listados;
    Cabecera m_cabecera;
    Recordset m_filas;
};

} // namespace kestrane
