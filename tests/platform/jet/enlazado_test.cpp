#include "platform/jet/enlazado.h"

#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace enlazado;

/// The first two result columns of "select UNA, OTRA from ventas", bound.
bool iguales(const QString& una, const QString& otra)
{
    CatalogoPrueba catalogo = tiendaDePrueba();
    const auto arbol = parsea(u"select %1, %2 from ventas v, lineas l"_s.arg(una, otra));
    const auto enlazada = enlaza(arbol.valor(), catalogo);
    const auto& lista = std::get<Consulta>(enlazada.valor().dato).lista;
    return enlazado::iguales(*lista[0].expresion, *lista[1].expresion);
}

TEST(EnlazadoTest, ExpressionsAreEqualWhenTheyMeanTheSameColumns)
{
    EXPECT_TRUE(iguales(u"numero"_s, u"V.Numero"_s));
    EXPECT_TRUE(iguales(u"month(fecha) + pago"_s, u"MONTH(v.fecha) + Pago"_s));
    EXPECT_TRUE(iguales(u"-total & tipo"_s, u"-v.total & l.tipo"_s));
    EXPECT_FALSE(iguales(u"v.tienda"_s, u"l.tienda"_s));
    EXPECT_FALSE(iguales(u"month(fecha)"_s, u"year(fecha)"_s));
    EXPECT_FALSE(iguales(u"pago + numero"_s, u"pago - numero"_s));
    EXPECT_FALSE(iguales(u"true"_s, u"false"_s));
}

TEST(EnlazadoTest, ALiteralIsEqualToNone)
{
    EXPECT_FALSE(iguales(u"5"_s, u"5"_s));
    EXPECT_FALSE(iguales(u"pago + 1"_s, u"pago + 1"_s));
}

TEST(EnlazadoTest, TypesBelongToFamilies)
{
    EXPECT_EQ(familiaDe(TipoColumna::Memo), Familia::Texto);
    EXPECT_EQ(familiaDe(TipoColumna::SiNo), Familia::Numero);
    EXPECT_EQ(familiaDe(TipoColumna::Doble), Familia::Numero);
    EXPECT_EQ(familiaDe(TipoColumna::FechaHora), Familia::Fecha);
    EXPECT_TRUE(esEntero(TipoColumna::SiNo));
    EXPECT_FALSE(esEntero(TipoColumna::Doble));
}

TEST(EnlazadoTest, ASearchGoesThroughAllThatStandsBelow)
{
    CatalogoPrueba catalogo = tiendaDePrueba();
    const auto arbol = parsea(
        u"delete from ventas where not (pago in (1, 2) or total between 3 and -4 or cliente in (select clientes.codigo "
        "from clientes inner join lineas l on l.precio = 5 where nombre like 'x' and nacimiento is null) or tienda & 'y' = 'z')"_s);
    const auto enlazada = enlaza(arbol.valor(), catalogo);
    std::vector<int> literales;
    (void)alguna(*std::get<Borrado>(enlazada.valor().dato).donde, [&](const Expresion& e) {
        if (const auto* parametro = std::get_if<enlazado::Parametro>(&e.dato))
            literales.push_back(parametro->literal);
        return false;
    });
    EXPECT_EQ(literales, (std::vector{0, 1, 2, 3, 4, 5, 6, 7}));
}

} // namespace
} // namespace kestrane::jet
