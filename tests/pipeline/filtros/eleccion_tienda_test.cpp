#include "pipeline/filtros/eleccion_tienda.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class EleccionTiendaTest : public testing::Test
{
protected:
    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
};

TEST_F(EleccionTiendaTest, APressedStoreIsChosen)
{
    pulsaTienda(m_contexto, u"Centro"_s);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
}

TEST_F(EleccionTiendaTest, AllOfThemInWhateverCaseIsNone)
{
    for (const QString& texto : {u"Todas"_s, u"TODAS"_s, u"todas"_s}) {
        m_contexto.TiendaSeleccionada = u"Centro"_s;
        pulsaTienda(m_contexto, texto);
        EXPECT_EQ(m_contexto.TiendaSeleccionada, QString{}) << texto.toStdString();
    }
}

} // namespace
} // namespace kestrane
