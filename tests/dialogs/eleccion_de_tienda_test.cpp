#include "dialogs/eleccion_de_tienda.h"

#include "dialogs/forma_de_prueba.h"
#include "platform/controls/ficha.h"

#include <QSignalSpy>
#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class EleccionDeTiendaTest : public prueba::FormaTest
{
protected:
    void carga()
    {
        eleccion.resize(500, 300);
        ventana.show();
        eleccion.CargarTiendas(ventana, ventana);
    }
    QString ensenada() { return control<QLabel>(ventana, u"lblInfoTienda"_s).text(); }
    void pulsa(int cual) { QTest::mouseClick(eleccion.panel().fichas()[cual], Qt::LeftButton); }

    QWidget ventana;
    EleccionDeTienda eleccion{m_contexto, &ventana};
};

TEST_F(EleccionDeTiendaTest, AwayFromTheServerThereIsNoPanel)
{
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    carga();
    EXPECT_FALSE(eleccion.isVisible());
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
}

TEST_F(EleccionDeTiendaTest, OnTheServerAllStoresAreOfferedAndNoneIsMarkedYet)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    carga();
    EXPECT_TRUE(eleccion.isVisible());
    EXPECT_EQ(eleccion.panel().fichas().size(), 3);
    EXPECT_EQ(eleccion.panel().elegido(), nullptr);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_EQ(ensenada(), u"Centro"_s);
}

TEST_F(EleccionDeTiendaTest, APressChoosesTheStoreAndShowsItsName)
{
    enServidorCon({u"Sur"_s, u"Centro"_s});
    carga();
    const QSignalSpy avisos{&eleccion, &EleccionDeTienda::elegida};
    pulsa(2);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, u"Centro"_s);
    EXPECT_EQ(ensenada(), u"Centro"_s);
    EXPECT_EQ(avisos.count(), 1);
}

TEST_F(EleccionDeTiendaTest, AllStoresIsNoStore)
{
    enServidorCon({u"Sur"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    carga();
    pulsa(0);
    EXPECT_EQ(m_contexto.TiendaSeleccionada, QString{});
    EXPECT_EQ(ensenada(), QString{});
}

TEST_F(EleccionDeTiendaTest, AServerWithoutAListShowsAnEmptyPanel)
{
    m_contexto.NombreTienda = u"Servidor"_s;
    m_contexto.MultiTienda = true;
    carga();
    EXPECT_TRUE(eleccion.isVisible());
    EXPECT_TRUE(eleccion.panel().fichas().isEmpty());
}

} // namespace
} // namespace kestrane
