// The limits of the grammar on the embedded database: what the front end lets pass runs.

#include "corpus/limites.h"

#include "corpus/frontera.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

TEST(Limites, TheLargestStatementOfEachFormRunsAndTheNextIsRefused)
{
    TiendaCorpus tienda{jet::Motor::Sqlite, TiendaCorpus::Contenido::Llena};
    for (const FormaDeSentencia& forma : formasDeSentencia()) {
        const Frontera frontera = fronteraDe(forma, tienda);
        EXPECT_GE(frontera.mayor, forma.minimo) << forma.nombre;
        EXPECT_LT(frontera.mayor, forma.maximo) << forma.nombre;
        EXPECT_EQ(frontera.respuesta.error, "") << forma.nombre << ' ' << frontera.mayor;
        EXPECT_EQ(frontera.rechazo.substr(0, 19), "ERROR -2147217900: ") << forma.nombre << ": " << frontera.rechazo;
    }
}

} // namespace
} // namespace kestrane::prueba
