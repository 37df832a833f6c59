#include "platform/database/odbc/servidor.h"

namespace kestrane::database::odbc {
namespace {

class AltasMariaDb : public Servidor
{
};
INSTANTIATE_TEST_SUITE_P(Servidores, AltasMariaDb, testing::Values(Caso{"MariaDb", jet::Motor::MariaDb, u"KestraneMariaTienda"_s}),
                         nombreDeCaso);

TEST_P(AltasMariaDb, APlaceThatGrowsWithTheNextRowsKeepsThem)
{
    const jet::Tabla* const tabla = motor().catalogo().tabla(u"t");
    const std::array columnas = {4, 5};
    for (const int largo : {1, 50, 3}) {
        AlmacenFilas nuevas{2};
        for (int i = 0; i < largo; ++i) {
            nuevas.empiezaFila();
            nuevas.ponTexto(QString{largo, u'ñ'});
            i % 2 == 0 ? nuevas.ponNulo() : nuevas.ponTexto(QString{largo * 100, u'm'});
            nuevas.terminaFila();
        }
        motor().insertaFilas(*tabla, columnas, nuevas);
    }
    EXPECT_EQ(filas(u"select char_length(x), count(*), count(m), sum(char_length(m)) from t group by char_length(x) order by 1"_s,
                    {TipoColumna::Entero32, TipoColumna::Entero32, TipoColumna::Entero32, TipoColumna::Entero32}),
              "1,1,0,NULL|3,3,1,300|50,50,25,125000|");
}

} // namespace
} // namespace kestrane::database::odbc
