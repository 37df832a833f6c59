// What the sales by service ask of the shop, word by word and blank by blank, and in what order they are written.

#include "cash/listado_por_servicios.h"

#include "cash/caja_escuchada.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class SentenciasPorServiciosTest : public testing::Test
{
protected:
    prueba::TiendaDeCaja m_tienda;
};

TEST_F(SentenciasPorServiciosTest, TheShopIsAskedInTheseTextsToTheLastBlank)
{
    m_tienda.contexto.CajaCompleta = m_tienda.contexto.MultiTienda = true;
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.vende({.numero = 7, .cliente = 5}, {{.tipo = u"'B'"_s}});
    m_tienda.anula({.numero = 8});
    m_tienda.devuelve({.numero = 3, .venta = 70});
    const QString periodo = u"#03/15/2024# and #03/15/2024# and tienda like '%Centro'"_s;
    const QString deServicios = u" and (tipo_venta = 'S' or tipo_venta = 'B' or tipo_venta = 'CB')"_s;
    prueba::CajaEscuchada{m_tienda}.pruebaTodas(
        {u"Select * from caja_inicial where fecha = #03/15/2024# and tienda like '%Centro'"_s,
         u"Select * from cabecera_factura where fechaventa between "_s + periodo + u" order by numero"_s,
         u"Select * from detalle_factura where num_factura = 7"_s + deServicios + u" and codigo <> 2and tienda like '%Centro'"_s,
         u"Select * from cabecera_factura_anulaciones where (numero <=0 or borrar = -1 ) and fechaventa between "_s + periodo +
             u" order by numero"_s,
         u"Select * from detalle_factura_anulaciones where num_factura = 8"_s + deServicios +
             u" and codigo <> 2 and tienda like '%Centro'"_s,
         u"Select * from detalle_pago where fecha between "_s + periodo,
         u"Select * from cabecera_abono where fechaventa between "_s + periodo + u" order by numero"_s,
         u"Select * from detalle_abono where num_abono = 3"_s + deServicios + u"and tienda like '%Centro'"_s,
         u"Select * from gastos where fecha between "_s + periodo, u"Select * from retiradas where fecha between "_s + periodo,
         u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between "_s + periodo,
         u"Select Nombre,Apellidos from clientes where codigo = 5 and (tienda like '%Centro')"_s,
         u"Select Nombre,Apellidos from clientes where codigo = 0 and (tienda like '%Centro')"_s,
         u"Select Nombre from formapago where codigo = 1"_s, u"Select num_sesiones from cabecera_Bonos where num_factura= 7"_s},
        ListadoPorServicios);
}

TEST_F(SentenciasPorServiciosTest, OpeningCashAndWithdrawalsAreReadOnASingleDayAlone)
{
    const QRegularExpression deUnDia{u"caja_inicial|retiradas"_s};
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.enviadas({}, ListadoPorServicios).filter(deUnDia).size(), 2);
    m_tienda.periodo(15, 16);
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.enviadas({}, ListadoPorServicios).filter(deUnDia), QStringList{});
}

TEST_F(SentenciasPorServiciosTest, TheReportsDatabaseIsWrittenInThisOrder)
{
    m_tienda.vende({.numero = 7}, {{.unidades = 3}});
    m_tienda.mueve(u"caja_inicial"_s, 7);
    m_tienda.mueve(u"gastos"_s, 5.5);
    m_tienda.paga(9, 2);
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.cambios(ListadoPorServicios),
              (QStringList{u"DELETE FROM informes"_s, u"filas en informes"_s, u"UPDATE informes SET numerico13 = 12,1"_s,
                           u"UPDATE informes SET numerico9 = 0"_s, u"UPDATE informes SET numerico8 = 3"_s,
                           u"UPDATE informes SET numerico10 = 7"_s, u"UPDATE informes SET numerico17 = 1"_s,
                           u"UPDATE informes SET numerico16 = 5,5"_s, u"UPDATE informes SET numerico18 = 2"_s,
                           u"DELETE FROM subinformes"_s}));
}

} // namespace
} // namespace kestrane
