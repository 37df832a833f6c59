#include "run_context/principal.h"

#include "run_context/arranque.h"

#include <QFile>

#include <algorithm>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

/// The order of the start: what happens, statement by statement, and when.
class PrincipalTest : public prueba::Arranque
{
protected:
    void esperaAnotaciones(const QStringList& esperadas)
    {
        for (qsizetype i = 0; i < std::max(m_anotaciones.size(), esperadas.size()); ++i)
            EXPECT_EQ(m_anotaciones.value(i), esperadas.value(i)) << "at place " << i;
    }
};

TEST_F(PrincipalTest, WhileACopyRunsASecondOneEndsWithNothingOpened)
{
    EXPECT_EQ(principal(!Libre), Principal::Inicio::OtraCopia);
    esperaAnotaciones({u"ocupa"_s});
    EXPECT_FALSE(m_contexto.ConexionTienda.abierta());
    EXPECT_FALSE(m_contexto.ConexionListados.abierta());
    EXPECT_EQ(m_contexto.IdentificadorEquipo, QString{});
}

TEST_F(PrincipalTest, OnTheServerWithMigratedSalesEveryStepRunsInItsOrder)
{
    m_tienda.ejecutaListados(u"insert into listadostemporal (list1) values ('7')"_s);
    m_tienda.ejecuta({u"insert into migraciontablas (tabla, estado) values ('Ventas', -1)"_s,
                      u"insert into opciones_terminal (identificador, terminal, empleado) values ('PC', 'Caja 1', 4)"_s,
                      u"insert into opciones (multitienda, nombretienda, numdecimales) values ('S', 'Servidor', 2)"_s,
                      u"insert into multitienda (nombre) values ('Centro')"_s});
    arranca();
    esperaAnotaciones({
        u"ocupa"_s,
        u"AbrirConexion ''"_s,
        u"abre TiendaKestrane"_s,
        u"abre ListKestrane"_s,
        u"DarIdentificador"_s,
        u"abre ListKestrane"_s,
        u"ListKestrane: SELECT list1 FROM listadostemporal"_s,
        u"cierra ListKestrane"_s,
        u"abre ListKestrane"_s,
        u"ListKestrane: SELECT list1 FROM listadostemporal"_s,
        u"cierra ListKestrane"_s,
        u"DarTema"_s,
        u"DarAncho"_s,
        u"DarAlto"_s,
        u"DarLetra"_s,
        u"TiendaKestrane: SELECT bandera FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT nombre FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT tabla, estado, fecha FROM migraciontablas WHERE tabla = 'Ventas' AND estado = -1"_s,
        u"TiendaKestrane: SELECT fecha FROM migraciontablas WHERE tabla = 'Ventas' AND estado = -1"_s,
        u"TiendaKestrane: SELECT empleado, terminal FROM opciones_terminal WHERE identificador = 'PC'"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'T' AND terminal = 'Caja 1'"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'L' AND terminal = 'Caja 1'"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'E' AND terminal = 'Caja 1'"_s,
        u"TiendaKestrane: SELECT nombre, direccion, poblacion, provincia, cp, utilizacolores_empleados, cif, moneda, simbolo, tipo_programa, numdecimales FROM opciones"_s,
        u"TiendaKestrane: SELECT identificacion_fiscal FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT multitienda, nombretienda FROM opciones"_s,
        u"TiendaKestrane: SELECT nombre FROM multitienda WHERE nombre <> 'Servidor'"_s,
        u"TiendaKestrane: SELECT datoa FROM relaciones_fijas WHERE indice = 'PermiteListadoVariosDias'"_s,
        u"TiendaKestrane: SELECT modulofacturas FROM opciones"_s,
        u"menu"_s,
    });
}

TEST_F(PrincipalTest, InAShopWithoutServerOrMigrationTheStoresAndTheDateAreNotAskedFor)
{
    arranca();
    EXPECT_TRUE(m_anotaciones.filter(u"FROM multitienda"_s).isEmpty());
    EXPECT_EQ(m_anotaciones.filter(u"FROM migraciontablas"_s).size(), 1);
    EXPECT_EQ(m_anotaciones.last(), u"menu"_s);
}

TEST_F(PrincipalTest, WithAllOptionTablesEmptyItStartsNormally)
{
    const ContextoEjecucion& contexto = arranca();
    EXPECT_EQ(contexto.IdentificadorEquipo, u"PC"_s);
    EXPECT_EQ(contexto.ClaveInstancia, u"PC"_s);
    EXPECT_EQ(contexto.NombreEmpresa, QString{});
    EXPECT_EQ(contexto.NumDecimales, 0);
    EXPECT_FALSE(contexto.UtilizaColoresEmpleados);
    EXPECT_FALSE(contexto.MultiTienda);
    EXPECT_FALSE(contexto.ModuloFacturas);
    EXPECT_FALSE(contexto.Tiendas.reservado());
}

TEST_F(PrincipalTest, BothConnectionsStayOpenAndTheThirdsAreGone)
{
    arranca();
    EXPECT_TRUE(m_contexto.ConexionTienda.abierta());
    EXPECT_TRUE(m_contexto.ConexionListados.abierta());
    EXPECT_EQ(m_anotaciones.count(u"abre ListKestrane"_s), 3);
    EXPECT_EQ(m_anotaciones.count(u"cierra ListKestrane"_s), 2);
    EXPECT_EQ(m_anotaciones.count(u"cierra TiendaKestrane"_s), 0);
}

TEST_F(PrincipalTest, ATableOfItsOwnThatIsAbsentEndsTheStartBeforeTheMenu)
{
    const QString tablas[] = {
        u"configuracionregional"_s, u"migraciontablas"_s, u"opciones_terminal"_s, u"impresoras"_s, u"opciones"_s,
        u"relaciones_fijas"_s};
    for (const QString& tabla : tablas) {
        m_tienda.quitaTabla(tabla);
        EXPECT_EQ(errorAlArrancar(), -2147217900) << tabla.toStdString();
        EXPECT_FALSE(m_anotaciones.contains(u"menu"_s)) << tabla.toStdString();
    }
}

TEST_F(PrincipalTest, WithoutTheTableOfTheListsItEnds)
{
    m_tienda.quitaTablaListados(u"listadostemporal"_s);
    EXPECT_EQ(errorAlArrancar(), -2147217900);
    EXPECT_EQ(m_anotaciones.last(), u"cierra ListKestrane"_s);
}

TEST_F(PrincipalTest, TheTableOfStoresIsMissedByTheServerAlone)
{
    m_tienda.quitaTabla(u"multitienda"_s);
    arranca();
    m_tienda.ejecuta(u"insert into opciones (multitienda, nombretienda, numdecimales) values ('T', 'Servidor', 2)"_s);
    EXPECT_EQ(errorAlArrancar(), -2147217900);
}

TEST_F(PrincipalTest, AShopThatCannotBeOpenedEndsTheStart)
{
    ASSERT_TRUE(QFile::remove(m_entorno.fichero(u"TiendaKestrane"_s)));
    EXPECT_EQ(errorAlArrancar(), -2147467259);
    esperaAnotaciones({u"ocupa"_s, u"AbrirConexion ''"_s});
}

TEST_F(PrincipalTest, AReportsDatabaseThatCannotBeOpenedEndsTheStart)
{
    ASSERT_TRUE(QFile::remove(m_entorno.fichero(u"ListKestrane"_s)));
    EXPECT_EQ(errorAlArrancar(), -2147467259);
    esperaAnotaciones({u"ocupa"_s, u"AbrirConexion ''"_s, u"abre TiendaKestrane"_s});
}

} // namespace
} // namespace kestrane
