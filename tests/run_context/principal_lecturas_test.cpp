// What the start reads of the terminal, the region and the migration.

#include "run_context/lecturas.h"

#include <QDir>
#include <QFile>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::LecturasTest;

// Terminal and copy.

TEST_F(LecturasTest, TheKeyOfTheCopyIsTheTerminalFollowedAtOnceByItsList)
{
    EXPECT_EQ(arranca().ClaveInstancia, u"PC"_s);
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values (null)"_s);
    EXPECT_EQ(arranca().List1, u""_s);
    EXPECT_EQ(contexto().ClaveInstancia, u"PC"_s) << "null";
    m_tienda.ejecutaListados({u"delete from listadostemporal"_s, u"insert into listadostemporal (list1) values ('list 7')"_s,
                              u"insert into listadostemporal (list1) values ('list 8')"_s});
    EXPECT_EQ(arranca().List1, u"list 7"_s);
    EXPECT_EQ(contexto().IdentificadorEquipo, u"PC"_s);
    EXPECT_EQ(contexto().ClaveInstancia, u"PClist 7"_s);
}

TEST_F(LecturasTest, TheListIsReadTwiceAndTheSecondReadingMakesTheKey)
{
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values ('1')"_s);
    int vez = 0;
    m_alPedir = [&](const QString& dsn) {
        if (dsn == u"ListKestrane" && ++vez == 3)
            m_tienda.ejecutaListados(u"update listadostemporal set list1 = '2'"_s);
    };
    EXPECT_EQ(arranca().List1, u"1"_s);
    EXPECT_EQ(contexto().ClaveInstancia, u"PC2"_s);
    EXPECT_EQ(vez, 3) << "the connection that stays, and one for each reading";
}

TEST_F(LecturasTest, TheMenuReadsTheListAfresh)
{
    arranca();
    EXPECT_EQ(m_principal->ObtenerList1(), u""_s);
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values ('9')"_s);
    EXPECT_EQ(m_principal->ObtenerList1(), u"9"_s);
    EXPECT_EQ(contexto().List1, u""_s);
}

TEST_F(LecturasTest, ThePicturesFolderLiesInTheProgramFolder)
{
    m_carpetaPrograma = u"/opt/kestrane"_s;
    EXPECT_EQ(arranca().RutaFotos, u"/opt/kestrane\\fotos\\"_s);
}

TEST_F(LecturasTest, TheAppearanceComesFromThePreferencesAndTheDesignSizeIsFixed)
{
    const ContextoEjecucion& contexto = arranca();
    EXPECT_EQ(contexto.Tema, 3);
    EXPECT_EQ(contexto.TamanoLetra, 12);
    EXPECT_EQ(contexto.AnchoVentana, 19200);
    EXPECT_EQ(contexto.AltoVentana, 14400);
    EXPECT_EQ(contexto.AnchoDiseno, 15360);
    EXPECT_EQ(contexto.AltoDiseno, 11085);
}

TEST_F(LecturasTest, ATerminalWithoutARowHasNoNameNoEmployeeAndNoPrinters)
{
    m_tienda.ejecuta({u"insert into opciones_terminal (identificador, terminal, empleado) values ('OTRO', 'Caja 2', 5)"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('T', 'Caja 2', 'Epson')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('L', 'Caja 2', 'HP')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('E', 'Caja 2', 'Zebra')"_s});
    const ContextoEjecucion& contexto = arranca();
    EXPECT_EQ(contexto.NombreTerminal, u""_s);
    EXPECT_EQ(contexto.EmpleadoTerminal, 0);
    EXPECT_EQ(contexto.ImpresoraTicket, u""_s);
    EXPECT_EQ(contexto.ImpresoraListados, u""_s);
    EXPECT_EQ(contexto.ImpresoraEtiquetas, u""_s);
}

TEST_F(LecturasTest, ATerminalHasItsNameItsEmployeeAndTheFirstPrinterOfEachKind)
{
    m_tienda.ejecuta({u"insert into opciones_terminal (identificador, terminal, empleado) values ('OTRO', 'Caja 1', 5)"_s,
                      u"insert into opciones_terminal (identificador, terminal, empleado) values ('PC', 'Caja 2', 70000)"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('T', 'Caja 1', 'Ajena')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('E', 'Caja 2', 'Zebra')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('T', 'Caja 2', 'Epson')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('T', 'Caja 2', 'Star')"_s,
                      u"insert into impresoras (tipo, terminal, impresora) values ('L', 'Caja 2', 'HP')"_s});
    const ContextoEjecucion& contexto = arranca();
    EXPECT_EQ(contexto.NombreTerminal, u"Caja 2"_s);
    EXPECT_EQ(contexto.EmpleadoTerminal, 70000);
    EXPECT_EQ(contexto.ImpresoraTicket, u"Epson"_s);
    EXPECT_EQ(contexto.ImpresoraListados, u"HP"_s);
    EXPECT_EQ(contexto.ImpresoraEtiquetas, u"Zebra"_s);
}

TEST_F(LecturasTest, NullsOfATerminal)
{
    m_tienda.ejecuta(u"insert into impresoras (tipo, terminal, impresora) values ('T', '', null)"_s);
    EXPECT_EQ(conFila(u"opciones_terminal"_s, u"identificador, terminal, empleado"_s, u"'PC', null, 3"_s).NombreTerminal, u""_s);
    EXPECT_EQ(contexto().EmpleadoTerminal, 3);
    EXPECT_EQ(contexto().ImpresoraTicket, u""_s);
    m_tienda.ejecuta(u"update opciones_terminal set empleado = null"_s);
    EXPECT_EQ(errorAlArrancar(), 94);
}

TEST_F(LecturasTest, AnApostropheInTheTerminalsNameIsTheDatabasesToRefuse)
{
    m_tienda.ejecuta(u"insert into opciones_terminal (identificador, terminal, empleado) values ('PC', 'Caja O''Donnell', 1)"_s);
    EXPECT_EQ(errorAlArrancar(), -2147217900);
    m_preferencias.identificador = u"PC O'Donnell"_s;
    EXPECT_EQ(errorAlArrancar(), -2147217900);
}

// Region.

TEST_F(LecturasTest, TheFlagIsKeptOnlyIfItsFileExists)
{
    const QString columnas = u"bandera"_s;
    const QString tabla = u"configuracionregional"_s;
    QFile bandera{QDir{m_tienda.carpeta()}.filePath(u"españa.png"_s)};
    ASSERT_TRUE(bandera.open(QIODevice::WriteOnly));
    const QString conBarra = m_tienda.carpeta() + u"\\españa.png"_s;

    EXPECT_EQ(arranca().RutaBandera, u""_s) << "no row";
    EXPECT_EQ(conFila(tabla, columnas, u"null"_s).RutaBandera, u""_s);
    EXPECT_EQ(conFila(tabla, columnas, u"''"_s).RutaBandera, u""_s);
    EXPECT_EQ(conFila(tabla, columnas, u"'C:\\banderas\\francia.png'"_s).RutaBandera, u""_s) << "absent";
    EXPECT_EQ(conFila(tabla, columnas, u'\'' + m_tienda.carpeta() + u'\'').RutaBandera, u""_s) << "a folder";
    EXPECT_EQ(conFila(tabla, columnas, u'\'' + bandera.fileName() + u'\'').RutaBandera, bandera.fileName());
    EXPECT_EQ(conFila(tabla, columnas, u'\'' + conBarra + u'\'').RutaBandera, conBarra) << "as it stands, and found";
    EXPECT_EQ(conFila(tabla, columnas, u"'españa.png'"_s).RutaBandera, u"españa.png"_s) << "in the program folder";
}

TEST_F(LecturasTest, NameOfTheRegionAndCaptionOfTheTaxNumber)
{
    EXPECT_EQ(arranca().NombreRegional, u""_s);
    EXPECT_EQ(contexto().IdentificacionFiscal, u""_s);
    const QString columnas = u"nombre, Identificacion_Fiscal"_s;
    EXPECT_EQ(conFila(u"configuracionregional"_s, columnas, u"'España', 'N.I.F.'"_s).NombreRegional, u"España"_s);
    EXPECT_EQ(contexto().IdentificacionFiscal, u"N.I.F."_s);
    EXPECT_EQ(conFila(u"configuracionregional"_s, columnas, u"null, null"_s).NombreRegional, u""_s);
    EXPECT_EQ(contexto().IdentificacionFiscal, u""_s);
}

TEST_F(LecturasTest, OnlyTheFirstRowOfTheRegionCounts)
{
    QFile bandera{QDir{m_tienda.carpeta()}.filePath(u"francia.png"_s)};
    ASSERT_TRUE(bandera.open(QIODevice::WriteOnly));
    m_tienda.ejecuta(
        {u"insert into configuracionregional (nombre, bandera, Identificacion_Fiscal) values ('España', 'no.png', 'N.I.F.')"_s,
         u"insert into configuracionregional (nombre, bandera, Identificacion_Fiscal) values ('Francia', 'francia.png', 'SIREN')"_s});
    EXPECT_EQ(arranca().NombreRegional, u"España"_s);
    EXPECT_EQ(contexto().RutaBandera, u""_s);
    EXPECT_EQ(contexto().IdentificacionFiscal, u"N.I.F."_s);
}

// Migration of the sales.

TEST_F(LecturasTest, SalesAreMigratedWhenTheTableSaysSo)
{
    const QString columnas = u"tabla, estado, fecha"_s;
    const QString tabla = u"migraciontablas"_s;
    EXPECT_FALSE(arranca().MigracionVentas) << "no row";
    EXPECT_FALSE(conFila(tabla, columnas, u"'Agenda', -1, #03/05/2024#"_s).MigracionVentas);
    EXPECT_FALSE(conFila(tabla, columnas, u"'Ventas', 0, #03/05/2024#"_s).MigracionVentas);
    EXPECT_EQ(contexto().FechaMigracionVentas, dia(1899, 12, 30)) << "not read";
    EXPECT_TRUE(conFila(tabla, columnas, u"'Ventas', -1, #03/05/2024#"_s).MigracionVentas);
    EXPECT_EQ(contexto().FechaMigracionVentas, dia(2024, 3, 5));
}

TEST_F(LecturasTest, AMigrationWithoutADateIsTodays)
{
    EXPECT_TRUE(tras(u"insert into migraciontablas (tabla, estado, fecha) values ('Ventas', -1, null)"_s).MigracionVentas);
    EXPECT_EQ(contexto().FechaMigracionVentas, dia(2024, 6, 14));
}

} // namespace
} // namespace kestrane
