#include "run_context/arranque.h"

#include <QDir>
#include <QFile>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;

/// What the start reads: the value, the default without a row, the null.
class LecturasTest : public prueba::Arranque
{
protected:
    /// A start after `sentencia` was run on the shop as it was made.
    const ContextoEjecucion& tras(const QString& sentencia)
    {
        m_tienda.ejecuta(sentencia);
        return arranca();
    }
    /// The only row of a table is replaced.
    const ContextoEjecucion& conFila(const QString& tabla, const QString& columnas, const QString& valores)
    {
        m_tienda.ejecuta({u"delete from "_s + tabla, u"insert into %1 (%2) values (%3)"_s.arg(tabla, columnas, valores)});
        return arranca();
    }
};

// Terminal and copy.

TEST_F(LecturasTest, TheKeyOfTheCopyIsTheTerminalFollowedAtOnceByItsList)
{
    EXPECT_EQ(arranca().ClaveInstancia, u"PC"_s);
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values (null)"_s);
    EXPECT_EQ(arranca().List1, u""_s);
    m_tienda.ejecutaListados({u"delete from listadostemporal"_s, u"insert into listadostemporal (list1) values ('list 7')"_s,
                              u"insert into listadostemporal (list1) values ('list 8')"_s});
    EXPECT_EQ(arranca().List1, u"list 7"_s);
    EXPECT_EQ(m_contexto.IdentificadorEquipo, u"PC"_s);
    EXPECT_EQ(m_contexto.ClaveInstancia, u"PClist 7"_s);
}

TEST_F(LecturasTest, TheMenuReadsTheListAfresh)
{
    arranca();
    EXPECT_EQ(m_principal.ObtenerList1(), u""_s);
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values ('9')"_s);
    EXPECT_EQ(m_principal.ObtenerList1(), u"9"_s);
    EXPECT_EQ(m_contexto.List1, u""_s);
}

TEST_F(LecturasTest, APicturesFolderLiesInTheProgramFolder)
{
    m_contexto.CarpetaPrograma = u"/opt/kestrane"_s;
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
    EXPECT_EQ(m_contexto.EmpleadoTerminal, 3);
    EXPECT_EQ(m_contexto.ImpresoraTicket, u""_s);
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
    EXPECT_EQ(m_contexto.IdentificacionFiscal, u""_s);
    const QString columnas = u"nombre, Identificacion_Fiscal"_s;
    EXPECT_EQ(conFila(u"configuracionregional"_s, columnas, u"'España', 'N.I.F.'"_s).NombreRegional, u"España"_s);
    EXPECT_EQ(m_contexto.IdentificacionFiscal, u"N.I.F."_s);
    EXPECT_EQ(conFila(u"configuracionregional"_s, columnas, u"null, null"_s).NombreRegional, u""_s);
    EXPECT_EQ(m_contexto.IdentificacionFiscal, u""_s);
}

// Migration of the sales.

TEST_F(LecturasTest, SalesAreMigratedWhenTheTableSaysSo)
{
    const QString columnas = u"tabla, estado, fecha"_s;
    const QString tabla = u"migraciontablas"_s;
    EXPECT_FALSE(arranca().MigracionVentas) << "no row";
    EXPECT_FALSE(conFila(tabla, columnas, u"'Agenda', -1, #03/05/2024#"_s).MigracionVentas);
    EXPECT_FALSE(conFila(tabla, columnas, u"'Ventas', 0, #03/05/2024#"_s).MigracionVentas);
    EXPECT_EQ(m_contexto.FechaMigracionVentas, dia(1899, 12, 30)) << "not read";
    EXPECT_TRUE(conFila(tabla, columnas, u"'Ventas', -1, #03/05/2024#"_s).MigracionVentas);
    EXPECT_EQ(m_contexto.FechaMigracionVentas, dia(2024, 3, 5));
}

TEST_F(LecturasTest, AMigrationWithoutADateIsTodays)
{
    EXPECT_TRUE(tras(u"insert into migraciontablas (tabla, estado, fecha) values ('Ventas', -1, null)"_s).MigracionVentas);
    EXPECT_EQ(m_contexto.FechaMigracionVentas, dia(2024, 6, 14));
}

// The shop's data.

/// The texts of `opciones`, each with a value of its own.
struct TextoDeOpciones
{
    QString columna;
    QString ContextoEjecucion::*miembro;
    QString valor;
};

const TextoDeOpciones textosDeOpciones[] = {
    {u"Nombre"_s, &ContextoEjecucion::NombreEmpresa, u"Peluquería Ñandú"_s},
    {u"Direccion"_s, &ContextoEjecucion::DireccionEmpresa, u"Calle Mayor, 3"_s},
    {u"Poblacion"_s, &ContextoEjecucion::PoblacionEmpresa, u"Ávila"_s},
    {u"Provincia"_s, &ContextoEjecucion::ProvinciaEmpresa, u"Ávila (provincia)"_s},
    {u"CP"_s, &ContextoEjecucion::CPEmpresa, u"05001"_s},
    {u"Cif"_s, &ContextoEjecucion::CifEmpresa, u"B05123456"_s},
    {u"moneda"_s, &ContextoEjecucion::Moneda, u"Euro"_s},
    {u"Simbolo"_s, &ContextoEjecucion::SimboloMoneda, u"€"_s},
    {u"tipo_programa"_s, &ContextoEjecucion::TipoPrograma, u"Peluqueria"_s},
};

TEST_F(LecturasTest, EveryTextOfTheOptionsIsReadAsItStands)
{
    m_tienda.ejecuta(u"insert into opciones (numdecimales) values (3)"_s);
    for (const TextoDeOpciones& texto : textosDeOpciones)
        m_tienda.ejecuta(u"update opciones set %1 = '%2'"_s.arg(texto.columna, texto.valor));
    const ContextoEjecucion& contexto = arranca();
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(contexto.*texto.miembro, texto.valor) << texto.columna.toStdString();
    EXPECT_EQ(contexto.NumDecimales, 3);
}

TEST_F(LecturasTest, WithoutOptionsAndWithNullsTheirTextsAreEmpty)
{
    arranca();
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(m_contexto.*texto.miembro, u""_s) << "no row: " << texto.columna.toStdString();
    EXPECT_EQ(m_contexto.NumDecimales, 0);
    tras(u"insert into opciones (numdecimales) values (2)"_s);
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(m_contexto.*texto.miembro, u""_s) << "null: " << texto.columna.toStdString();
}

TEST_F(LecturasTest, OnlyTheFirstRowOfTheOptionsCounts)
{
    m_tienda.ejecuta({u"insert into opciones (nombre, numdecimales) values ('Primera', 2)"_s,
                      u"insert into opciones (nombre, numdecimales) values ('Segunda', 0)"_s});
    EXPECT_EQ(arranca().NombreEmpresa, u"Primera"_s);
    EXPECT_EQ(m_contexto.NumDecimales, 2);
}

TEST_F(LecturasTest, AMissingNumberOfDecimalsIsAnError)
{
    m_tienda.ejecuta(u"insert into opciones (nombre) values ('Ana')"_s);
    EXPECT_EQ(errorAlArrancar(), 94);
}

TEST_F(LecturasTest, FlagsOfTheOptions)
{
    const QString columnas = u"numdecimales, utilizacolores_empleados, modulofacturas"_s;
    EXPECT_FALSE(arranca().ModuloFacturas) << "no row";
    EXPECT_FALSE(m_contexto.UtilizaColoresEmpleados) << "no row";
    EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, -1, 0"_s).UtilizaColoresEmpleados);
    EXPECT_FALSE(m_contexto.ModuloFacturas);
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, 0, -1"_s).UtilizaColoresEmpleados);
    EXPECT_TRUE(m_contexto.ModuloFacturas);
}

// Stores.

TEST_F(LecturasTest, OnlyTheCapitalsSAndTSwitchMultiStoreOnAndBothAlike)
{
    const QString columnas = u"numdecimales, multitienda, nombretienda"_s;
    for (const QString& letra : {u"null"_s, u"''"_s, u"'s'"_s, u"'t'"_s, u"'N'"_s, u"'X'"_s, u"' '"_s, u"'1'"_s}) {
        EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, %1, 'Centro'"_s.arg(letra)).MultiTienda) << letra.toStdString();
        EXPECT_EQ(m_contexto.NombreTienda, u""_s) << letra.toStdString();
    }
    for (const QString& letra : {u"'S'"_s, u"'T'"_s}) {
        EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, %1, 'Centro'"_s.arg(letra)).MultiTienda) << letra.toStdString();
        EXPECT_EQ(m_contexto.NombreTienda, u"Centro"_s) << letra.toStdString();
    }
    EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, 'S', null"_s).MultiTienda);
    EXPECT_EQ(m_contexto.NombreTienda, u""_s);
}

TEST_F(LecturasTest, TheServerListsItsStoresBetweenTodasAndABlankOne)
{
    m_tienda.ejecuta({u"insert into opciones (multitienda, nombretienda, numdecimales) values ('S', 'Servidor', 2)"_s,
                      u"insert into multitienda (nombre) values ('Sur')"_s,
                      u"insert into multitienda (nombre) values ('Servidor')"_s,
                      u"insert into multitienda (nombre) values ('Centro')"_s});
    const ArrayPanel& tiendas = arranca().Tiendas;
    ASSERT_EQ(tiendas.limiteSuperior(), 3);
    const auto elemento = [](const QString& nombre) { return ElementoPanel{nombre, u"16777215"_s, {}, nombre, nombre}; };
    EXPECT_EQ(tiendas[0], elemento(u"Todas"_s));
    EXPECT_EQ(tiendas[1], elemento(u"Sur"_s)) << "in the order in which they are stored";
    EXPECT_EQ(tiendas[2], elemento(u"Centro"_s));
    EXPECT_EQ(tiendas[3], ElementoPanel{});
}

TEST_F(LecturasTest, TheListOfStoresStaysUnallocatedWhereThereIsNoServer)
{
    m_tienda.ejecuta(u"insert into multitienda (nombre) values ('Centro')"_s);
    const QString columnas = u"numdecimales, multitienda, nombretienda"_s;
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, null, 'Servidor'"_s).Tiendas.reservado());
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, 'S', 'Centro'"_s).Tiendas.reservado());
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, 'S', 'servidor'"_s).Tiendas.reservado()) << "the name minds case";
}

TEST_F(LecturasTest, AServerWithoutStoresHasAnUnallocatedListWhichIsAnErrorToWhoeverReadsIt)
{
    const ContextoEjecucion& contexto =
        tras(u"insert into opciones (multitienda, nombretienda, numdecimales) values ('S', 'Servidor', 2)"_s);
    EXPECT_TRUE(contexto.MultiTienda);
    EXPECT_EQ(contexto.NombreTienda, u"Servidor"_s);
    EXPECT_EQ(prueba::numeroDeError([&] { return contexto.Tiendas.limiteSuperior(); }), 9);
    m_tienda.ejecuta(u"insert into multitienda (nombre) values ('Servidor')"_s);
    EXPECT_FALSE(arranca().Tiendas.reservado()) << "the server itself is no store";
}

// Several days.

TEST_F(LecturasTest, SeveralDaysAreAllowedWithoutARowAndElseByExactlySI)
{
    const QString columnas = u"indice, datoa"_s;
    EXPECT_TRUE(arranca().PermiteListadoVariosDias);
    EXPECT_TRUE(conFila(u"relaciones_fijas"_s, columnas, u"'TarifaAplicada', 'NO'"_s).PermiteListadoVariosDias) << "another row";
    const auto permite = [&](const QString& dato) {
        return conFila(u"relaciones_fijas"_s, columnas, u"'PermiteListadoVariosDias', "_s + dato).PermiteListadoVariosDias;
    };
    EXPECT_TRUE(permite(u"'SI'"_s));
    for (const QString& dato : {u"'si'"_s, u"'Si'"_s, u"'S'"_s, u"'SÍ'"_s, u"'SI '"_s, u"'NO'"_s, u"''"_s, u"null"_s})
        EXPECT_FALSE(permite(dato)) << dato.toStdString();
}

} // namespace
} // namespace kestrane
