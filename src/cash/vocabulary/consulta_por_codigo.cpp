#include "cash/vocabulary/consulta_por_codigo.h"

namespace kestrane {

QString ConsultaPorCodigo::sentencia(const Listados& listados, const Valor& codigo) const
{
    return cabeza + listados.texto(codigo) + cola;
}

bool hayFila(Listados& listados, const QString& sentencia)
{
    return primeraFila(listados, sentencia, false, [](Recordset&) { return true; });
}

} // namespace kestrane
