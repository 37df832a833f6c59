#include "apoyo/motor_interrumpido.h"

#include "platform/database/recordset.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

TEST(MotorInterrumpido, TheRowBehindTheLastIsAnErrorInEachQuery)
{
    TiendaDePrueba tienda;
    tienda.ejecuta({u"insert into seccion (codigo, nombre) values (1, 'Corte')"_s,
                    u"insert into seccion (codigo, nombre) values (2, 'Color')"_s});
    EntornoDatos entorno{tienda.opciones(interrumpeTras(1, u"TiendaKestrane"_s))};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=TiendaKestrane"_s);
    for (int vez = 0; vez < 2; ++vez) {
        Recordset filas;
        filas.Open(u"Select nombre from seccion"_s, conexion);
        EXPECT_EQ(filas.Fields(0).texto(), u"Corte"_s);
        EXPECT_THROW(filas.MoveNext(), ErrorEjecucion);
    }
}

TEST(MotorInterrumpido, OtherDataSourcesAnswerWhole)
{
    TiendaDePrueba tienda;
    tienda.ejecutaListados({u"insert into informes (texto1) values ('a')"_s, u"insert into informes (texto1) values ('b')"_s});
    EntornoDatos entorno{tienda.opciones(interrumpeTras(0, u"TiendaKestrane"_s))};
    Conexion conexion{entorno};
    conexion.Open(u"dsn=ListKestrane"_s);
    Recordset filas;
    filas.Open(u"informes"_s, conexion);
    EXPECT_EQ(filas.RecordCount(), 2);
}

} // namespace
} // namespace kestrane::prueba
