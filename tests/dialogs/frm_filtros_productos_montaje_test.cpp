#include "dialogs/frm_filtros_productos.h"

#include "dialogs/panel_de_prueba.h"
#include "platform/suite/permisos_empleado.h"
#include "platform/suite/windows/aspecto_de_suite.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmFiltrosProductosMontajeTest : public prueba::FormaConPanelesTest<FrmFiltrosProductos>
{
protected:
    QRect sitio(const QString& nombre)
    {
        const QWidget& suyo = control(*m_forma, nombre);
        return {suyo.mapTo(&*m_forma, QPoint{}), suyo.size()};
    }
};

TEST_F(FrmFiltrosProductosMontajeTest, TheFourBlocksStandTwoByTwoAndNoneCoversAnother)
{
    abre();
    EXPECT_LT(sitio(u"frPv"_s).right(), sitio(u"frSec"_s).left());
    EXPECT_LT(sitio(u"frPv"_s).bottom(), sitio(u"frTipo"_s).top());
    EXPECT_LT(sitio(u"frTipo"_s).right(), sitio(u"frPvBM"_s).left());
    EXPECT_EQ(sitio(u"frTipo"_s).top(), sitio(u"frPvBM"_s).top());
}

TEST_F(FrmFiltrosProductosMontajeTest, AnAcceptButtonThatComesMovesNothing)
{
    proveedor(9, u"Aqua"_s);
    abre();
    const QRect antes = sitio(u"PanelProveedores"_s);
    pulsaFicha(u"PanelProveedores"_s, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(sitio(u"PanelProveedores"_s), antes);
}

TEST_F(FrmFiltrosProductosMontajeTest, WhatIsPressedIsLargeEnoughForAFinger)
{
    proveedor(9, u"Aqua"_s);
    abre();
    pulsaFicha(u"PanelProveedores"_s, 0);
    for (const QString& nombre : {u"cmdAceptarPv"_s, u"optTodos"_s, u"optVenta"_s, u"cmd_Salir"_s})
        EXPECT_GE(sitio(nombre).height(), 44) << nombre.toStdString();
}

TEST_F(FrmFiltrosProductosMontajeTest, InALowWindowNoTitleIsCut)
{
    m_contexto.AnchoVentana = 12000;
    m_contexto.AltoVentana = 9000;
    PermisosEnTabla permisos;
    const TraductorCaptions traductor;
    AspectoDeSuite suite{m_contexto, permisos, traductor};
    FrmFiltrosProductos forma{{m_contexto, suite, m_reloj, m_mensajes}};
    forma.carga();
    forma.show();
    QCoreApplication::processEvents();
    for (const QString& nombre : {u"frPv_rotulo"_s, u"frSec_rotulo"_s, u"frTipo_rotulo"_s, u"frPvBM_rotulo"_s}) {
        const QLabel& suyo = control<QLabel>(forma, nombre);
        EXPECT_GE(suyo.width(), suyo.minimumSizeHint().width()) << nombre.toStdString();
        EXPECT_GE(suyo.height(), suyo.heightForWidth(suyo.width())) << nombre.toStdString();
    }
}

} // namespace
} // namespace kestrane
