#include "cash/vocabulary/costes.h"

#include "pipeline/sabores.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

const QString SinVariante = u"-1"_s;

double coste(Listados& listados, const QString& sentencia)
{
    return primeraFila(listados, sentencia, 0.0, [](Recordset& fila) { return fila.Fields(u"coste").doble(); });
}

} // namespace

double CosteProducto(Listados& listados, const Valor& codigo)
{
    return coste(listados, u"Select coste from productos where codigo = "_s + listados.texto(codigo));
}

double CosteVariante(Listados& listados, const Valor& codigo, const QString& hijo)
{
    if (hijo == SinVariante)
        return CosteProducto(listados, codigo);
    return coste(listados, u"Select coste from productostextil where codigopadre = "_s + listados.texto(codigo) +
                               u" and codigohijo = '"_s + hijo + u'\'');
}

double costeDeLinea(Listados& listados, Recordset& linea)
{
    const Valor codigo = linea.Fields(u"codigo");
    if (!esDeTallaYColor(listados.contexto.TipoPrograma))
        return CosteProducto(listados, codigo);
    const Valor hijo = linea.Fields(u"codproductotextil");
    return CosteVariante(listados, codigo, hijo.esNulo() ? SinVariante : listados.texto(hijo));
}

} // namespace kestrane
