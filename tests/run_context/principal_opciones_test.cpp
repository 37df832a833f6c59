// What the start reads of the shop: its options, its stores, whether several days may be listed.

#include "run_context/lecturas.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::LecturasTest;

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

TEST_F(LecturasTest, WithAllOptionTablesEmptyItStartsWithEveryDefault)
{
    const ContextoEjecucion& contexto = arranca();
    EXPECT_EQ(contexto.IdentificadorEquipo, u"PC"_s);
    EXPECT_EQ(contexto.List1, u""_s);
    EXPECT_EQ(contexto.ClaveInstancia, u"PC"_s);
    EXPECT_EQ(contexto.RutaBandera, u""_s);
    EXPECT_EQ(contexto.NombreRegional, u""_s);
    EXPECT_EQ(contexto.IdentificacionFiscal, u""_s);
    EXPECT_FALSE(contexto.MigracionVentas);
    EXPECT_EQ(contexto.FechaMigracionVentas, dia(1899, 12, 30));
    EXPECT_EQ(contexto.NombreTerminal, u""_s);
    EXPECT_EQ(contexto.EmpleadoTerminal, 0);
    EXPECT_EQ(contexto.ImpresoraTicket, u""_s);
    EXPECT_EQ(contexto.ImpresoraListados, u""_s);
    EXPECT_EQ(contexto.ImpresoraEtiquetas, u""_s);
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(contexto.*texto.miembro, u""_s) << texto.columna.toStdString();
    EXPECT_EQ(contexto.NumDecimales, 0);
    EXPECT_FALSE(contexto.UtilizaColoresEmpleados);
    EXPECT_FALSE(contexto.MultiTienda);
    EXPECT_EQ(contexto.NombreTienda, u""_s);
    EXPECT_FALSE(contexto.Tiendas.reservado());
    EXPECT_TRUE(contexto.PermiteListadoVariosDias);
    EXPECT_FALSE(contexto.ModuloFacturas);
}

TEST_F(LecturasTest, EveryTextOfTheOptionsIsReadAsItStands)
{
    m_tienda.ejecuta(u"insert into opciones (numdecimales) values (3)"_s);
    for (const TextoDeOpciones& texto : textosDeOpciones)
        m_tienda.ejecuta(u"update opciones set %1 = '%2'"_s.arg(texto.columna, texto.valor));
    const ContextoEjecucion& contexto = arranca();
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(contexto.*texto.miembro, texto.valor) << texto.columna.toStdString();
    EXPECT_EQ(contexto.NumDecimales, 3);
    EXPECT_EQ(contexto.ConexionListados.entorno().regional().decimales, 3) << "for the amounts on paper";
}

TEST_F(LecturasTest, TextsOfTheOptionsThatAreNullAreEmpty)
{
    tras(u"insert into opciones (numdecimales) values (2)"_s);
    for (const TextoDeOpciones& texto : textosDeOpciones)
        EXPECT_EQ(contexto().*texto.miembro, u""_s) << texto.columna.toStdString();
}

TEST_F(LecturasTest, OnlyTheFirstRowOfTheOptionsCounts)
{
    m_tienda.ejecuta({u"insert into opciones (nombre, numdecimales) values ('Primera', 2)"_s,
                      u"insert into opciones (nombre, numdecimales, utilizacolores_empleados, modulofacturas, multitienda,"
                      " nombretienda) values ('Segunda', 0, -1, -1, 'S', 'Centro')"_s});
    EXPECT_EQ(arranca().NombreEmpresa, u"Primera"_s);
    EXPECT_EQ(contexto().NumDecimales, 2);
    EXPECT_FALSE(contexto().UtilizaColoresEmpleados);
    EXPECT_FALSE(contexto().ModuloFacturas);
    EXPECT_FALSE(contexto().MultiTienda);
    EXPECT_EQ(contexto().NombreTienda, u""_s);
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
    EXPECT_FALSE(contexto().UtilizaColoresEmpleados) << "no row";
    EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, -1, 0"_s).UtilizaColoresEmpleados);
    EXPECT_FALSE(contexto().ModuloFacturas);
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, 0, -1"_s).UtilizaColoresEmpleados);
    EXPECT_TRUE(contexto().ModuloFacturas);
}

// Stores.

TEST_F(LecturasTest, OnlyTheCapitalsSAndTSwitchMultiStoreOnAndBothAlike)
{
    const QString columnas = u"numdecimales, multitienda, nombretienda"_s;
    for (const QString& letra : {u"null"_s, u"''"_s, u"'s'"_s, u"'t'"_s, u"'N'"_s, u"'X'"_s, u"' '"_s, u"'1'"_s}) {
        EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, %1, 'Centro'"_s.arg(letra)).MultiTienda) << letra.toStdString();
        EXPECT_EQ(contexto().NombreTienda, u""_s) << letra.toStdString();
    }
    for (const QString& letra : {u"'S'"_s, u"'T'"_s}) {
        EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, %1, 'Centro'"_s.arg(letra)).MultiTienda) << letra.toStdString();
        EXPECT_EQ(contexto().NombreTienda, u"Centro"_s) << letra.toStdString();
    }
    EXPECT_TRUE(conFila(u"opciones"_s, columnas, u"2, 'S', null"_s).MultiTienda);
    EXPECT_EQ(contexto().NombreTienda, u""_s);
}

TEST_F(LecturasTest, AnyOtherLetterSwitchesOffWhatTheRunHeld)
{
    for (const QString& letra : {u"null"_s, u"'N'"_s}) {
        conFila(u"opciones"_s, u"numdecimales, multitienda, nombretienda"_s, u"2, 'T', 'Centro'"_s);
        ASSERT_TRUE(contexto().MultiTienda);
        m_tienda.ejecuta(u"update opciones set multitienda = "_s + letra);
        m_principal->Inicializa();
        EXPECT_FALSE(contexto().MultiTienda) << letra.toStdString();
        EXPECT_EQ(contexto().NombreTienda, u""_s) << letra.toStdString();
    }
}

ElementoPanel tienda(const QString& nombre)
{
    return {nombre, u"16777215"_s, {}, nombre, nombre};
}

TEST_F(LecturasTest, TheServerListsItsStoresBetweenTodasAndABlankOneUnderBothLetters)
{
    m_tienda.ejecuta({u"insert into multitienda (nombre) values ('Sur')"_s,
                      u"insert into multitienda (nombre) values ('Servidor')"_s,
                      u"insert into multitienda (nombre) values ('Centro')"_s});
    for (const QString& letra : {u"S"_s, u"T"_s}) {
        const ArrayPanel& tiendas =
            conFila(u"opciones"_s, u"multitienda, nombretienda, numdecimales"_s, u"'%1', 'Servidor', 2"_s.arg(letra)).Tiendas;
        ASSERT_EQ(tiendas.limiteSuperior(), 3) << letra.toStdString();
        EXPECT_EQ(tiendas[0], tienda(u"Todas"_s));
        EXPECT_EQ(tiendas[1], tienda(u"Sur"_s)) << "in the order in which they are stored";
        EXPECT_EQ(tiendas[2], tienda(u"Centro"_s));
        EXPECT_EQ(tiendas[3], ElementoPanel{});
    }
}

TEST_F(LecturasTest, TheServerIsNoStoreHoweverItIsSpelled)
{
    m_tienda.ejecuta(
        {u"insert into multitienda (nombre) values ('SERVIDOR')"_s, u"insert into multitienda (nombre) values ('Sur')"_s});
    const ArrayPanel& tiendas =
        conFila(u"opciones"_s, u"multitienda, nombretienda, numdecimales"_s, u"'S', 'Servidor', 2"_s).Tiendas;
    ASSERT_EQ(tiendas.limiteSuperior(), 2);
    EXPECT_EQ(tiendas[1], tienda(u"Sur"_s));
}

TEST_F(LecturasTest, TheListOfStoresStaysUnallocatedWhereThereIsNoServer)
{
    m_tienda.ejecuta(u"insert into multitienda (nombre) values ('Centro')"_s);
    const QString columnas = u"numdecimales, multitienda, nombretienda"_s;
    EXPECT_FALSE(conFila(u"opciones"_s, columnas, u"2, null, 'Servidor'"_s).Tiendas.reservado());
    EXPECT_FALSE(contexto().MultiTienda);
    EXPECT_EQ(contexto().NombreTienda, u""_s) << "so that reports run once";
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

TEST_F(LecturasTest, OfTwoRowsOnSeveralDaysTheFirstCounts)
{
    m_tienda.ejecuta({u"insert into relaciones_fijas (indice, datoa) values ('PermiteListadoVariosDias', 'NO')"_s,
                      u"insert into relaciones_fijas (indice, datoa) values ('PermiteListadoVariosDias', 'SI')"_s});
    EXPECT_FALSE(arranca().PermiteListadoVariosDias);
    m_tienda.ejecuta({u"delete from relaciones_fijas"_s,
                      u"insert into relaciones_fijas (indice, datoa) values ('PermiteListadoVariosDias', 'SI')"_s,
                      u"insert into relaciones_fijas (indice, datoa) values ('PermiteListadoVariosDias', 'NO')"_s});
    EXPECT_TRUE(arranca().PermiteListadoVariosDias);
}

} // namespace
} // namespace kestrane
