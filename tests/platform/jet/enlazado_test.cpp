#include "platform/jet/enlazado.h"

#include "platform/jet/traduce.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrane::jet {
namespace {

using namespace enlazado;

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
