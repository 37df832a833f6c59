#pragma once

#include "pipeline/listados.h"
#include "platform/database/recordset.h"

namespace kestrane {

/// A question to the shop that a code completes. A builder that will ask it for each row of a recordset announces it, so that the
/// answers can be read ahead.
struct ConsultaPorCodigo
{
    QString cabeza;
    QString cola;

    /// With the code as its text; a Null code gives a statement that the database refuses.
    [[nodiscard]] QString sentencia(const Listados& listados, const Valor& codigo) const;
    /// It will be asked for the field `campo` of each row of `filas`.
    void anuncia(Recordset& filas, const QString& campo) const { filas.Anticipa(cabeza, campo, cola); }
};

/// What `lee` makes of the first row of `sentencia` on the shop; `falta` without a row.
template<class T, class Lee>
[[nodiscard]] T primeraFila(Listados& listados, const QString& sentencia, T falta, Lee lee)
{
    Recordset filas;
    filas.Open(sentencia, listados.contexto.ConexionTienda);
    return filas.RecordCount() > 0 ? lee(filas) : falta;
}

/// Whether the shop has a row for `sentencia`.
[[nodiscard]] bool hayFila(Listados& listados, const QString& sentencia);

} // namespace kestrane
