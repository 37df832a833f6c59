#include "pipeline/catalogue/condiciones.h"

#include <gtest/gtest.h>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;

class Condiciones : public testing::Test
{
protected:
    bool servidor(const QString& nombre, bool multiTienda)
    {
        m_contexto.NombreTienda = nombre;
        m_contexto.MultiTienda = multiTienda;
        return enServidor(m_contexto);
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(Condiciones, TheServerIsCalledServidorAndHasSeveralStores)
{
    EXPECT_TRUE(servidor(u"Servidor"_s, true));
    EXPECT_FALSE(servidor(u"Servidor"_s, false));
    EXPECT_FALSE(servidor(u"servidor"_s, true));
    EXPECT_FALSE(servidor(u"Centro"_s, true));
    EXPECT_FALSE(servidor({}, true));
}

TEST_F(Condiciones, TheFlavourIsTheRunContexts)
{
    EXPECT_FALSE(esComercio(m_contexto) || esDeTallaYColor(m_contexto) || esDeAlimentacionYPerfume(m_contexto));
    m_contexto.TipoPrograma = u"ZAPATERIA"_s;
    EXPECT_TRUE(esComercio(m_contexto) && esDeTallaYColor(m_contexto));
    EXPECT_FALSE(esDeAlimentacionYPerfume(m_contexto));
    m_contexto.TipoPrograma = u"TPV"_s;
    EXPECT_TRUE(esComercio(m_contexto) && esDeAlimentacionYPerfume(m_contexto));
}

TEST_F(Condiciones, ATicketOfARetailFlavourIsBoth)
{
    m_contexto.TipoPrograma = u"TPV"_s;
    EXPECT_FALSE(enTicket(m_contexto) || enTicketDeComercio(m_contexto));
    m_contexto.FormatoTicket = true;
    EXPECT_TRUE(enTicket(m_contexto) && enTicketDeComercio(m_contexto));
    m_contexto.TipoPrograma = u"SPA"_s;
    EXPECT_TRUE(enTicket(m_contexto));
    EXPECT_FALSE(enTicketDeComercio(m_contexto));
}

TEST_F(Condiciones, TotalsOfAllEmployeesAreTotalsWithoutAnEmployee)
{
    EXPECT_FALSE(totalizado(m_contexto) || totalizadoDeTodos(m_contexto));
    m_contexto.filtros.totalizado = true;
    m_contexto.filtros.empleado = -1;
    EXPECT_TRUE(totalizado(m_contexto) && totalizadoDeTodos(m_contexto));
    m_contexto.filtros.empleado = 0;
    EXPECT_TRUE(totalizado(m_contexto));
    EXPECT_FALSE(totalizadoDeTodos(m_contexto));
}

} // namespace
} // namespace kestrane::catalogue
