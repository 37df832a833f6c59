#include "pipeline/forms/menu_de_prueba.h"

#include <QShortcut>
#include <QTest>
#include <QTimer>

/// The form as it is designed.
namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::MenuTest;

struct Boton
{
    QString control;
    QString leyenda;
};

/// What each group holds, as the suite's manuals have it.
const std::pair<QString, QList<Boton>> Grupos[] = {
    {u"Frame1"_s,
     {{u"cmd_Caja1"_s, u"Caja Diaria General"_s},
      {u"cmdCajaDiariaResumido"_s, u"Caja Diaria General Resumido"_s},
      {u"cmd_Caja3"_s, u"Caja General por Empleados"_s},
      {u"cmd_Caja4"_s, u"Caja Diaria Formato Ticket"_s},
      {u"cmd_Caja5"_s, u"Re-Impresion de Facturas"_s}}},
    {u"Frame3"_s,
     {{u"cmd_Generales1"_s, u"Clientes"_s},
      {u"cmd_Generales13"_s, u"Cumpleaños"_s},
      {u"cmd_GeneralesCliDinDep"_s, u"Clientes con Dinero en Deposito"_s},
      {u"cmd_Generales2"_s, u"Productos"_s},
      {u"cmd_Generales14"_s, u"Productos Bajo Minimos"_s},
      {u"cmd_Generales3"_s, u"Empleados"_s},
      {u"cmd_Generales4"_s, u"Servicios"_s},
      {u"cmd_Generales5"_s, u"Pack Spa"_s},
      {u"cmd_Generales7"_s, u"Pack Servicios"_s},
      {u"cmd_Generales8"_s, u"Secciones"_s},
      {u"cmd_Generales9"_s, u"Formas de Pago"_s},
      {u"cmd_Generales10"_s, u"Proveedores"_s},
      {u"cmd_Generales11"_s, u"Retiradas"_s},
      {u"cmd_Generales12"_s, u"Etiquetas de Clientes"_s},
      {u"cmd_Generales21"_s, u"Carteles"_s},
      {u"cmd_Generales22"_s, u"Etiquetas de Productos"_s}}},
    {u"frBotVentas"_s,
     {{u"cmd_Ventas1"_s, u"Por Servicios"_s},
      {u"cmd_Ventas2"_s, u"Formas de Pago"_s},
      {u"cmd_Ventas3"_s, u"Hist. X Clientes"_s},
      {u"cmd_Ventas4"_s, u"Por Pack Servicios"_s},
      {u"cmd_Ventas5"_s, u"Por Productos"_s},
      {u"cmd_Ventas6"_s, u"Hist. X Empleados"_s},
      {u"cmd_Ventas7"_s, u"Impuestos"_s},
      {u"cmd_Ventas8"_s, u"Por Secciones"_s},
      {u"cmd_Ventas9"_s, u"Pendientes de Pago"_s},
      {u"cmd_Ventas10"_s, u"Por Facturas/Horas"_s},
      {u"cmd_Ventas11"_s, u"Productos Vendidos"_s},
      {u"cmd_Ventas12"_s, u"Caja Totales por Día"_s},
      {u"cmd_Ventas20"_s, u"Por Arreglos"_s},
      {u"cmdAlbaranes"_s, u"Ventas modo Albaran"_s}}},
    {u"Frame6"_s,
     {{u"cmd_Estadisticas1"_s, u"Descuentos Realizados"_s},
      {u"cmd_Estadisticas2"_s, u"Por Gastos"_s},
      {u"cmd_Estadisticas3"_s, u"Ocupacion por Horas"_s},
      {u"cmd_Estadisticas4"_s, u"Clientes Perdidos"_s},
      {u"cmd_Estadisticas5"_s, u"Ranking por Facturacion"_s},
      {u"cmd_Estadisticas6"_s, u"Fidelizacion"_s},
      {u"cmd_Estadisticas7"_s, u"Ranking por Visitas"_s},
      {u"cmd_Estadisticas8"_s, u"Visitas X Seccion"_s}}},
    {u"Frame7"_s,
     {{u"Command2"_s, u"Ventas por horas"_s},
      {u"Command4"_s, u"Numero visitas x mes"_s},
      {u"Command5"_s, u"Por Secciones"_s},
      {u"Command6"_s, u"Facturacion Anual"_s},
      {u"Command7"_s, u"Facturacion Mensual"_s},
      {u"Command8"_s, u"Por Empleados"_s},
      {u"Command9"_s, u"Formas de Pago"_s}}},
    {u"Frame9"_s,
     {{u"Command18"_s, u"Entrada de Productos"_s},
      {u"Command17"_s, u"Ventas"_s},
      {u"Command16"_s, u"Devoluciones de Ventas"_s},
      {u"Command15"_s, u"Regularizaciones"_s},
      {u"Command14"_s, u"Inventarios"_s},
      {u"Command13"_s, u"Devoluciones a Proveedor"_s},
      {u"Command12"_s, u"Traspasos a Consumo Interno"_s},
      {u"Command11"_s, u"Devoluciones de Consumo Interno a Almacen"_s},
      {u"Command19"_s, u"Baja de Productos de Consumo Interno"_s}}},
    {u"Frame10"_s,
     {{u"cmd_AgendaPendientes"_s, u"Citas Pendientes"_s},
      {u"cmd_AgendaAnuladas"_s, u"Citas Anuladas"_s},
      {u"cmd_AgendasAusentes"_s, u"Citas Ausentes"_s}}},
    {u"Frame11"_s, {{u"Command22"_s, u"Bonos Caducados"_s}, {u"Command23"_s, u"Bonos Activos"_s}}},
    {u"fr_TallaColor"_s,
     {{u"cmd_Colores"_s, u"Colores"_s},
      {u"cmd_Marcas"_s, u"Marcas"_s},
      {u"cmd_Tallas"_s, u"Tallas"_s},
      {u"cmd_Talleres"_s, u"Talleres"_s},
      {u"cmd_Arreglos"_s, u"Arreglos"_s}}},
    {u"frAviso"_s, {{u"Command10"_s, u"Continuar"_s}}},
    {u"Frame4"_s,
     {{u"cmdListados"_s, u"Listados anteriores a la migracion"_s}, {u"Command1"_s, u"Cuadricula"_s}, {u"Command3"_s, {}}}},
    {u"Frame8"_s, {{u"cmd_Salir"_s, u"Salir"_s}, {u"cmd_Ayuda"_s, {}}}},
};

TEST_F(MenuTest, EveryButtonStandsInItsGroupUnderItsNameAndWithItsCaption)
{
    construye();
    for (const auto& [grupo, botones] : Grupos) {
        for (const auto& [nombre, leyenda] : botones) {
            const auto& boton = control<QAbstractButton>(nombre);
            EXPECT_EQ(boton.text(), leyenda) << nombre.toStdString();
            EXPECT_TRUE(control(grupo).isAncestorOf(&boton)) << nombre.toStdString();
        }
    }
}

TEST_F(MenuTest, GroupsBearTheirTitles)
{
    construye();
    const std::pair<QString, QString> titulos[] = {
        {u"Frame1"_s, u"Caja"_s},
        {u"Frame3"_s, u"Listados Generales"_s},
        {u"Frame5"_s, u"Listados de Ventas"_s},
        {u"Frame6"_s, u"Estadisticas"_s},
        {u"Frame7"_s, u"Graficos de venta"_s},
        {u"Frame9"_s, u"Movimientos de Stock"_s},
        {u"Frame10"_s, u"Agendas"_s},
        {u"Frame11"_s, u"Bonos"_s},
    };
    for (const auto& [nombre, titulo] : titulos)
        EXPECT_EQ(control<GrupoBotones>(nombre).titulo().text(), titulo) << nombre.toStdString();
}

TEST_F(MenuTest, TheWindowItsTitleAndItsNoticeHaveTheirTexts)
{
    EXPECT_EQ(construye().windowTitle(), u"Listados"_s);
    EXPECT_EQ(control<QLabel>(u"lblTitulo"_s).text(), u"SELECCIONE SU OPCION"_s);
    EXPECT_EQ(control<QLabel>(u"lblInfo"_s).text(), u"Este listado puede tardar varios minutos espere ..."_s);
}

TEST_F(MenuTest, FramesAndOtherControlsHaveTheirNames)
{
    construye();
    for (const QString& nombre : {u"Frame4"_s, u"Frame8"_s, u"fr_SeparacionH1"_s, u"fr_Zoom1"_s, u"fr_Zoom2"_s, u"fr_Zoom3"_s,
                                  u"Bandera"_s, u"Open1"_s, u"frBotVentas"_s, u"Frame12"_s, u"Frame13"_s, u"Frame14"_s,
                                  u"Frame15"_s, u"Frame16"_s, u"Frameb"_s, u"Framec"_s, u"Framed"_s, u"Framee"_s})
        EXPECT_NE(m_menu->findChild<QWidget*>(nombre), nullptr) << nombre.toStdString();
    const auto* const util = m_menu->findChild<QTimer*>(u"tmrUtil"_s);
    ASSERT_NE(util, nullptr);
    EXPECT_EQ(util->interval(), 1000);
    EXPECT_EQ(m_menu->findChild<QTimer*>(u"tmrAyuda"_s)->interval(), 1);
}

TEST_F(MenuTest, TheKeyboardGoesThroughTheMenuGroupByGroup)
{
    abre();
    control(u"cmd_Caja1"_s).setFocus();
    QStringList camino;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(m_menu->focusWidget(), Qt::Key_Tab);
        camino += m_menu->focusWidget()->objectName();
    }
    EXPECT_EQ(camino, (QStringList{u"cmdCajaDiariaResumido"_s, u"cmd_Caja3"_s, u"cmd_Caja4"_s, u"cmd_Caja5"_s, u"cmd_Generales1"_s,
                                   u"cmd_Generales13"_s}));
}

TEST_F(MenuTest, EnterPressesTheButtonThatHasTheFocus)
{
    abre();
    control(u"cmd_Ventas7"_s).setFocus();
    QTest::keyClick(&control(u"cmd_Ventas7"_s), Qt::Key_Return);
    EXPECT_EQ(m_pulsados, QStringList{u"cmd_Ventas7"_s});
}

TEST_F(MenuTest, AltWithADigitGoesToTheFirstButtonOfThatShownGroup)
{
    m_contexto.TipoPrograma = u"SUPERMERCADO"_s; // without the agenda and the vouchers
    abre();
    const auto salta = [this](int cual) {
        for (QShortcut* const atajo : m_menu->findChildren<QShortcut*>()) {
            if (atajo->key() == QKeySequence{Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + cual)})
                emit atajo->activated();
        }
        return m_menu->focusWidget()->objectName();
    };
    EXPECT_EQ(salta(1), u"cmd_Caja1"_s);
    EXPECT_EQ(salta(3), u"cmd_Ventas2"_s); // services are not sold there
    EXPECT_EQ(salta(6), u"Command18"_s);
    EXPECT_EQ(salta(7), u"Command18"_s);
}

} // namespace
} // namespace kestrane
