#include "dialogs/frm_historico_x_empleados.h"

#include "dialogs/panel_de_prueba.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class FrmHistoricoXEmpleadosMontajeTest : public prueba::FormaConPanelesTest<FrmHistoricoXEmpleados>
{
};

TEST_F(FrmHistoricoXEmpleadosMontajeTest, ItsControlsBearTheirCaptions)
{
    abre();
    EXPECT_EQ(rotulo(u"frSeleccion2_rotulo"_s), u"COMO DESEA ESTE LISTADO"_s);
    EXPECT_EQ(rotulo(u"cmdDetal1"_s), u"Listado Detallado"_s);
    EXPECT_EQ(rotulo(u"cmdTotal1"_s), u"Listado Totalizado"_s);
    EXPECT_EQ(rotulo(u"Label3"_s), u"EMPLEADO SELECCIONADO: "_s);
    EXPECT_EQ(control<QCheckBox>(*m_forma, u"chFTicket"_s).text(), u"Formato Ticket"_s);
    EXPECT_EQ(control<QPushButton>(*m_forma, u"Command1"_s).text(), u"Aceptar"_s);
    EXPECT_EQ(control<QPushButton>(*m_forma, u"cmd_Salir"_s).text(), u"Salir"_s);
    EXPECT_EQ(control<QPushButton>(*m_forma, u"Command7"_s).text(), u"Volver"_s);
}

TEST_F(FrmHistoricoXEmpleadosMontajeTest, ThePictureButtonsAreReadOutByTheirLabels)
{
    abre();
    for (const QString& nombre : {u"cmdUno"_s, u"cmdTodos"_s, u"cmdDeta"_s, u"cmdTotal"_s}) {
        EXPECT_FALSE(control<QPushButton>(*m_forma, nombre).accessibleName().isEmpty()) << nombre.toStdString();
        EXPECT_FALSE(control<QPushButton>(*m_forma, nombre).icon().isNull()) << nombre.toStdString();
    }
}

TEST_F(FrmHistoricoXEmpleadosMontajeTest, InALowWindowTheCalendarsHaveAHeightOfTheirOwn)
{
    m_contexto.AltoVentana = 11084;
    abre();
    EXPECT_EQ(control<Calendario>(*m_forma, u"cld_Desde"_s).mes().maximumHeight(), 254); // 3810 twips
}

} // namespace
} // namespace kestrane
