#include "pipeline/entrega.h"

#include "apoyo/tienda_de_prueba.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class EntregaDeHermanoTest : public testing::Test
{
protected:
    void deja(const QString& valores)
    {
        m_tienda.ejecuta(u"insert into pasardatos (terminal, texto2, indice, texto1) values ("_s + valores + u')');
    }

    prueba::TiendaDePrueba m_tienda;
};

TEST_F(EntregaDeHermanoTest, TheLowestIndexComesFirstAsANumber)
{
    deja(u"'CAJA7', 'Listado', 10, 'LstGen'"_s);
    deja(u"'CAJA7', 'Listado', 9, 'LstBon'"_s);
    EXPECT_EQ(primeraEntrega(m_tienda.tienda(), u"CAJA7"_s), (Entrega{u"9"_s, u"LstBon"_s}));
}

TEST_F(EntregaDeHermanoTest, RowsForOtherCopiesOrUsesAreNotThere)
{
    deja(u"'CAJA', 'Listado', 1, 'LstGen'"_s);
    deja(u"'CAJA7', 'Ficha', 1, 'LstGen'"_s);
    EXPECT_EQ(primeraEntrega(m_tienda.tienda(), u"CAJA7"_s), std::nullopt);
    borraPrimeraEntrega(m_tienda.tienda(), u"CAJA7"_s);
    EXPECT_NE(primeraEntrega(m_tienda.tienda(), u"CAJA"_s), std::nullopt);
}

TEST_F(EntregaDeHermanoTest, ANullCodeIsAnEmptyOne)
{
    deja(u"'CAJA7', 'Listado', 1, null"_s);
    EXPECT_EQ(primeraEntrega(m_tienda.tienda(), u"CAJA7"_s), (Entrega{u"1"_s, {}}));
}

TEST_F(EntregaDeHermanoTest, DeletingTakesTheFirstRowAlone)
{
    deja(u"'CAJA7', 'Listado', 2, 'LstGen'"_s);
    deja(u"'CAJA7', 'Listado', 1, 'LstBon'"_s);
    borraPrimeraEntrega(m_tienda.tienda(), u"CAJA7"_s);
    EXPECT_EQ(primeraEntrega(m_tienda.tienda(), u"CAJA7"_s), (Entrega{u"2"_s, u"LstGen"_s}));
    borraPrimeraEntrega(m_tienda.tienda(), u"CAJA7"_s);
    borraPrimeraEntrega(m_tienda.tienda(), u"CAJA7"_s);
    EXPECT_EQ(primeraEntrega(m_tienda.tienda(), u"CAJA7"_s), std::nullopt);
}

} // namespace
} // namespace kestrane
