#include "platform/jet/enlazado.h"
#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace enlazado;

/// What `prueba` says of the two result columns of "select UNA, OTRA from ventas v, lineas l".
bool compara(bool (*prueba)(const Expresion&, const Expresion&), const QString& una, const QString& otra)
{
    CatalogoPrueba catalogo = tiendaDePrueba();
    const auto arbol = parsea(u"select %1, %2 from ventas v, lineas l"_s.arg(una, otra));
    const auto enlazada = enlaza(arbol.valor(), catalogo);
    const auto& lista = std::get<Consulta>(enlazada.valor().dato).lista;
    return prueba(*lista[0].expresion, *lista[1].expresion);
}

struct Par
{
    QString una;
    QString otra;
};

/// One line for each kind of node: the same twice, and what differs from it in one thing.
const Par Iguales[] = {
    {u"numero"_s, u"V.Numero"_s},
    {u"null"_s, u"null"_s},
    {u"true"_s, u"TRUE"_s},
    {u"pago + numero"_s, u"v.pago + v.numero"_s},
    {u"-total"_s, u"-v.total"_s},
    {u"v.tienda & tipo"_s, u"v.tienda & l.tipo"_s},
    {u"pago & tipo"_s, u"v.pago & l.tipo"_s},
    {u"month(fecha)"_s, u"MONTH(v.fecha)"_s},
    {u"sum(total)"_s, u"Sum(v.total)"_s},
    {u"count(*)"_s, u"count(*)"_s},
    {u"pago = numero and total < precio"_s, u"v.pago = v.numero and v.total < l.precio"_s},
    {u"not pago = numero"_s, u"not v.pago = v.numero"_s},
    {u"v.tienda like tipo"_s, u"v.tienda like l.tipo"_s},
    {u"pago between numero and cliente"_s, u"v.pago between v.numero and v.cliente"_s},
    {u"pago in (numero, cliente)"_s, u"v.pago in (v.numero, v.cliente)"_s},
    {u"v.tienda is null"_s, u"V.tienda is null"_s},
};

const Par Distintas[] = {
    {u"v.tienda"_s, u"l.tienda"_s},
    {u"true"_s, u"false"_s},
    {u"numero"_s, u"null"_s},
    {u"pago + numero"_s, u"pago - numero"_s},
    {u"pago + numero"_s, u"numero + pago"_s},
    {u"-total"_s, u"-precio"_s},
    {u"v.tienda & tipo"_s, u"tipo & v.tienda"_s},
    {u"pago & tipo"_s, u"cliente & tipo"_s},
    {u"month(fecha)"_s, u"year(fecha)"_s},
    {u"sum(total)"_s, u"max(total)"_s},
    {u"sum(total)"_s, u"sum(precio)"_s},
    {u"count(*)"_s, u"count(total)"_s},
    {u"pago = numero and total < precio"_s, u"pago = numero or total < precio"_s},
    {u"not pago = numero"_s, u"not pago = cliente"_s},
    {u"pago = numero"_s, u"pago <> numero"_s},
    {u"v.tienda like tipo"_s, u"v.tienda not like tipo"_s},
    {u"pago between numero and cliente"_s, u"pago between cliente and numero"_s},
    {u"pago in (numero, cliente)"_s, u"pago in (numero)"_s},
    {u"pago in (numero, cliente)"_s, u"pago not in (numero, cliente)"_s},
    {u"v.tienda is null"_s, u"v.tienda is not null"_s},
    {u"pago in (select codigo from clientes)"_s, u"pago in (select codigo from clientes)"_s},
};

TEST(EnlazadoIgualesTest, ExpressionsAreEqualWhenTheyMeanTheSameColumns)
{
    for (const Par& par : Iguales) {
        EXPECT_TRUE(compara(iguales, par.una, par.otra)) << qPrintable(par.una);
        EXPECT_TRUE(compara(mismaForma, par.una, par.otra)) << qPrintable(par.una);
    }
    for (const Par& par : Distintas) {
        EXPECT_FALSE(compara(iguales, par.una, par.otra)) << qPrintable(par.una) << " / " << qPrintable(par.otra);
        EXPECT_FALSE(compara(mismaForma, par.una, par.otra)) << qPrintable(par.una) << " / " << qPrintable(par.otra);
    }
}

TEST(EnlazadoIgualesTest, ALiteralIsEqualToItselfAloneButOfOneShapeWithAnyOther)
{
    EXPECT_FALSE(compara(iguales, u"5"_s, u"5"_s));
    EXPECT_FALSE(compara(iguales, u"pago + 1"_s, u"pago + 1"_s));
    EXPECT_TRUE(compara(mismaForma, u"pago + 1"_s, u"pago + 2"_s));
    EXPECT_FALSE(compara(mismaForma, u"pago + 1"_s, u"1 + pago"_s));
}

} // namespace
} // namespace kestrane::jet
