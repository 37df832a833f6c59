#include "platform/report/layout/lector_informe.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;
using prueba::layoutDe;
using prueba::rechazoDe;

TEST(LeeInforme, ConsultaYOrden)
{
    const Layout layout = layoutDe(u"<orden por=\"b\" sentido=\"descendente\"/><orden por=\"a\"/>"_s);
    EXPECT_EQ(layout.sentencia, u"select a, b from informes"_s);
    EXPECT_EQ(layout.lineaSentencia, 1);
    EXPECT_EQ(layout.dsn, u"ListKestrane"_s);
    ASSERT_EQ(layout.orden.size(), 2U);
    EXPECT_TRUE(layout.orden[0].descendente);
    EXPECT_FALSE(layout.orden[1].descendente);
}

TEST(LeeInforme, GruposDeFueraADentro)
{
    const Layout layout = layoutDe(u"<grupo nombre=\"seccion\" por=\"a\" sentido=\"descendente\" salto=\"si\" junto=\"no\" "
                                   u"repite=\"si\" titulo=\"'Sección ' &amp; a\">"
                                   "<cabecera><banda alto=\"5\"><texto valor=\"suma(b)\"/></banda></cabecera></grupo>"
                                   "<grupo nombre=\"dia\" por=\"b\" ordena=\"no\"><pie><banda alto=\"5\"><texto valor=\"suma(b) / "
                                   "suma(b; seccion)\"/></banda></pie></grupo>"
                                   "<pie-informe><banda alto=\"5\"><texto valor=\"suma(b)\"/></banda></pie-informe>"_s);
    ASSERT_EQ(layout.grupos.size(), 2U);
    const Grupo& seccion = layout.grupos[0];
    EXPECT_TRUE(seccion.descendente && seccion.saltoDePagina && seccion.repiteCabecera && seccion.ordena);
    EXPECT_FALSE(seccion.juntoALaPrimera);
    EXPECT_FALSE(seccion.titulo.vacia());
    EXPECT_EQ(seccion.cabecera.size(), 1U);
    EXPECT_FALSE(layout.grupos[1].ordena);
    EXPECT_TRUE(layout.grupos[1].juntoALaPrimera);
    ASSERT_EQ(layout.agregados.size(), 3U);
    EXPECT_EQ(layout.agregados[0].nivel, 0);
    EXPECT_EQ(layout.agregados[1].nivel, 1);
    EXPECT_EQ(layout.agregados[2].nivel, 2);
}

TEST(LeeInforme, ElDetalleEsTanAnchoComoUnaColumna)
{
    const Layout layout = layoutDe(
        u"<pagina columnas=\"3\" separacion=\"3\" margenes=\"12 12 12 12\"/><detalle><banda alto=\"5\"><marco/></banda></detalle>"
        "<pie-pagina><banda alto=\"5\"><marco/></banda></pie-pagina>"_s);
    EXPECT_EQ(prueba::primero<Marco>(layout.detalle).caja.width(), 60);
    EXPECT_EQ(prueba::primero<Marco>(layout.piePagina).caja.width(), 186);
}

TEST(LeeInforme, Rechazos)
{
    EXPECT_EQ(rechazoDe(u"<grupo nombre=\"g\" por=\"a\"/><grupo nombre=\"G\" por=\"b\"/>"_s),
              u"K_x.rpt, línea 2: el nombre de grupo «G» ya se usa."_s);
    EXPECT_TRUE(rechazoDe(u"<grupo nombre=\"informe\" por=\"a\"/>"_s).contains(u"ya se usa"_s));
    EXPECT_TRUE(rechazoDe(u"<grupo nombre=\"g\" por=\"suma(a)\"/>"_s).contains(u"«suma» no puede estar aquí"_s));
    EXPECT_TRUE(rechazoDe(u"<orden por=\"fila\"/>"_s).contains(u"«fila» no puede estar aquí"_s));
    EXPECT_TRUE(rechazoDe(u"<consulta>select 1</consulta>"_s).contains(u"solo puede haber uno"_s));
    EXPECT_TRUE(rechazoDe(u"<detalle/><detalle/>"_s).contains(u"solo puede haber uno"_s));
    EXPECT_EQ(prueba::descripcionDeError(
                  [] { return leeLayout("<informe xmlns=\"urn:kestrane:informe\" titulo=\"x\"/>", u"K_x.rpt"_s, {}); }),
              u"K_x.rpt, línea 1: a <informe> le falta la consulta."_s);
}

} // namespace
} // namespace kestrane::report
