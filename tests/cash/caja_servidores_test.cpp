// The till's builders on generated shops: the same rows in the same order, or the same error, on the three engines.

#include "cash/constructores_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::InformeHecho;
using prueba::Sorteo;
using prueba::TiendaComparada;

class CajaEnServidores : public testing::TestWithParam<quint32>
{
protected:
    void compara(const Sorteo& sorteo)
    {
        const Constructor constructor = prueba::ConstructoresDeCaja.at(sorteo.constructor);
        const InformeHecho esperado = m_sqlite.construye(constructor, sorteo, TiendaComparada::Lectura::DeInforme);
        for (auto* const servidor : {&m_postgresql, &m_mariadb}) {
            const std::string quien = sorteo.nombre() + (servidor == &m_postgresql ? ", PostgreSQL" : ", MariaDB");
            const InformeHecho dado = servidor->construye(constructor, sorteo, TiendaComparada::Lectura::DeInforme);
            EXPECT_EQ(dado.error, esperado.error) << quien;
            EXPECT_EQ(dado.informes, esperado.informes) << quien;
            EXPECT_EQ(dado.subinformes, esperado.subinformes) << quien;
        }
        m_conFilas += esperado.informes.isEmpty() ? 0 : 1;
    }

    TiendaComparada m_sqlite{jet::Motor::Sqlite, GetParam()};
    TiendaComparada m_postgresql{jet::Motor::PostgreSql, GetParam()};
    TiendaComparada m_mariadb{jet::Motor::MariaDb, GetParam()};
    int m_conFilas = 0;
};

/// Each seed's shop through every builder, in a flavour and with options that go on from seed to seed; all of them with
/// KESTRANE_LARGO.
TEST_P(CajaEnServidores, EveryBuilderHasTheSameRowsOnTheThreeEngines)
{
    const bool largo = qEnvironmentVariableIsSet("KESTRANE_LARGO");
    const size_t sabores = largo ? prueba::Sabores.size() : 1;
    const size_t opciones = largo ? prueba::CombinacionesDeOpciones : 2;
    for (size_t constructor = 0; constructor < prueba::ConstructoresDeCaja.size(); ++constructor) {
        for (size_t sabor = 0; sabor < sabores; ++sabor) {
            for (size_t opcion = 0; opcion < opciones; ++opcion)
                compara(prueba::sorteo(GetParam(), constructor, (GetParam() + constructor + sabor) % 10,
                                       (GetParam() * 2 + opcion + constructor * 6) % prueba::CombinacionesDeOpciones));
        }
    }
    EXPECT_GT(m_conFilas, 0);
}

INSTANTIATE_TEST_SUITE_P(Semillas, CajaEnServidores, testing::Range(quint32{1}, quint32{21}));

} // namespace
} // namespace kestrane
