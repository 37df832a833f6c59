#include "pipeline/catalogue/pasos.h"

#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

class Pasos : public testing::Test
{
protected:
    bool toma(const QString& codigo)
    {
        m_contexto.ClienteBuscado = codigo;
        return tomaClienteBuscado(m_contexto);
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(Pasos, NoClientIsAnEmptyTextOrMinusOne)
{
    m_contexto.filtros.cliente = u"17"_s;
    EXPECT_FALSE(toma({}));
    EXPECT_FALSE(toma(u"-1"_s));
    EXPECT_EQ(m_contexto.filtros.cliente, u"17"_s);
}

TEST_F(Pasos, TheClientThatWasFoundBecomesTheFiltersAsItStands)
{
    for (const QString& codigo : {u"17"_s, u"0"_s, u" 17"_s, u"99999999999"_s, u"Ana"_s}) {
        EXPECT_TRUE(toma(codigo));
        EXPECT_EQ(m_contexto.filtros.cliente, codigo);
    }
}

TEST_F(Pasos, EachButtonSetsItsOwn)
{
    buscaClientes(m_contexto);
    EXPECT_EQ(m_contexto.ModoBusqueda, u"Cl"_s);
    prepararCumpleanios(m_contexto);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"nacimiento"_s);
    EXPECT_TRUE(m_contexto.filtros.cumpleanios);
    prepararClientes(m_contexto);
    EXPECT_FALSE(m_contexto.filtros.cumpleanios);
    prepararDineroEnDeposito(m_contexto);
    EXPECT_EQ(m_contexto.filtros.titulo, u"Clientes con Dinero en Deposito"_s);
    prepararBajoMinimos(m_contexto);
    EXPECT_TRUE(m_contexto.SoloBajoMinimos);
    prepararProductos(m_contexto);
    EXPECT_FALSE(m_contexto.SoloBajoMinimos);
    m_contexto.ReimprimirFactura = true;
    prepararReimpresion(m_contexto);
    EXPECT_FALSE(m_contexto.ReimprimirFactura);
}

} // namespace
} // namespace kestrane::catalogue
