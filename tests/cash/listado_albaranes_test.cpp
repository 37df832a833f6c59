#include "cash/listado_albaranes.h"

#include "cash/caja_escuchada.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::Linea;

class ListadoAlbaranesTest : public testing::Test
{
protected:
    void albaran(int numero, int albaran, std::initializer_list<Linea> lineas, const QString& pago = u"2"_s)
    {
        m_tienda.tienda.ejecuta(u"insert into cabecera_factura_temp (numero, fecha, num_albaran, cliente, empleado, pago) values "
                                "(%1, #03/15/2024#, %2, 5, 1, %3)"_s.arg(numero)
                                    .arg(albaran)
                                    .arg(pago));
        m_tienda.ponLineas(u"detalle_factura_temp (num_factura"_s, numero, lineas);
    }
    QStringList filas(const QString& columnas)
    {
        ListadoAlbaranes(m_tienda.listados);
        return m_tienda.filas(columnas);
    }

    prueba::TiendaDeCaja m_tienda;
};

TEST_F(ListadoAlbaranesTest, ALineShowsItsNoteClientEmployeePaymentNetAndTax)
{
    albaran(3, 80, {{.unidades = 2, .empleado = u"'Ana Paz Gil'"_s}});
    EXPECT_EQ(filas(u"fecha3,numerico1,texto10,texto2,texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21"_s),
              QStringList{u"15/03/2024|80|80|Eva Ruiz|2 X Corte|Ana Paz|Tarjeta|2|10|2,1|10|Albaranes"_s});
    EXPECT_EQ(m_tienda.filas(u"TEXTO35,TEXTO34,texto33,Fecha1,fecha2,numerico10,numerico16,numerico18"_s),
              QStringList{u"Peluquería Ñandú|Calle Mayor, 1|nulo|15/03/2024|15/03/2024|nulo|nulo|nulo"_s});
}

TEST_F(ListadoAlbaranesTest, ATemporarySaleWithoutNoteIsNotListed)
{
    albaran(3, 0, {{}});
    albaran(5, 81, {{}});
    albaran(4, 82, {{}});
    EXPECT_EQ(filas(u"numerico1,numerico17"_s), (QStringList{u"82|2"_s, u"81|2"_s})) << "by the number of the temporary sale";
}

TEST_F(ListadoAlbaranesTest, BonosAndServicesOfPacksHaveNoBlock)
{
    for (const QString& tipo :
         {u"P"_s, u"F"_s, u"S"_s, u"CB"_s, u"CBF"_s, u"CPSPA"_s, u"PSPA"_s, u"B"_s, u"BF"_s, u"SF"_s, u"CSF"_s, u"SP"_s})
        m_tienda.ponLineas(u"detalle_factura_temp (num_factura"_s, 3, {{.tipo = u'\'' + tipo + u'\'', .producto = tipo}});
    albaran(3, 80, {});
    EXPECT_EQ(filas(u"texto3,texto22"_s), (QStringList{u"1 X P|10"_s, u"1 X F|10"_s, u"1 X S|10"_s, u"1 X CB|10"_s, u"1 X CBF|10"_s,
                                                       u"1 X CPSPA|10"_s, u"1 X PSPA|10"_s, u"1 X B|nulo"_s, u"1 X BF|nulo"_s,
                                                       u"1 X SF|nulo"_s, u"1 X CSF|nulo"_s, u"1 X SP|nulo"_s}));
}

TEST_F(ListadoAlbaranesTest, FromDepositTheAmountsStandAndTheTotalsLeaveThemOut)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    albaran(3, 80, {{.unidades = 2}, {.tipo = u"'P'"_s}}, u"4"_s);
    EXPECT_EQ(filas(u"texto3,numerico2,numerico13,numerico14,numerico9,numerico8"_s),
              (QStringList{u"2 X Corte|10|0|0|4|2"_s, u"1 X Corte|10|0|0|4|2"_s}));
}

TEST_F(ListadoAlbaranesTest, TotalsAreThoseOfTheCashSheet)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (10, 4)"_s);
    albaran(3, 80,
            {{.precio = u"1"_s},
             {.tipo = u"'F'"_s, .precio = u"2"_s},
             {.tipo = u"'PSPA'"_s, .precio = u"4"_s},
             {.tipo = u"'P'"_s, .precio = u"8"_s},
             {.codigo = 2, .precio = u"16"_s}});
    EXPECT_EQ(filas(u"numerico13,numerico14,numerico9,numerico8,numerico17"_s).constFirst(), u"7|8|4|1|1"_s);
}

TEST_F(ListadoAlbaranesTest, ASharedLineNamesAll)
{
    albaran(3, 80, {{.codigo = 33, .empleado = u"''"_s}});
    m_tienda.comparte(3, 33, u"S"_s, {1, 2});
    EXPECT_EQ(filas(u"texto7"_s), QStringList{u"ompartida,Ana P,Luis P"_s});
}

TEST_F(ListadoAlbaranesTest, TheStoreHeadsTheRowsAndHasNoPartInThem)
{
    m_tienda.contexto.MultiTienda = true;
    m_tienda.contexto.TiendaSeleccionada = u"Sur"_s;
    albaran(3, 80, {{}});
    m_tienda.tienda.ejecuta(u"insert into observacioncaja (fecha, empleado, observacion) values (#03/15/2024#, 1, 'Nota')"_s);
    EXPECT_EQ(filas(u"texto33,texto3"_s), QStringList{u"Tienda = Sur|1 X Corte"_s});
    EXPECT_EQ(m_tienda.filas(u"Fecha1,fecha2,texto1,texto2"_s, u"subinformes"_s), QStringList{u"15/03/2024|nulo|Ana P|Nota"_s});
    EXPECT_EQ(m_tienda.progreso.pasos, 2) << "a line and a remark";
}

TEST_F(ListadoAlbaranesTest, TheShopIsAskedInTheseTextsToTheLastBlank)
{
    albaran(3, 80, {{}});
    prueba::CajaEscuchada{m_tienda}.pruebaTodas(
        {u"Select * from cabecera_factura_temp where num_albaran >0 and fecha between #03/15/2024# and #03/15/2024# order by "
         "numero"_s,
         u"Select * from detalle_factura_temp where num_factura = 3"_s,
         u"Select Nombre,Apellidos from clientes where codigo = 5 and (tienda like '%' or tienda is null)"_s,
         u"Select Nombre from formapago where codigo = 2"_s,
         u"Select observacion,fecha,hora,empleado from observacioncaja where fecha between #03/15/2024# and #03/15/2024#"_s},
        ListadoAlbaranes);
}

TEST_F(ListadoAlbaranesTest, NoOtherColumnIsWritten)
{
    albaran(3, 80, {{}});
    ListadoAlbaranes(m_tienda.listados);
    EXPECT_EQ(m_tienda.escritas(0),
              (QStringList{u"texto2"_s,    u"texto3"_s,    u"texto4"_s,    u"texto7"_s,     u"texto10"_s,    u"texto21"_s,
                           u"texto22"_s,   u"texto23"_s,   u"texto34"_s,   u"texto35"_s,    u"numerico1"_s,  u"numerico2"_s,
                           u"numerico3"_s, u"numerico8"_s, u"numerico9"_s, u"numerico13"_s, u"numerico14"_s, u"numerico17"_s,
                           u"fecha1"_s,    u"fecha2"_s,    u"fecha3"_s}));
}

TEST_F(ListadoAlbaranesTest, TheReportsDatabaseIsWrittenInThisOrder)
{
    m_tienda.tienda.ejecuta(u"insert into productos (codigo, coste) values (12, 4)"_s);
    albaran(3, 80, {{.unidades = 3}, {.codigo = 12, .tipo = u"'P'"_s, .unidades = 2, .precio = u"20"_s}});
    EXPECT_EQ(prueba::CajaEscuchada{m_tienda}.cambios(ListadoAlbaranes),
              (QStringList{u"DELETE FROM informes"_s, u"filas en informes"_s, u"UPDATE informes SET numerico13 = 12,1"_s,
                           u"UPDATE informes SET numerico14 = 20"_s, u"UPDATE informes SET numerico9 = 8"_s,
                           u"UPDATE informes SET numerico8 = 3"_s, u"UPDATE informes SET numerico17 = 1"_s,
                           u"DELETE FROM subinformes"_s}));
}

TEST_F(ListadoAlbaranesTest, MoreTicketsThanASixteenBitCounterHoldsEndTheRun)
{
    albaran(1, 80, {{}});
    Recordset albaranes;
    albaranes.Open(u"Select * from cabecera_factura_temp"_s, m_tienda.contexto.ConexionTienda, CursorType::Keyset);
    for (int numero = 2; numero <= 32768; ++numero) {
        albaranes.AddNew();
        albaranes.Fields(u"Numero") = qint32{numero};
        albaranes.Fields(u"fecha") = m_tienda.contexto.FechaDesde;
        albaranes.Fields(u"num_albaran") = qint32{numero};
        albaranes.Update();
    }
    albaranes.Close();
    const auto ambito = m_tienda.contexto.ConexionTienda.EmpiezaInforme();
    EXPECT_EQ(m_tienda.error(ListadoAlbaranes), ErrorEjecucion::Desbordamiento);
    EXPECT_EQ(m_tienda.filas(u"numerico1,numerico17"_s), QStringList{u"80|nulo"_s}) << "the row written so far stays";
}

} // namespace
} // namespace kestrane
