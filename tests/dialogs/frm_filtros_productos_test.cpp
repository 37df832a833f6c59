#include "dialogs/frm_filtros_productos.h"

#include "dialogs/panel_de_prueba.h"

#include <QScrollBar>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmFiltrosProductosTest : public prueba::FormaConPanelesTest<FrmFiltrosProductos>
{
protected:
    FrmFiltrosProductosTest()
    {
        proveedor(9, u"Aqua"_s);
        seccion(4, u"Champús"_s);
    }
    QStringList aceptables()
    {
        QStringList lista;
        for (const QString& nombre : {u"cmdAceptarPv"_s, u"cmdAceptarSec"_s, u"cmdAceptarTipo"_s, u"cmdAceptarPvBM"_s}) {
            if (seVe(nombre))
                lista += nombre;
        }
        return lista;
    }
    bool enOrdenes() { return seVe(u"frOrden"_s) && !seVe(u"frFiltros"_s); }
    Filtros& filtros() { return m_contexto.filtros; }
};

TEST_F(FrmFiltrosProductosTest, ItOpensOnTheFiltersWithNothingChosen)
{
    filtros().seccion = filtros().proveedor = filtros().proveedorBajoMinimos = 1;
    filtros().claseProducto = u"V"_s;
    abre();
    EXPECT_EQ(m_forma->windowTitle(), u"Listado de Productos"_s);
    EXPECT_TRUE(seVe(u"frFiltros"_s) && !seVe(u"frOrden"_s));
    EXPECT_TRUE(aceptables().isEmpty());
    EXPECT_EQ(filtros().seccion, -1);
    EXPECT_EQ(filtros().proveedor, -1);
    EXPECT_EQ(filtros().proveedorBajoMinimos, -1);
    EXPECT_EQ(filtros().claseProducto, QString{u""_s});
}

TEST_F(FrmFiltrosProductosTest, ItsLoadTakesItsStepsInTheirOrder)
{
    abre();
    EXPECT_EQ(m_aspecto.pasos, (QStringList{u"PintarForm frmFiltrosProductos"_s, u"DarColorPredefinido1"_s,
                                            u"DarColorPredefinido2"_s, u"DarColorPredefinido3"_s, u"DarColorPredefinido4"_s,
                                            u"EscalarForm frmFiltrosProductos de 15360x11085 a 15360x11085"_s}));
}

TEST_F(FrmFiltrosProductosTest, TheBlocksHaveTheirTitlesAndBothSupplierPanelsTheSameButtons)
{
    abre();
    EXPECT_EQ(rotulo(u"frPv_rotulo"_s), u"LISTADO DE PRODUCTOS X PROVEEDOR"_s);
    EXPECT_EQ(rotulo(u"frSec_rotulo"_s), u"LISTADO DE PRODUCTOS X SECCIONES"_s);
    EXPECT_EQ(rotulo(u"frTipo_rotulo"_s), u"LISTADO X TIPO DE PRODUCTOS"_s);
    EXPECT_EQ(rotulo(u"frPvBM_rotulo"_s), u"LISTADO DE PRODUCTOS BAJO MINIMO"_s);
    EXPECT_EQ(textos(u"PanelProveedores"_s), (QStringList{u"Todos los Proveedores"_s, u"Aqua"_s}));
    EXPECT_EQ(textos(u"PanelProveedoresBM"_s), textos(u"PanelProveedores"_s));
    EXPECT_EQ(textos(u"PanelSecciones"_s), (QStringList{u"Todas las Secciones"_s, u"Champús"_s}));
    EXPECT_EQ(panel(u"PanelProveedores"_s).fichas()[1]->color(), QColor(1, 0, 0));
}

TEST_F(FrmFiltrosProductosTest, EachChoiceShowsTheAcceptButtonOfItsBlockAlone)
{
    abre();
    pulsaFicha(u"PanelProveedores"_s, 1);
    EXPECT_EQ(aceptables(), QStringList{u"cmdAceptarPv"_s});
    pulsaFicha(u"PanelSecciones"_s, 1);
    EXPECT_EQ(aceptables(), QStringList{u"cmdAceptarSec"_s});
    pulsa(u"optVenta"_s);
    EXPECT_EQ(aceptables(), QStringList{u"cmdAceptarTipo"_s});
    pulsaFicha(u"PanelProveedoresBM"_s, 1);
    EXPECT_EQ(aceptables(), QStringList{u"cmdAceptarPvBM"_s});
}

TEST_F(FrmFiltrosProductosTest, WhatIsMarkedIsInTheBlockOfTheLastChoiceAlone)
{
    abre();
    pulsa(u"optVenta"_s);
    pulsaFicha(u"PanelProveedores"_s, 1);
    EXPECT_FALSE(control<QRadioButton>(*m_forma, u"optVenta"_s).isChecked());
    pulsa(u"optVenta"_s);
    EXPECT_TRUE(control<QRadioButton>(*m_forma, u"optVenta"_s).isChecked());
    EXPECT_EQ(panel(u"PanelProveedores"_s).elegido(), nullptr);
    pulsa(u"optCInt"_s);
    EXPECT_FALSE(control<QRadioButton>(*m_forma, u"optVenta"_s).isChecked());
}

TEST_F(FrmFiltrosProductosTest, EachBlockLeadsToTheOrdersWithItsFilterAndTitle)
{
    const auto recorre = [this](const auto& elige, const QString& aceptar, const QString& titulo) {
        abre();
        elige();
        EXPECT_EQ(filtros().titulo, titulo);
        pulsa(aceptar);
        EXPECT_TRUE(enOrdenes()) << aceptar.toStdString();
    };
    recorre([this] { pulsaFicha(u"PanelProveedores"_s, 1); }, u"cmdAceptarPv"_s, u"LISTADO DE PRODUCTOS X PROVEEDOR = Aqua"_s);
    EXPECT_EQ(filtros().proveedor, 9);
    recorre([this] { pulsaFicha(u"PanelSecciones"_s, 1); }, u"cmdAceptarSec"_s, u"LISTADO DE PRODUCTOS X SECCIONES = Champús"_s);
    EXPECT_EQ(filtros().seccion, 4);
    recorre([this] { pulsa(u"optCInt"_s); }, u"cmdAceptarTipo"_s, u"LISTADO X TIPO DE PRODUCTOS = Productos de Consumo Interno"_s);
    EXPECT_EQ(filtros().claseProducto, u"CI"_s);
    EXPECT_FALSE(filtros().bajoMinimos);
    recorre([this] { pulsaFicha(u"PanelProveedoresBM"_s, 1); }, u"cmdAceptarPvBM"_s,
            u"LISTADO DE PRODUCTOS BAJO MINIMOX Proveedor = Aqua"_s);
    EXPECT_EQ(filtros().proveedorBajoMinimos, 9);
    EXPECT_TRUE(filtros().bajoMinimos);
}

TEST_F(FrmFiltrosProductosTest, EachClassIsAnOptionOfItsCaption)
{
    const std::tuple<QString, QString, QString> casos[] = {
        {u"optTodos"_s, u"Todos los Productos"_s, u""_s},
        {u"optAmbos"_s, u"Ambos"_s, u"A"_s},
        {u"optCInt"_s, u"Producto de Consumo Interno"_s, u"CI"_s},
        {u"optVenta"_s, u"Producto de Venta"_s, u"V"_s},
    };
    abre();
    for (const auto& [nombre, leyenda, clase] : casos) {
        pulsa(nombre);
        EXPECT_EQ(control<QRadioButton>(*m_forma, nombre).text(), leyenda);
        EXPECT_EQ(filtros().claseProducto, clase);
    }
}

TEST_F(FrmFiltrosProductosTest, AChoiceInAnotherBlockWinsAndItsButtonClearsTheFirst)
{
    abre();
    pulsaFicha(u"PanelProveedores"_s, 1);
    pulsaFicha(u"PanelSecciones"_s, 1);
    EXPECT_EQ(filtros().proveedor, 9);
    pulsa(u"cmdAceptarSec"_s);
    EXPECT_EQ(filtros().proveedor, -1);
    EXPECT_EQ(filtros().seccion, 4);
}

TEST_F(FrmFiltrosProductosTest, AllSuppliersInThePanelIsMinusOne)
{
    abre();
    pulsaFicha(u"PanelProveedores"_s, 1);
    pulsaFicha(u"PanelProveedores"_s, 0);
    EXPECT_EQ(filtros().proveedor, -1);
    EXPECT_EQ(filtros().titulo, u"LISTADO DE PRODUCTOS X PROVEEDOR = Todos los Proveedores"_s);
}

TEST_F(FrmFiltrosProductosTest, EachOrderIsSetAndAccepted)
{
    const std::tuple<QString, QString, QString> casos[] = {
        {u"Command1"_s, u"Nombre"_s, u"Nombre"_s},         {u"Command2"_s, u"Secciones"_s, u"Seccion"_s},
        {u"Command4"_s, u"Proveedores"_s, u"Proveedor"_s}, {u"Command5"_s, u"Codigo"_s, u"Codigo"_s},
        {u"Command6"_s, u"Stock"_s, u"Stock"_s},
    };
    for (const auto& [nombre, leyenda, columna] : casos) {
        m_contexto.FiltroAceptado = false;
        abre();
        pulsa(u"optTodos"_s);
        pulsa(u"cmdAceptarTipo"_s);
        EXPECT_EQ(rotulo(u"Label1"_s), u"Ordenado x"_s);
        EXPECT_EQ(control<QPushButton>(*m_forma, nombre).text(), leyenda);
        pulsa(nombre);
        EXPECT_FALSE(m_forma->isVisible());
        EXPECT_TRUE(m_contexto.FiltroAceptado);
        EXPECT_EQ(filtros().columnaOrden, columna);
    }
}

TEST_F(FrmFiltrosProductosTest, UnderTheMinimumAloneTheFiltersAreNeverSeen)
{
    m_contexto.SoloBajoMinimos = true;
    filtros().titulo = u"antes"_s;
    abre();
    EXPECT_TRUE(enOrdenes());
    EXPECT_TRUE(filtros().bajoMinimos);
    EXPECT_EQ(filtros().proveedorBajoMinimos, -1);
    EXPECT_EQ(filtros().titulo, u"antes"_s);
}

TEST_F(FrmFiltrosProductosTest, LeavingEitherPageAcceptsNothing)
{
    m_contexto.FiltroAceptado = true;
    abre();
    pulsa(u"cmd_Salir"_s);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
    abre();
    pulsa(u"optTodos"_s);
    pulsa(u"cmdAceptarTipo"_s);
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(m_forma->isVisible() || m_contexto.FiltroAceptado);
}

TEST_F(FrmFiltrosProductosTest, WithTheKeyboardAloneAListingIsAskedFor)
{
    abre();
    tecla(Qt::Key_Return); // nothing to accept yet
    EXPECT_TRUE(seVe(u"frFiltros"_s));
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Space);
    EXPECT_EQ(filtros().proveedor, 9);
    tecla(Qt::Key_Return);
    EXPECT_TRUE(enOrdenes());
    tecla(Qt::Key_Return);
    EXPECT_EQ(filtros().columnaOrden, u"Nombre"_s);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

TEST_F(FrmFiltrosProductosTest, WithoutSuppliersAndSectionsTheirPanelsHoldTheButtonForAllAlone)
{
    m_tienda.ejecuta({u"delete from proveedores"_s, u"delete from seccion"_s});
    abre();
    for (const QString& nombre : {u"PanelProveedores"_s, u"PanelProveedoresBM"_s, u"PanelSecciones"_s})
        EXPECT_EQ(textos(nombre).size(), 1) << nombre.toStdString();
    EXPECT_EQ(textos(u"PanelSecciones"_s), QStringList{u"Todas las Secciones"_s});
    pulsa(u"optAmbos"_s);
    EXPECT_EQ(aceptables(), QStringList{u"cmdAceptarTipo"_s});
}

TEST_F(FrmFiltrosProductosTest, BadPicturesAndColoursLeaveNamesAndTwoHundredOfThemAreScrolled)
{
    proveedor(10, u"Sin imagen"_s, u"no/hay.png"_s);
    m_tienda.ejecuta(u"update proveedores set prv_color = '-1', color = 'rojo' where codigo = 10"_s);
    for (int codigo = 11; codigo < 210; ++codigo)
        proveedor(codigo, u"Distribuciones Cosméticas & Perfumería del Mediterráneo S.A."_s); // 60
    abre();
    const QList<Ficha*>& fichas = panel(u"PanelProveedores"_s).fichas();
    ASSERT_EQ(fichas.size(), 202);
    EXPECT_FALSE(fichas[2]->conImagen());
    EXPECT_EQ(fichas[2]->elemento().Texto, u"Sin imagen"_s);
    EXPECT_GT(panel(u"PanelProveedores"_s).verticalScrollBar()->maximum(), 0);
    EXPECT_GE(fichas[201]->height(), fichas[201]->heightForWidth(fichas[201]->width()));
    pulsaFicha(u"PanelProveedores"_s, 201);
    EXPECT_EQ(filtros().proveedor, 209);
}

} // namespace
} // namespace kestrane
