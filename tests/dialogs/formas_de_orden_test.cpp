#include "dialogs/formas_de_orden.h"

#include "dialogs/forma_de_prueba.h"

#include <QTest>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FormasDeOrdenTest : public prueba::FormaTest
{
protected:
    /// Presses a button of a dialog that was loaded and shown.
    template<class Forma>
    void pulsa(const QString& nombre)
    {
        Forma forma{m_servicios};
        forma.carga();
        forma.show();
        QTest::mouseClick(&control(forma, nombre), Qt::LeftButton);
        EXPECT_FALSE(forma.isVisible()) << nombre.toStdString();
    }
};

TEST_F(FormasDeOrdenTest, EachOrderOfClientsIsSetAndAccepted)
{
    const std::pair<QString, QString> casos[] = {
        {u"Command1"_s, u"Nombre"_s},       {u"Command2"_s, u"Ingreso"_s},   {u"Command4"_s, u"nacimiento"_s},
        {u"Command5"_s, u"UltimaVisita"_s}, {u"Command6"_s, u"Apellidos"_s},
    };
    for (const auto& [boton, columna] : casos) {
        m_contexto.FiltroAceptado = false;
        pulsa<FrmOrdenClientes>(boton);
        EXPECT_EQ(m_contexto.filtros.columnaOrden, columna);
        EXPECT_TRUE(m_contexto.FiltroAceptado);
        EXPECT_FALSE(m_contexto.filtros.soloConEmail);
    }
}

TEST_F(FormasDeOrdenTest, OnlyClientsWithEmailOrdersByNameAndTheNextLoadForgetsIt)
{
    pulsa<FrmOrdenClientes>(u"Command7"_s);
    EXPECT_EQ(m_contexto.filtros.columnaOrden, u"Nombre"_s);
    EXPECT_TRUE(m_contexto.filtros.soloConEmail);
    pulsa<FrmOrdenClientes>(u"cmd_Salir"_s);
    EXPECT_FALSE(m_contexto.filtros.soloConEmail);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
}

TEST_F(FormasDeOrdenTest, EachOrderOfServicesIsSetAndAccepted)
{
    const std::pair<QString, QString> casos[] = {
        {u"Command1"_s, u"Nombre"_s}, {u"Command2"_s, u"Seccion"_s}, {u"Command4"_s, u"Codigo"_s}};
    for (const auto& [boton, columna] : casos) {
        pulsa<FrmOrdenServicios>(boton);
        EXPECT_EQ(m_contexto.filtros.columnaOrden, columna);
        EXPECT_TRUE(m_contexto.FiltroAceptado);
    }
}

TEST_F(FormasDeOrdenTest, TheyBearTheirTitlesAndLoadTheirLooks)
{
    FrmOrdenServicios servicios{m_servicios};
    servicios.carga();
    EXPECT_EQ(servicios.windowTitle(), u"Ordenacion de Servicios"_s);
    EXPECT_EQ(control<QLabel>(servicios, u"Label1"_s).text(), u"Ordenado x"_s);
    EXPECT_EQ(m_aspecto.pasos,
              (QStringList{u"PintarForm frmOrdenServicios"_s, u"EscalarForm frmOrdenServicios de 15360x11085 a 15360x11085"_s}));
    EXPECT_EQ(FrmOrdenClientes{m_servicios}.windowTitle(), u"Ordenacion Clientes"_s);
}

} // namespace
} // namespace kestrane
