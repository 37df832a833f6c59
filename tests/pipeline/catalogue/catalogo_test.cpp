#include "pipeline/catalogue/catalogo.h"

#include "cash/listado_albaranes.h"
#include "cash/listado_caja_diaria.h"
#include "cash/listado_caja_general.h"
#include "cash/listado_caja_tickets.h"
#include "cash/listado_formas_pago_ventas.h"
#include "cash/listado_por_servicios.h"
#include "listings/listado_empleados.h"
#include "listings/listados_articulos.h"
#include "listings/listados_maestros.h"
#include "listings/listados_servicios.h"
#include "pipeline/catalogue/descripcion_fila.h"
#include "pipeline/catalogue/filas_esperadas.h"
#include "pipeline/catalogue/pasos.h"
#include "platform/database/entorno_datos.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QStringList>

#include <map>

namespace kestrane::catalogue {
namespace {

using namespace Qt::StringLiterals;
using prueba::FilaEsperada;

/// What a button sets, and what else single rows have. A row that is not here has none of it.
struct ParticularEsperado
{
    void (*preparacion)(ContextoEjecucion&) = nullptr;
    bool (*trasElPrimero)(ContextoEjecucion&) = nullptr;
    std::string titulo{};
    std::string tituloDe{};
    std::string acciones{};
};

const std::map<std::string, ParticularEsperado> Particulares{
    {"cmd_Caja5", {.preparacion = prepararReimpresion}},
    {"cmd_Ventas3", {.preparacion = buscaClientes, .trasElPrimero = tomaClienteBuscado}},
    {"cmd_Ventas4", {.tituloDe = "cmd_Ventas1"}},
    {"cmd_Generales1", {.preparacion = prepararClientes}},
    {"cmd_Generales13", {.preparacion = prepararCumpleanios, .titulo = "Clientes que cumplen años"}},
    {"cmd_GeneralesCliDinDep", {.preparacion = prepararDineroEnDeposito}},
    {"cmd_Generales2", {.preparacion = prepararProductos}},
    {"cmd_Generales14", {.preparacion = prepararBajoMinimos}},
    {"cmd_Generales21", {.acciones = "frmSeleccionCartel"}},
    {"cmd_Generales22", {.acciones = "frmSeleccionEtiquetasTPV?alimentacion frmSeleccionEtiquetas"}},
    {"cmd_Generales12", {.acciones = "frAviso"}},
    {"cmd_Ayuda", {.acciones = "ayuda"}},
    {"cmd_Salir", {.acciones = "salir"}},
};

void comparaParticular(const FilaCatalogo& fila)
{
    const auto hallado = Particulares.find(fila.control.toString().toStdString());
    const ParticularEsperado esperado = hallado == Particulares.end() ? ParticularEsperado{} : hallado->second;
    EXPECT_TRUE(fila.preparacion == esperado.preparacion) << "another preparation";
    EXPECT_TRUE(fila.dialogos.trasElPrimero == esperado.trasElPrimero) << "another step between the dialogs";
    EXPECT_EQ(fila.titulo.toString().toStdString(), esperado.titulo);
    EXPECT_EQ(fila.tituloDe.toString().toStdString(), esperado.tituloDe);
    EXPECT_EQ(prueba::accionesDe(fila), esperado.acciones);
}

void compara(std::span<const FilaEsperada> esperadas, Clase clase)
{
    for (const FilaEsperada& esperada : esperadas) {
        const std::string control = esperada.control.toString().toStdString();
        SCOPED_TRACE(control);
        const FilaCatalogo* const fila = busca(esperada.control);
        ASSERT_NE(fila, nullptr);
        EXPECT_EQ(fila->control.toString().toStdString(), control);
        EXPECT_TRUE(fila->clase == clase) << "another class";
        EXPECT_EQ(fila->leyenda.toString().toStdString(), esperada.leyenda.toString().toStdString());
        EXPECT_EQ(prueba::dialogosDe(*fila), esperada.dialogos.toString().toStdString());
        EXPECT_EQ(prueba::constructoresDe(*fila), esperada.constructores.toString().toStdString());
        EXPECT_EQ(prueba::disenosDe(*fila), esperada.disenos.toString().toStdString());
        EXPECT_EQ(prueba::marcasDe(*fila), esperada.marcas.toString().toStdString());
        comparaParticular(*fila);
    }
}

TEST(Catalogo, AControlThatIsNotThereIsNotFound)
{
    EXPECT_EQ(busca(u"cmd_Caja2"), nullptr);
    EXPECT_EQ(busca(u""), nullptr);
    EXPECT_EQ(busca(u"cmd_Caja1 "), nullptr);
}

TEST(Catalogo, EveryReportHasItsRow)
{
    compara(prueba::Informes, Clase::Informe);
}

TEST(Catalogo, EveryChartHasItsRow)
{
    compara(prueba::Graficos, Clase::Grafico);
}

TEST(Catalogo, WhatOpensAWindowOfItsOwnAndWhatDoesNothingHaveTheirRowsToo)
{
    compara(prueba::Acciones, Clase::Accion);
    compara(prueba::SinAccion, Clase::SinAccion);
}

TEST(Catalogo, ThereIsNothingElseInItAndNothingTwice)
{
    EXPECT_EQ(catalogo().size(), std::size(prueba::Informes) + std::size(prueba::Graficos) + std::size(prueba::Acciones) +
                                     std::size(prueba::SinAccion));
    QSet<QString> controles;
    for (const FilaCatalogo& fila : catalogo())
        controles.insert(fila.control.toString().toCaseFolded());
    EXPECT_EQ(static_cast<size_t>(controles.size()), catalogo().size());
}

TEST(Catalogo, AControlIsFoundWhateverItsCase)
{
    EXPECT_EQ(busca(u"CMD_caja1"), busca(u"cmd_Caja1"));
}

/// The builders that there are, as the one choice of their rows.
struct ConstructorEsperado
{
    QStringView control;
    Constructor constructor;
};

constexpr ConstructorEsperado Construidos[] = {
    {u"cmd_Caja1", ListadoCajaDiaria},
    {u"cmdCajaDiariaResumido", ListadoCajaDiaria},
    {u"cmd_Caja3", ListadoCajaGeneral},
    {u"cmd_Caja4", ListadoCajaTickets},
    {u"cmd_Ventas1", ListadoPorServicios},
    {u"cmd_Ventas2", ListadoFormasPagoVentas},
    {u"cmdAlbaranes", ListadoAlbaranes},
    {u"cmd_Generales3", ListadoEmpleados},
    {u"cmd_Generales4", ListadoServicios},
    {u"cmd_Generales5", ListadoPackSpa},
    {u"cmd_Generales7", ListadoPackServicios},
    {u"cmd_Generales8", ListadoSecciones},
    {u"cmd_Generales9", ListadoFormasPago},
    {u"cmd_Generales10", ListadoProveedores},
    {u"cmd_Colores", ListadoColores},
    {u"cmd_Marcas", ListadoMarcas},
    {u"cmd_Tallas", ListadoTallas},
    {u"cmd_Talleres", ListadoTalleres},
    {u"cmd_Arreglos", ListadoArreglos},
};

TEST(Catalogo, EachBuilderStandsInTheRowOfItsButton)
{
    for (const ConstructorEsperado& esperado : Construidos) {
        const FilaCatalogo& fila = *busca(esperado.control);
        EXPECT_TRUE(fila.constructores[0].constructor == esperado.constructor) << esperado.control.toString().toStdString();
        EXPECT_TRUE(estaDisponible(fila)) << esperado.control.toString().toStdString();
    }
}

TEST(Catalogo, WhatWaitsForABuilderOrAChartNamesItAndIsNotAvailable)
{
    const auto falta = [](QStringView control) { return queFalta(*busca(control)).toString().toStdString(); };
    EXPECT_EQ(falta(u"cmd_Ventas7"), "ListadoImpuestos");
    EXPECT_EQ(falta(u"cmd_AgendaAnuladas"), "ListadoAgenda");
    EXPECT_EQ(falta(u"Command2"), "facturacionXHoras");
    EXPECT_EQ(falta(u"cmd_Marcas"), "");
    EXPECT_FALSE(estaDisponible(*busca(u"cmd_Ventas7")));
    EXPECT_FALSE(estaDisponible(*busca(u"Command2")));
}

TEST(Catalogo, AChartIsAvailableWithItsCollectorAndAChoiceOfBuildersWithAllOfThem)
{
    FilaCatalogo grafico = *busca(u"Command2");
    grafico.grafico.recolector = [](Listados&) { return MatrizGrafico{}; };
    EXPECT_TRUE(estaDisponible(grafico));
    FilaCatalogo productos = *busca(u"cmd_Ventas5");
    productos.constructores[0].constructor = ListadoMarcas;
    EXPECT_EQ(queFalta(productos).toString().toStdString(), "ListadoPorProductosTallaColor");
    productos.constructores[1].constructor = ListadoMarcas;
    EXPECT_TRUE(estaDisponible(productos));
}

TEST(Catalogo, WhatIsNoReportIsNotAvailableAsOne)
{
    for (const QStringView control : {u"cmd_Salir", u"cmd_Generales12", u"Command1"})
        EXPECT_FALSE(estaDisponible(*busca(control))) << control.toString().toStdString();
}

/// "Frame1: cmd_Caja1 cmdCajaDiariaResumido ..." of one group.
std::string botonesDe(Grupo grupo)
{
    QStringList controles;
    for (const FilaCatalogo& fila : catalogo()) {
        if (fila.grupo == grupo)
            controles += fila.control.toString();
    }
    return prueba::enTexto(controles);
}

TEST(Catalogo, EveryButtonStandsInItsGroup)
{
    EXPECT_EQ(botonesDe(Grupo::Frame1), "cmd_Caja1 cmdCajaDiariaResumido cmd_Caja3 cmd_Caja4 cmd_Caja5");
    EXPECT_EQ(botonesDe(Grupo::Frame3),
              "cmd_Generales1 cmd_Generales13 cmd_GeneralesCliDinDep cmd_Generales2 cmd_Generales14 cmd_Generales3 cmd_Generales4 "
              "cmd_Generales5 cmd_Generales7 cmd_Generales8 cmd_Generales9 cmd_Generales10 cmd_Generales11 cmd_Generales12 "
              "cmd_Generales21 cmd_Generales22");
    EXPECT_EQ(botonesDe(Grupo::Frame5),
              "cmd_Ventas1 cmd_Ventas2 cmd_Ventas3 cmd_Ventas4 cmd_Ventas5 cmd_Ventas6 cmd_Ventas7 cmd_Ventas8 cmd_Ventas9 "
              "cmd_Ventas10 cmd_Ventas11 cmd_Ventas12 cmd_Ventas20 cmdAlbaranes");
    EXPECT_EQ(botonesDe(Grupo::Frame6),
              "cmd_Estadisticas1 cmd_Estadisticas2 cmd_Estadisticas3 cmd_Estadisticas4 cmd_Estadisticas5 cmd_Estadisticas6 "
              "cmd_Estadisticas7 cmd_Estadisticas8");
    EXPECT_EQ(botonesDe(Grupo::Frame7), "Command2 Command4 Command5 Command6 Command7 Command8 Command9");
    EXPECT_EQ(botonesDe(Grupo::Frame9),
              "Command18 Command17 Command16 Command15 Command14 Command13 Command12 Command11 Command19");
    EXPECT_EQ(botonesDe(Grupo::Frame10), "cmd_AgendaPendientes cmd_AgendaAnuladas cmd_AgendasAusentes");
    EXPECT_EQ(botonesDe(Grupo::Frame11), "Command22 Command23");
    EXPECT_EQ(botonesDe(Grupo::fr_TallaColor), "cmd_Colores cmd_Marcas cmd_Tallas cmd_Talleres cmd_Arreglos");
    EXPECT_EQ(botonesDe(Grupo::frAviso), "Command10");
    EXPECT_EQ(botonesDe(Grupo::Ninguno), "cmd_Ayuda cmd_Salir cmdListados Command1 Command3");
}

TEST(Catalogo, TheGroupsOfTheFormHaveTheirTitlesAndTheirOrder)
{
    QStringList todos;
    for (const GrupoMenu& grupo : grupos())
        todos += grupo.control.toString() + u'=' + grupo.titulo.toString();
    EXPECT_EQ(todos.join(u'|').toStdString(),
              "Frame1=Caja|Frame3=Listados Generales|Frame5=Listados de Ventas|Frame6=Estadisticas|Frame7=Graficos de venta|"
              "Frame9=Movimientos de Stock|Frame10=Agendas|Frame11=Bonos|fr_TallaColor=");
    EXPECT_EQ(botonesDe(grupos()[3].grupo), botonesDe(Grupo::Frame6));
    EXPECT_EQ(botonesDe(grupos()[8].grupo), botonesDe(Grupo::fr_TallaColor));
}

} // namespace
} // namespace kestrane::catalogue
