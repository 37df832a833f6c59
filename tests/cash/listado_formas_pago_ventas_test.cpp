#include "cash/listado_formas_pago_ventas.h"

#include "cash/caja_escuchada.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ListadoFormasPagoVentasTest : public testing::Test
{
protected:
    prueba::TiendaDeCaja m_tienda;
};

TEST_F(ListadoFormasPagoVentasTest, TheShopIsAskedInTheseTextsToTheLastBlank)
{
    m_tienda.contexto.CajaCompleta = m_tienda.contexto.MultiTienda = true;
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    m_tienda.vende({.numero = 7, .cliente = 5}, {{.tipo = u"'BF'"_s}, {.codigo = 12, .tipo = u"'P'"_s}});
    m_tienda.anula({.numero = 8, .pago = u"2"_s});
    m_tienda.devuelve({.numero = 3, .venta = 70});
    m_tienda.debe(9, 7, 4);
    m_tienda.paga(9, 2);
    const QString tienda = u" and tienda like '%Centro'"_s;
    const QString periodo = u"#03/15/2024# and #03/15/2024#"_s;
    const QString aqui = periodo + tienda;
    prueba::CajaEscuchada{m_tienda}.pruebaTodas(
        {u"Select * from caja_inicial where fecha = #03/15/2024#"_s + tienda,
         u"Select * from cabecera_factura where fechaventa between "_s + aqui + u" order  by numero"_s,
         u"Select * from detalle_factura where num_factura = 7"_s + tienda,
         u"Select num_pago from cabecera_pago where num_factura= 7"_s + tienda,
         u"Select num_pago from cabecera_pago where num_factura= 8"_s + tienda,
         u"Select importe from cabecera_pago where num_factura = 7"_s,
         u"Select * from cabecera_factura_anulaciones where (numero<=0 or borrar=-1) and fechaventa between "_s + aqui +
             u" order  by numero"_s,
         u"Select * from detalle_factura_anulaciones where num_factura = 8"_s + tienda,
         u"Select *,cabecera_pago.num_factura as num,detalle_pago.empleado as empleadodet,detalle_pago.fecha as fechapago, "
         "detalle_pago.importe as impPagado   from cabecera_pago,detalle_pago  where cabecera_pago.num_pago = "
         "detalle_pago.num_pago    and detalle_pago.fecha between "_s +
             periodo + u"   and cabecera_pago.tienda like '%Centro' order  by DETALLE_PAGO.num_pago"_s,
         u"Select * from cabecera_abono where fechaventa between "_s + aqui + u" order  by numero"_s,
         u"Select * from detalle_abono where num_abono = 3"_s + tienda,
         u"Select numero from cabecera_factura where fechaventa between "_s + aqui,
         u"Select sum(importe) as valor from detalle_pago where fecha between "_s + aqui,
         u"Select * from gastos where fecha between "_s + aqui,
         u"Select * from retiradas where fecha between "_s + aqui,
         u"Select Nombre,Apellidos from clientes where codigo = 5 and (tienda like '%Centro')"_s,
         u"Select Nombre,Apellidos from clientes where codigo = 0 and (tienda like '%Centro')"_s,
         u"Select Nombre from formapago where codigo = 1"_s,
         u"Select Nombre from formapago where codigo = 2"_s,
         u"Select Nombre,Apellidos from empleados where codigo = 1"_s,
         u"Select coste from productos where codigo = 12"_s,
         u"Select num_sesiones from cabecera_Bonos where num_factura= 7"_s},
        ListadoFormasPagoVentas);
}

TEST_F(ListadoFormasPagoVentasTest, ManyTicketsAreReadAheadInFewStatements)
{
    for (int numero = 1; numero <= 400; ++numero)
        m_tienda.vende({.numero = numero, .cliente = numero + 1000});
    EXPECT_LT(prueba::CajaEscuchada{m_tienda}.enviadas({}, ListadoFormasPagoVentas).size(), 40);
}

TEST_F(ListadoFormasPagoVentasTest, TheProgressBarGoesOnWithEachLineSoldAnnulledOrReturned)
{
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.vende({.numero = 7}, {{}, {.codigo = 2}});
    m_tienda.anula({.numero = 8});
    m_tienda.devuelve({.venta = 70});
    m_tienda.debe(9, 7, 4);
    m_tienda.paga(9, 2);
    m_tienda.mueve(u"gastos"_s, 5);
    ListadoFormasPagoVentas(m_tienda.listados);
    EXPECT_EQ(m_tienda.progreso.pasos, 2 + 1 + 1);
}

TEST_F(ListadoFormasPagoVentasTest, TheStoreHeadsTheRowsOfAChainWithoutTheTaxNumber)
{
    m_tienda.contexto.MultiTienda = true;
    m_tienda.vende({.numero = 7});
    ListadoFormasPagoVentas(m_tienda.listados);
    EXPECT_EQ(m_tienda.filas(u"texto33,TEXTO35,TEXTO34,Fecha1,fecha2"_s),
              QStringList{u"Tienda = |Peluquería Ñandú|Calle Mayor, 1|15/03/2024|15/03/2024"_s});
}

TEST_F(ListadoFormasPagoVentasTest, NoOtherColumnIsWritten)
{
    m_tienda.vende({.numero = 7});
    m_tienda.debe(9, 70, 4);
    m_tienda.paga(9, 2);
    ListadoFormasPagoVentas(m_tienda.listados);
    QStringList todas{u"texto2"_s,     u"texto3"_s,     u"texto4"_s,     u"texto7"_s,     u"texto10"_s,    u"texto21"_s,
                      u"texto22"_s,    u"texto23"_s,    u"texto32"_s,    u"texto34"_s,    u"texto35"_s,    u"numerico1"_s,
                      u"numerico2"_s,  u"numerico3"_s,  u"numerico8"_s,  u"numerico9"_s,  u"numerico10"_s, u"numerico13"_s,
                      u"numerico14"_s, u"numerico16"_s, u"numerico17"_s, u"numerico18"_s, u"numerico19"_s, u"fecha1"_s,
                      u"fecha2"_s,     u"fecha3"_s};
    EXPECT_EQ(m_tienda.escritas(0), todas);
    todas.removeOne(u"texto22"_s);
    EXPECT_EQ(m_tienda.escritas(1), todas) << "the payment of a debt";
}

TEST_F(ListadoFormasPagoVentasTest, OpeningCashAndWithdrawalsAreReadOnASingleDayAlone)
{
    const QRegularExpression deUnDia{u"caja_inicial|retiradas"_s};
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.enviadas({}, ListadoFormasPagoVentas).filter(deUnDia).size(), 2);
    m_tienda.periodo(15, 16);
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.enviadas({}, ListadoFormasPagoVentas).filter(deUnDia), QStringList{});
}

TEST_F(ListadoFormasPagoVentasTest, TheReportsDatabaseIsWrittenInThisOrder)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (12, 4)"_s);
    m_tienda.vende({.numero = 7}, {{.unidades = 3}, {.codigo = 12, .tipo = u"'P'"_s, .unidades = 2, .precio = u"20"_s}});
    m_tienda.mueve(u"caja_inicial"_s, 7);
    m_tienda.mueve(u"gastos"_s, 5.5);
    m_tienda.paga(9, 2);
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.cambios(ListadoFormasPagoVentas),
              (QStringList{u"DELETE FROM informes"_s, u"filas en informes"_s, u"UPDATE informes SET numerico13 = 12,1"_s,
                           u"UPDATE informes SET numerico14 = 20"_s, u"UPDATE informes SET numerico9 = 8"_s,
                           u"UPDATE informes SET numerico8 = 3"_s, u"UPDATE informes SET numerico10 = 0"_s,
                           u"UPDATE informes SET numerico17 = 1"_s, u"UPDATE informes SET numerico16 = 5,5"_s,
                           u"UPDATE informes SET numerico18 = 2"_s, u"DELETE FROM subinformes"_s,
                           u"INSERT INTO subinformes (numerico1, texto1) VALUES (-5,5, 'Gastos del Dia:')"_s,
                           u"INSERT INTO subinformes (numerico1, texto1) VALUES (2, 'Cobros de deudas Pendientes:')"_s,
                           u"INSERT INTO subinformes (numerico1, texto1) VALUES (7, 'Caja Inicial:')"_s,
                           u"UPDATE informes SET numerico19 = 1,5"_s}));
}

} // namespace
} // namespace kestrane
