#include "cash/caja_diaria.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class CajaDiariaTest : public testing::Test
{
protected:
    void construye() { cash::CajaDiaria{m_tienda.listados}.construye(); }

    prueba::TiendaDeCaja m_tienda;
};

TEST_F(CajaDiariaTest, TheStoreLineEndsInTheTaxNumberInAChainAndOutsideOne)
{
    m_tienda.vende({.numero = 7});
    construye();
    EXPECT_EQ(m_tienda.filas(u"texto33,TEXTO35,TEXTO34,Fecha1,fecha2"_s),
              QStringList{u" B12|Peluquería Ñandú|Calle Mayor, 1|15/03/2024|15/03/2024"_s});
    m_tienda.contexto.MultiTienda = true;
    construye();
    EXPECT_EQ(m_tienda.filas(u"texto33"_s), QStringList{u"Tienda =  B12"_s});
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    construye();
    EXPECT_EQ(m_tienda.filas(u"texto33"_s), QStringList{u"Tienda = Centro B12"_s});
}

TEST_F(CajaDiariaTest, EverythingStandsInTheOrderOfTheSheet)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.mueve(u"retiradas"_s, 1);
    m_tienda.mueve(u"gastos"_s, 1);
    m_tienda.devuelve({.venta = 70});
    m_tienda.paga(9, 1);
    m_tienda.anula({.numero = 8});
    m_tienda.vende({.numero = 7}, {{}, {.tipo = u"'B'"_s}});
    m_tienda.debe(9, 7, 1);
    m_tienda.mueve(u"caja_inicial"_s, 1);
    construye();
    EXPECT_EQ(m_tienda.filas(u"texto22"_s).join(u' '), u"1 2 3 5 9 4 6 7 8"_s);
}

} // namespace
} // namespace kestrane
