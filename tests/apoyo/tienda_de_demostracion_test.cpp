#include "apoyo/tienda_de_demostracion.h"

#include "platform/database/recordset.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

TEST(TiendaDeDemostracion, BothDatabasesHaveTheRowsOfTheFlavourAskedFor)
{
    TiendaDePrueba tienda;
    llenaConDemostracion(tienda, {.tipo = demo::TipoTienda::Spa, .tamano = demo::Tamano::Dia});
    Recordset opciones;
    opciones.Open(u"Select nombre, tipo_programa from opciones"_s, tienda.tienda());
    EXPECT_EQ(opciones.Fields(u"tipo_programa").texto(), u"SPA"_s);
    EXPECT_EQ(opciones.Fields(u"nombre").texto(), demo::sabor(demo::TipoTienda::Spa).empresa);
    Recordset packs;
    packs.Open(u"Select codigo from cabecera_pack_spa where borrar = 0"_s, tienda.tienda());
    EXPECT_EQ(packs.RecordCount(), static_cast<int>(demo::sabor(demo::TipoTienda::Spa).packsSpa.size()));
    Recordset listas;
    listas.Open(u"listadostemporal"_s, tienda.listados());
    EXPECT_EQ(listas.RecordCount(), 1);
}

} // namespace
} // namespace kestrane::prueba
