#include "dialogs/frm_productos_vendidos.h"

#include "dialogs/panel_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmProductosVendidosTest : public prueba::FormaConPanelesTest<FrmProductosVendidos>
{
protected:
    FrmProductosVendidosTest()
    {
        empleado(3, u"Luz"_s, u"Gil"_s, u"255"_s);
        proveedor(9, u"Aqua"_s);
    }
    bool enEmpleados() { return seVe(u"frempleados"_s) && !seVe(u"frProveedor"_s); }
    bool enProveedores() { return seVe(u"frProveedor"_s) && !seVe(u"frempleados"_s); }
    Filtros& filtros() { return m_contexto.filtros; }
};

TEST_F(FrmProductosVendidosTest, TheFirstPageIsTheEmployees)
{
    abre();
    EXPECT_EQ(m_forma->windowTitle(), u"Listado Productos Vendidos"_s);
    EXPECT_TRUE(enEmpleados());
    EXPECT_EQ(textos(u"PanelEmpleados"_s), (QStringList{u"Todos los Empleados"_s, u"Luz Gil"_s}));
    EXPECT_EQ(textos(u"PanelProveedores"_s), (QStringList{u"Todos los Proveedores"_s, u"Aqua"_s}));
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"PintarForm frmProductosVendidos"_s, u"DarColorPredefinido1"_s,
                                            u"DarColorPredefinido2"_s, u"DarColorPredefinido3"_s, u"DarColorPredefinido4"_s}));
}

TEST_F(FrmProductosVendidosTest, AnEmployeeThenASupplierAndItIsAccepted)
{
    abre();
    pulsaFicha(u"PanelEmpleados"_s, 1);
    EXPECT_EQ(filtros().empleado, 3);
    EXPECT_TRUE(enProveedores());
    pulsaFicha(u"PanelProveedores"_s, 1);
    EXPECT_EQ(filtros().proveedor, 9);
    EXPECT_FALSE(m_forma->isVisible());
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmProductosVendidosTest, AllOfThemIsMinusOne)
{
    filtros().empleado = filtros().proveedor = 5;
    abre();
    pulsaFicha(u"PanelEmpleados"_s, 0);
    pulsaFicha(u"PanelProveedores"_s, 0);
    EXPECT_EQ(filtros().empleado, -1);
    EXPECT_EQ(filtros().proveedor, -1);
}

TEST_F(FrmProductosVendidosTest, TheWayBackKeepsTheEmployeeUntilAnotherIsPressed)
{
    abre();
    EXPECT_EQ(control<QPushButton>(*m_forma, u"Command2"_s).text(), u"Volver"_s);
    pulsaFicha(u"PanelEmpleados"_s, 1);
    pulsa(u"Command2"_s);
    EXPECT_TRUE(enEmpleados());
    EXPECT_EQ(filtros().empleado, 3);
    pulsaFicha(u"PanelEmpleados"_s, 0);
    EXPECT_EQ(filtros().empleado, -1);
}

TEST_F(FrmProductosVendidosTest, EitherPageIsLeftWithoutAcceptance)
{
    m_contexto.FiltroAceptado = true;
    abre();
    pulsa(u"Command7"_s);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
    m_contexto.FiltroAceptado = true;
    abre();
    pulsaFicha(u"PanelEmpleados"_s, 1);
    pulsa(u"cmd_Salir"_s);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
}

TEST_F(FrmProductosVendidosTest, WithTheKeyboardAloneEachPageIsOneKey)
{
    abre();
    EXPECT_FALSE(seVe(u"Command1"_s));
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Return);
    EXPECT_EQ(filtros().empleado, 3);
    EXPECT_EQ(m_forma->focusWidget(), panel(u"PanelProveedores"_s).fichas()[0]);
    tecla(Qt::Key_Return);
    EXPECT_EQ(filtros().proveedor, -1);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmProductosVendidosTest, AShopWithoutSuppliersAsksForAllOfThem)
{
    m_tienda.ejecuta(u"delete from proveedores"_s);
    abre();
    pulsaFicha(u"PanelEmpleados"_s, 0);
    EXPECT_TRUE(enProveedores());
    EXPECT_EQ(textos(u"PanelProveedores"_s), QStringList{u"Todos los Proveedores"_s});
    EXPECT_TRUE(seVe(u"Command2"_s) && seVe(u"cmd_Salir"_s));
    pulsaFicha(u"PanelProveedores"_s, 0);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmProductosVendidosTest, SuppliersHaveTheirColoursAndEmployeesWhereTheShopUsesThem)
{
    abre();
    EXPECT_NE(panel(u"PanelEmpleados"_s).fichas()[1]->color(), QColor(255, 0, 0));
    EXPECT_EQ(panel(u"PanelProveedores"_s).fichas()[1]->color(), QColor(1, 0, 0));
    m_contexto.UtilizaColoresEmpleados = true;
    abre();
    EXPECT_EQ(panel(u"PanelEmpleados"_s).fichas()[1]->color(), QColor(255, 0, 0));
}

} // namespace
} // namespace kestrane
