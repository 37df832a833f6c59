#include "lote/tienda_elegida.h"

#include "lote/peticion_imposible.h"

#include <gtest/gtest.h>

namespace kestrane::lote {
namespace {

using namespace Qt::StringLiterals;

class EligeTienda : public testing::Test
{
protected:
    void enServidor()
    {
        m_contexto.NombreTienda = u"Servidor"_s;
        m_contexto.MultiTienda = true;
    }

    QString elige(const QString& tienda)
    {
        eligeTienda(m_contexto, tienda);
        return m_contexto.TiendaSeleccionada;
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(EligeTienda, OnTheServerAStoreThatIsNotInItsListIsRefused)
{
    enServidor();
    EXPECT_THROW(elige(u"Centro"_s), PeticionImposible);
    m_contexto.Tiendas.reserva(2);
    m_contexto.Tiendas[1].Texto = u"Peñíscola"_s;
    EXPECT_THROW(elige(u"Centro"_s), PeticionImposible);
    EXPECT_EQ(elige(u"PEÑÍSCOLA"_s), u"Peñíscola"_s);
}

TEST_F(EligeTienda, OfStoresThatDifferInCaseAloneTheOneThatIsSpeltSoIsMeant)
{
    enServidor();
    m_contexto.Tiendas.reserva(3);
    m_contexto.Tiendas[1].Texto = u"Centro"_s;
    m_contexto.Tiendas[2].Texto = u"CENTRO"_s;
    EXPECT_EQ(elige(u"CENTRO"_s), u"CENTRO"_s);
    EXPECT_EQ(elige(u"Centro"_s), u"Centro"_s);
    EXPECT_EQ(elige(u"centro"_s), u"Centro"_s);
}

TEST_F(EligeTienda, TodasIsAllOfThem)
{
    enServidor();
    m_contexto.TiendaSeleccionada = u"antes"_s;
    EXPECT_EQ(elige(u"todas"_s), u""_s);
    EXPECT_EQ(elige({}), u""_s);
}

TEST_F(EligeTienda, AwayFromTheServerAnyNameIsTaken)
{
    EXPECT_EQ(elige(u"Centro"_s), u"Centro"_s);
}

} // namespace
} // namespace kestrane::lote
