#pragma once

#include "pipeline/informe_nuevo.h"

#include <QStringView>

#include <span>

/// The shape that the listings of the master tables share: one query, one row for each record.
namespace kestrane::listings {

/// A field whose value goes to a column as it stands, Null included.
struct Copia
{
    QStringView campo;
    QStringView columna;
};

/// What a table of copies cannot say, done after them on the row that is being added. `origen` stands on its record.
using PasoFila = void (*)(Listados& listados, Recordset& origen, InformeNuevo& informe);

/// A statement that a step asks the shop for each record: `cabeza`, the text of the record's `campo`, `cola`.
struct ConsultaPorFila
{
    QStringView cabeza;
    QStringView campo;
    QStringView cola;

    /// The statement for the record on which `origen` stands.
    [[nodiscard]] QString sentencia(const Listados& listados, Recordset& origen) const;
};

struct ListadoCatalogo
{
    QStringView consulta;
    std::span<const Copia> copias;
    PasoFila paso = nullptr;
    const ConsultaPorFila* porFila = nullptr; ///< announced, so that its answers may be read ahead
};

/// Clears `informes`, runs the query on the shop and adds a row for each record, in its order. `orden` is joined to the query.
void escribeListado(Listados& listados, const ListadoCatalogo& listado, const QString& orden = {});

/// texto5: "No" when the field `mostrarencaja` equals 0, else "Si".
void ponMostrarEnCaja(Listados& listados, Recordset& origen, InformeNuevo& informe);

} // namespace kestrane::listings
