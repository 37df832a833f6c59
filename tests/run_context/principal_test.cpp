#include "run_context/principal.h"

#include "run_context/arranque.h"

#include <QCoreApplication>

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
    EXPECT_FALSE(contexto().ConexionTienda.abierta());
    EXPECT_FALSE(contexto().ConexionListados.abierta());
    EXPECT_EQ(contexto().IdentificadorEquipo, QString{});
}

TEST_F(PrincipalTest, TheLockOfTheMachineLetsOneRunStartAtATime)
{
    const QString nombre = u"kestrane-prueba-arranque-%1"_s.arg(QCoreApplication::applicationPid());
    auto otra = creaCopiaUnica(nombre);
    ASSERT_TRUE(otra->ocupa());
    const auto esta = creaCopiaUnica(nombre);
    EXPECT_EQ(principal(*esta), Principal::Inicio::OtraCopia);
    EXPECT_EQ(m_anotaciones, QStringList{});
    otra.reset();
    EXPECT_EQ(principal(*esta), Principal::Inicio::EnMarcha);
    EXPECT_EQ(m_anotaciones.last(), u"menu"_s);
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
        u"DarTema dsn=TiendaKestrane"_s,
        u"DarAncho dsn=TiendaKestrane"_s,
        u"DarAlto dsn=TiendaKestrane"_s,
        u"DarLetra dsn=TiendaKestrane"_s,
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
        u"DarTema dsn=TiendaKestrane"_s,
        u"DarAncho dsn=TiendaKestrane"_s,
        u"DarAlto dsn=TiendaKestrane"_s,
        u"DarLetra dsn=TiendaKestrane"_s,
        u"TiendaKestrane: SELECT bandera FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT nombre FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT tabla, estado, fecha FROM migraciontablas WHERE tabla = 'Ventas' AND estado = -1"_s,
        u"TiendaKestrane: SELECT empleado, terminal FROM opciones_terminal WHERE identificador = 'PC'"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'T' AND terminal = ''"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'L' AND terminal = ''"_s,
        u"TiendaKestrane: SELECT impresora FROM impresoras WHERE tipo = 'E' AND terminal = ''"_s,
        u"TiendaKestrane: SELECT nombre, direccion, poblacion, provincia, cp, utilizacolores_empleados, cif, moneda, simbolo, tipo_programa, numdecimales FROM opciones"_s,
        u"TiendaKestrane: SELECT identificacion_fiscal FROM configuracionregional"_s,
        u"TiendaKestrane: SELECT multitienda, nombretienda FROM opciones"_s,
        u"TiendaKestrane: SELECT datoa FROM relaciones_fijas WHERE indice = 'PermiteListadoVariosDias'"_s,
        u"TiendaKestrane: SELECT modulofacturas FROM opciones"_s,
        u"menu"_s,
    });
}

TEST_F(PrincipalTest, NoUserAndNoPasswordIsEverNamed)
{
    arranca();
    QStringList pedidas;
    for (const database::DestinoConexion& pedida : m_pedidas)
        pedidas += u"%1 '%2' '%3'"_s.arg(pedida.dsn, pedida.usuario, pedida.clave);
    EXPECT_EQ(pedidas,
              (QStringList{u"TiendaKestrane '' ''"_s, u"ListKestrane '' ''"_s, u"ListKestrane '' ''"_s, u"ListKestrane '' ''"_s}));
}

TEST_F(PrincipalTest, ADateThatAShopKeepsAsTextIsReadByTheRegionalSettings)
{
    const auto motor = m_entorno.abre({.dsn = u"TiendaKestrane"_s, .usuario = {}, .clave = {}});
    for (const char* sentencia : {"drop table migraciontablas", "create table migraciontablas (tabla text, estado int, fecha text)",
                                  "insert into migraciontablas values ('Ventas', -1, '5/3/2024')"})
        motor->prepara(sentencia, {}, {})->ejecuta({});
    EXPECT_EQ(arranca().FechaMigracionVentas, prueba::dia(2024, 3, 5));
}

TEST_F(PrincipalTest, BothConnectionsStayOpenAndTheThirdsAreGone)
{
    arranca();
    EXPECT_TRUE(contexto().ConexionTienda.abierta());
    EXPECT_TRUE(contexto().ConexionListados.abierta());
    EXPECT_EQ(m_anotaciones.count(u"abre ListKestrane"_s), 3);
    EXPECT_EQ(m_anotaciones.count(u"cierra ListKestrane"_s), 2);
    EXPECT_EQ(m_anotaciones.count(u"cierra TiendaKestrane"_s), 0);
}

} // namespace
} // namespace kestrane
