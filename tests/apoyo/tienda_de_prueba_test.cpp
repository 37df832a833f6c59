#include "apoyo/tienda_de_prueba.h"

#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

qint32 filas(Conexion& conexion, const QString& tabla)
{
    Recordset rs;
    rs.Open(tabla, conexion);
    return rs.RecordCount();
}

TEST(TiendaDePrueba, BothDatabasesHaveTheirTablesAndNoRows)
{
    TiendaDePrueba tienda;
    EXPECT_EQ(filas(tienda.tienda(), u"opciones"_s), 0);
    EXPECT_EQ(filas(tienda.tienda(), u"cabecera_factura"_s), 0);
    EXPECT_EQ(filas(tienda.listados(), u"informes"_s), 0);
    EXPECT_EQ(filas(tienda.listados(), u"listadostemporal"_s), 0);
}

TEST(TiendaDePrueba, StatementsReachTheDatabaseTheyAreMeantFor)
{
    TiendaDePrueba tienda;
    tienda.ejecuta({u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s,
                    u"insert into seccion (codigo, nombre) values (2, 'Color')"_s});
    tienda.ejecutaListados(u"insert into listadostemporal (list1) values ('7')"_s);
    EXPECT_EQ(filas(tienda.tienda(), u"seccion"_s), 2);
    EXPECT_EQ(filas(tienda.listados(), u"listadostemporal"_s), 1);
}

TEST(TiendaDePrueba, AGroundOfTheTestsOwnSeesTheSameRows)
{
    TiendaDePrueba tienda;
    tienda.ejecuta(u"insert into multitienda (nombre) values ('Centro')"_s);
    QString vista;
    EntornoDatos entorno{tienda.opciones([&vista](auto motor, const QString& dsn) {
        vista = dsn;
        return motor;
    })};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=TiendaKestrane"_s);
    EXPECT_EQ(filas(conexion, u"multitienda"_s), 1);
    EXPECT_EQ(vista, u"TiendaKestrane"_s);
}

TEST(TiendaDePrueba, ATableTakenAwayIsGoneAndTheOthersStay)
{
    TiendaDePrueba tienda;
    tienda.quitaTabla(u"Permisos_Listados"_s);
    EXPECT_FALSE(tienda.tienda().tieneTabla(u"permisos_listados"));
    EXPECT_THROW(tienda.ejecuta(u"delete from permisos_listados"_s), ErrorEjecucion);
    EXPECT_TRUE(tienda.tienda().tieneTabla(u"Preferencias_Terminal"));
    EXPECT_EQ(filas(tienda.tienda(), u"preferencias_terminal"_s), 0);
}

} // namespace
} // namespace kestrane::prueba
