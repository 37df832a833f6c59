#include "cash/listado_caja_diaria.h"

#include "cash/caja_escuchada.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::CajaEscuchada;

class ListadoCajaDiariaTest : public testing::Test
{
protected:
    void llena()
    {
        m_tienda.vende({.numero = 7, .cliente = 5}, {{.tipo = u"'B'"_s}, {.codigo = 12, .tipo = u"'P'"_s}});
        m_tienda.anula({.numero = 8, .pago = u"2"_s}, {{.codigo = 33, .empleado = u"''"_s}});
        m_tienda.debe(9, 7, 4);
        m_tienda.paga(9, 2);
        m_tienda.devuelve({.numero = 3, .venta = 70});
        m_tienda.mueve(u"gastos"_s, 5);
        m_tienda.mueve(u"retiradas"_s, 6);
        m_tienda.mueve(u"caja_inicial"_s, 7);
    }

    QStringList sentencias(const QString& tienda) const
    {
        const QString dia = u"#03/15/2024#"_s;
        const QString periodo = dia + u" and "_s + dia;
        const QString suya = u"  and tienda like '%"_s + tienda + u'\'';
        const QString una = u" and tienda like '%"_s + tienda + u'\'';
        const QString cliente = u" and (tienda like '%"_s + tienda + (tienda.isEmpty() ? u"' or tienda is null)"_s : u"')"_s);
        return {
            u"Select * from caja_inicial where fecha = "_s + dia + una,
            u"Select * from cabecera_factura where fechaventa between "_s + periodo + una + u" order by numero"_s,
            u"Select * from detalle_factura where num_factura = 7"_s + suya,
            u"Select Nombre,Apellidos, NIF from clientes where codigo = 5"_s + cliente,
            u"Select Nombre,Apellidos, NIF from clientes where codigo = 0"_s + cliente,
            u"Select Nombre from formapago where codigo = 1"_s,
            u"Select Nombre from formapago where codigo = 2"_s,
            u"Select Nombre,Apellidos from empleados where codigo = 1"_s,
            u"Select num_sesiones from cabecera_Bonos where num_factura= 7"_s,
            u"Select coste from productos where codigo = 12"_s,
            u"Select num_pago from cabecera_pago where num_factura= 7"_s + una,
            u"Select num_pago from cabecera_pago where num_factura= 8"_s + una,
            u"Select importe from cabecera_pago where num_factura = 7"_s,
            u"Select * from cabecera_factura_anulaciones where (numero <=0 or borrar = -1 ) and ((fechaventa between "_s + periodo +
                u") or (fecha between "_s + periodo + u"))"_s + una + u" order by numero"_s,
            u"Select * from detalle_factura_anulaciones where num_factura = 8"_s + (tienda.isEmpty() ? QString{} : suya),
            u"Select nombre, apellidos from ventas_compartidas,empleados where num_factura = 8 and cod_detalle = 33 and "
            "tipo_venta = 'S' and ventas_compartidas.cod_empleado = empleados.codigo order by ventas_compartidas.cod_empleado"_s,
            u"Select * from detalle_pago where fecha between "_s + periodo + suya,
            u"Select cliente from cabecera_pago where num_pago = 9"_s,
            u"Select num_factura from cabecera_pago where num_pago = 9"_s,
            u"Select * from cabecera_abono where fechaventa between "_s + periodo + suya + u" order by numero"_s,
            u"Select * from detalle_abono where num_abono = 3"_s + suya,
            u"Select * from gastos where fecha between "_s + periodo + suya,
            u"Select * from retiradas where fecha between "_s + periodo + suya,
            u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between "_s + periodo + suya +
                (tienda.isEmpty() ? QString{} : u" and tienda like '"_s + tienda + u'\''),
        };
    }

    prueba::TiendaDeCaja m_tienda;
};

TEST_F(ListadoCajaDiariaTest, TheShopIsAskedInTheseTextsToTheLastBlank)
{
    llena();
    m_tienda.contexto.CajaCompleta = true;
    CajaEscuchada{m_tienda}.pruebaTodas(sentencias({}), ListadoCajaDiaria);
}

TEST_F(ListadoCajaDiariaTest, TheShopIsAskedInTheseTextsForAStoreOfAChain)
{
    llena();
    m_tienda.contexto.CajaCompleta = m_tienda.contexto.MultiTienda = true;
    m_tienda.contexto.TiendaSeleccionada = u"Centro"_s;
    CajaEscuchada{m_tienda}.pruebaTodas(sentencias(u"Centro"_s), ListadoCajaDiaria);
}

TEST_F(ListadoCajaDiariaTest, RetailShopsAskForReturnsWithoutVouchersAndForVouchers)
{
    m_tienda.contexto.TipoPrograma = u"TALLACOLOR"_s;
    m_tienda.vende({.numero = 7}, {{.codigo = 12, .tipo = u"'P'"_s, .hijo = u"'4'"_s}, {.codigo = 13, .tipo = u"'P'"_s}});
    CajaEscuchada escucha{m_tienda};
    const QString periodo = u"#03/15/2024# and #03/15/2024#"_s;
    const QStringList vales = escucha.enviadas({}, [&](Listados& listados) {
        Recordset filas;
        filas.Open(u"SELECT Vales_Descuento.Desde, Vales_Descuento.Num_Factura, Cabecera_Factura.Empleado, "
                   "Cabecera_Factura.Cliente, Vales_Descuento.Descuento, clientes.Nombre,clientes.apellidos,"
                   "Vales_Descuento.num_Factura_aplicado  FROM (Vales_Descuento INNER JOIN Cabecera_Factura ON "
                   "Vales_Descuento.Num_Factura = Cabecera_Factura.Numero) LEFT JOIN Clientes ON "
                   "Cabecera_Factura.Cliente = Clientes.Codigo  where vales_descuento.desde between "_s +
                       periodo,
                   listados.contexto.ConexionTienda, CursorType::Keyset);
        EXPECT_TRUE(filas.Eof());
    });
    ASSERT_EQ(vales.size(), 1) << "a keyset cursor, on the vouchers alone, is always asked for";
    escucha.pruebaTodas(
        {u"Select * from caja_inicial where fecha = #03/15/2024# and tienda like '%'"_s,
         u"Select * from cabecera_factura where fechaventa between "_s + periodo + u" and tienda like '%' order by numero"_s,
         u"Select * from detalle_factura where num_factura = 7  and tienda like '%'"_s,
         u"Select Nombre,Apellidos, NIF from clientes where codigo = 0 and (tienda like '%' or tienda is null)"_s,
         u"Select Nombre from formapago where codigo = 1"_s,
         u"Select num_factura_aplicado from Vales_descuento where num_factura_aplicado = 7"_s,
         u"Select coste from productostextil where codigopadre = 12 and codigohijo = '4'"_s,
         u"Select coste from productos where codigo = 13"_s,
         u"Select num_pago from cabecera_pago where num_factura= 7 and tienda like '%'"_s,
         u"Select * from detalle_pago where fecha between "_s + periodo + u"  and tienda like '%'"_s,
         u"Select * from cabecera_abono  where num_factura not in (select num_factura from vales_descuento)    and fechaventa "
         "between "_s +
             periodo + u"  and tienda like '%' order by numero"_s,
         u"Select * from gastos where fecha between "_s + periodo + u"  and tienda like '%'"_s,
         u"Select * from retiradas where fecha between "_s + periodo + u"  and tienda like '%'"_s,
         u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between "_s + periodo +
             u"  and tienda like '%'"_s},
        ListadoCajaDiaria, vales);
}

TEST_F(ListadoCajaDiariaTest, ManyTicketsAreReadAheadInFewStatements)
{
    for (int numero = 1; numero <= 400; ++numero) {
        m_tienda.vende({.numero = numero, .cliente = numero + 1000, .pago = QString::number(numero % 2 + 1)});
        m_tienda.devuelve({.numero = numero, .cliente = numero + 2000, .venta = numero});
    }
    const qsizetype enviadas = CajaEscuchada{m_tienda}.enviadas({}, ListadoCajaDiaria).size();
    EXPECT_LT(enviadas, 40) << "400 tickets and 400 returns";
}

TEST_F(ListadoCajaDiariaTest, ReadAheadOrOneByOneTheRowsAreTheSame)
{
    llena();
    m_tienda.contexto.CajaCompleta = true;
    ListadoCajaDiaria(m_tienda.listados);
    const QString columnas = u"texto1,texto2,texto3,texto4,texto7,texto10,texto21,texto22,texto23,texto30,texto33,numerico1,"
                             "numerico2,numerico3,numerico8,numerico13,numerico14,numerico17,fecha3"_s;
    const QStringList unaAUna = m_tienda.filas(columnas);
    {
        const auto ambito = m_tienda.contexto.ConexionTienda.EmpiezaInforme();
        ListadoCajaDiaria(m_tienda.listados);
    }
    EXPECT_EQ(m_tienda.filas(columnas), unaAUna);
    EXPECT_EQ(unaAUna.size(), 9);
}

TEST_F(ListadoCajaDiariaTest, TheProgressBarGoesOnWithEachLineExpenseWithdrawalAndRemark)
{
    llena();
    m_tienda.contexto.CajaCompleta = true;
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, empleado, tienda) values (#03/15/2024#, 1, 'Centro')"_s);
    ListadoCajaDiaria(m_tienda.listados);
    EXPECT_EQ(m_tienda.progreso.pasos, 2 + 1 + 1 + 1 + 1 + 1) << "lines sold, annulled and returned, expense, withdrawal, remark";
}

TEST_F(ListadoCajaDiariaTest, NoOtherColumnIsWritten)
{
    m_tienda.vende({.numero = 7});
    ListadoCajaDiaria(m_tienda.listados);
    const QStringList comunes{u"fecha1"_s,     u"fecha2"_s,     u"fecha3"_s,     u"numerico1"_s,  u"numerico10"_s, u"numerico13"_s,
                              u"numerico14"_s, u"numerico16"_s, u"numerico17"_s, u"numerico18"_s, u"numerico2"_s,  u"numerico3"_s,
                              u"numerico8"_s,  u"numerico9"_s,  u"texto10"_s,    u"texto2"_s,     u"texto21"_s,    u"texto22"_s,
                              u"texto23"_s,    u"texto3"_s,     u"texto30"_s,    u"texto33"_s,    u"texto34"_s,    u"texto35"_s,
                              u"texto4"_s,     u"texto7"_s};
    QStringList escritas = m_tienda.escritas(0);
    escritas.sort();
    EXPECT_EQ(escritas, comunes);
}

TEST_F(ListadoCajaDiariaTest, AnApostropheInTheStoresNameEndsTheRunWithTheDatabasesError)
{
    m_tienda.contexto.TiendaSeleccionada = u"L'Eixample"_s;
    EXPECT_EQ(m_tienda.error(ListadoCajaDiaria), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(ListadoCajaDiariaTest, OpeningCashAndWithdrawalsAreReadOnASingleDayAlone)
{
    const QRegularExpression deUnDia{u"caja_inicial|retiradas"_s};
    EXPECT_EQ(CajaEscuchada{m_tienda}.enviadas({}, ListadoCajaDiaria).filter(deUnDia).size(), 2);
    m_tienda.periodo(15, 16);
    EXPECT_EQ(CajaEscuchada{m_tienda}.enviadas({}, ListadoCajaDiaria).filter(deUnDia), QStringList{});
}

TEST_F(ListadoCajaDiariaTest, TheReportsDatabaseIsWrittenInThisOrder)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (12, 4)"_s);
    m_tienda.vende({.numero = 7}, {{.unidades = 3}, {.codigo = 12, .tipo = u"'P'"_s, .unidades = 2, .precio = u"20"_s}});
    m_tienda.mueve(u"caja_inicial"_s, 7);
    m_tienda.mueve(u"gastos"_s, 5.5);
    m_tienda.paga(9, 2);
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, empleado, tienda) values (#03/15/2024#, 1, 'Centro')"_s);
    EXPECT_EQ(CajaEscuchada{m_tienda}.cambios(ListadoCajaDiaria),
              (QStringList{u"DELETE FROM informes"_s, u"filas en informes"_s, u"UPDATE informes SET numerico13 = 12,1"_s,
                           u"UPDATE informes SET numerico14 = 20"_s, u"UPDATE informes SET numerico9 = 8"_s,
                           u"UPDATE informes SET numerico8 = 3"_s, u"UPDATE informes SET numerico10 = 7"_s,
                           u"UPDATE informes SET numerico17 = 1"_s, u"UPDATE informes SET numerico16 = 5,5"_s,
                           u"UPDATE informes SET numerico18 = 2"_s, u"DELETE FROM subinformes"_s, u"filas en subinformes"_s}));
}

} // namespace
} // namespace kestrane
