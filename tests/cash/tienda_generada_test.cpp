// Every builder of the till on generated shops, one run drawn from each seed; all runs of a seed with KESTRANE_LARGO.

#include "cash/constructores_de_caja.h"

#include <gtest/gtest.h>

#include <set>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeHecho;
using prueba::Sorteo;
using prueba::TiendaComparada;

constexpr quint32 Semillas = 200;

TEST(TiendasGeneradas, TheSeedsDrawEveryBuilderInEveryFlavourAndEveryCombinationOfOptions)
{
    std::set<std::pair<size_t, QString>> sabores;
    std::set<std::tuple<QString, bool, bool, int>> opciones;
    for (quint32 semilla = 0; semilla < Semillas; ++semilla) {
        const Sorteo sorteo = prueba::sorteo(semilla);
        sabores.emplace(sorteo.constructor, sorteo.tipoPrograma);
        opciones.emplace(sorteo.tienda, sorteo.multiTienda, sorteo.completa, sorteo.dias);
    }
    EXPECT_EQ(sabores.size(), 6U * 10);
    EXPECT_EQ(opciones.size(), prueba::CombinacionesDeOpciones);
}

TEST(TiendasGeneradas, ASeedGivesTheSameShopAndAnotherSeedAnother)
{
    EXPECT_EQ(prueba::tiendaGenerada(7), prueba::tiendaGenerada(7));
    EXPECT_NE(prueba::tiendaGenerada(7), prueba::tiendaGenerada(8));
}

class TiendasGeneradasTest : public testing::TestWithParam<quint32>
{
protected:
    static void compara(TiendaComparada& tienda, const Sorteo& sorteo)
    {
        const Constructor constructor = prueba::ConstructoresDeCaja.at(sorteo.constructor);
        const InformeHecho unaAUna = tienda.construye(constructor, sorteo, TiendaComparada::Lectura::UnaAUna);
        const InformeHecho deInforme = tienda.construye(constructor, sorteo, TiendaComparada::Lectura::DeInforme);
        EXPECT_EQ(deInforme.error, unaAUna.error) << sorteo.nombre();
        EXPECT_EQ(deInforme.informes, unaAUna.informes) << sorteo.nombre();
        EXPECT_EQ(deInforme.subinformes, unaAUna.subinformes) << sorteo.nombre();
    }
};

TEST_P(TiendasGeneradasTest, ReadAheadOrOneByOneTheReportIsTheSame)
{
    TiendaComparada tienda{jet::Motor::Sqlite, GetParam()};
    if (!qEnvironmentVariableIsSet("KESTRANE_LARGO"))
        return compara(tienda, prueba::sorteo(GetParam()));
    for (size_t constructor = 0; constructor < prueba::ConstructoresDeCaja.size(); ++constructor) {
        for (size_t sabor = 0; sabor < prueba::Sabores.size(); ++sabor) {
            for (size_t opciones = 0; opciones < prueba::CombinacionesDeOpciones; ++opciones)
                compara(tienda, prueba::sorteo(GetParam(), constructor, sabor, opciones));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Semillas, TiendasGeneradasTest, testing::Range(quint32{0}, Semillas));

} // namespace
} // namespace kestrane
