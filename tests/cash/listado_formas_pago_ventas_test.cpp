#include "cash/listado_formas_pago_ventas.h"

#include "cash/sentencias_enviadas.h"

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
    EXPECT_EQ(
        prueba::SentenciasEnviadas{m_tienda}.ademasDe(
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
            ListadoFormasPagoVentas),
        QStringList{});
}

TEST_F(ListadoFormasPagoVentasTest, ManyTicketsAreReadAheadInFewStatements)
{
    for (int numero = 1; numero <= 400; ++numero)
        m_tienda.vende({.numero = numero, .cliente = numero + 1000});
    EXPECT_LT(prueba::SentenciasEnviadas{m_tienda}.deUnInforme(ListadoFormasPagoVentas).size(), 40);
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

} // namespace
} // namespace kestrane
