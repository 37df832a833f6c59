#include "apoyo/motor_anotado.h"

#include "platform/database/recordset.h"

#include <gtest/gtest.h>

namespace kestrane::prueba {
namespace {

using namespace Qt::StringLiterals;

TEST(MotorAnotado, EachRunOfAStatementIsWrittenDownWithItsValues)
{
    const TiendaDePrueba tienda;
    QStringList anotaciones;
    {
        EntornoDatos entorno{tienda.opciones(anotaEn(anotaciones))};
        Conexion conexion{entorno};
        conexion.Open(u"dsn=TiendaKestrane"_s);
        conexion.Execute(u"insert into multitienda (nombre) values ('Centro')"_s);
        Recordset filas;
        for (int vez = 0; vez < 2; ++vez) {
            filas.Open(u"Select nombre from multitienda where nombre <> 'Servidor'"_s, conexion);
            EXPECT_EQ(filas.RecordCount(), 1);
        }
    }
    EXPECT_EQ(anotaciones.join(u'\n').toStdString(), "abre TiendaKestrane\n"
                                                     "TiendaKestrane: INSERT INTO multitienda (nombre) VALUES ('Centro')\n"
                                                     "TiendaKestrane: SELECT nombre FROM multitienda WHERE nombre <> 'Servidor'\n"
                                                     "TiendaKestrane: SELECT nombre FROM multitienda WHERE nombre <> 'Servidor'\n"
                                                     "cierra TiendaKestrane");
}

} // namespace
} // namespace kestrane::prueba
