#include "listings/listados_articulos.h"

#include "pipeline/puesto_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::PuestoDePrueba;

TEST(ListadoTallas, LiveSizesWithTheirShortNames)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into tallas (codigo, nombre, descripcioncorta) values (3, 'Grande', 'L')"_s,
                           u"insert into tallas (codigo, nombre, descripcioncorta, borrar) values (4, 'Enorme', 'XXL', -1)"_s,
                           u"insert into tallas (codigo, nombre) values (1, 'Pequeña')"_s});
    ListadoTallas(puesto.listados);
    EXPECT_EQ(puesto.filas(u"TEXTO35,TEXTO34,texto1,texto2"_s),
              (QStringList{u"Peluquería Ñandú|Calle Mayor, 1|L|Grande"_s, u"Peluquería Ñandú|Calle Mayor, 1|nulo|Pequeña"_s}));
}

TEST(ListadoMarcas, LiveBrandsByNameAlone)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into marcas (codigo, nombre) values (2, 'Zeta')"_s,
                           u"insert into marcas (codigo, nombre, borrar) values (3, 'Vieja', -1)"_s,
                           u"insert into marcas (codigo, nombre) values (1, 'Alfa')"_s});
    ListadoMarcas(puesto.listados);
    EXPECT_EQ(puesto.filas(u"texto1,texto2"_s), (QStringList{u"nulo|Zeta"_s, u"nulo|Alfa"_s}));
}

TEST(ListadoColores, LiveColoursByNameAlone)
{
    PuestoDePrueba puesto;
    puesto.tienda.ejecuta({u"insert into colorestextil (codigo, nombre) values (2, 'Verde')"_s,
                           u"insert into colorestextil (codigo, nombre, borrar) values (3, 'Gris', -1)"_s,
                           u"insert into colorestextil (codigo, nombre) values (1, null)"_s});
    ListadoColores(puesto.listados);
    EXPECT_EQ(puesto.filas(u"texto1,texto2"_s), (QStringList{u"nulo|Verde"_s, u"nulo|nulo"_s}));
}

} // namespace
} // namespace kestrane
