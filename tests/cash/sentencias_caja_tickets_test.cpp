// What the cash by ticket asks of the shop, word by word and blank by blank, and how often.

#include "cash/listado_caja_tickets.h"

#include "cash/sentencias_del_corpus.h"
#include "cash/tienda_escuchada.h"
#include "platform/runtime/soporte.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::dia;
using prueba::textoDelCorpus;
using prueba::textosDelCorpus;

const std::string Area = "caja_tickets";

class SentenciasCajaTicketsTest : public testing::Test
{
protected:
    SentenciasCajaTicketsTest()
    {
        ContextoEjecucion& contexto = m_tienda.puesto.contexto;
        contexto.FechaDesde = dia(2024, 3, 1);
        contexto.FechaHasta = dia(2024, 3, 31);
        contexto.CajaCompleta = true;
    }

    QStringList enviadas(const QStringList& conocidas) { return m_tienda.enviadas(conocidas, ListadoCajaTickets); }

    void pruebaTodas(const QStringList& textos) { m_tienda.pruebaTodas(textos, ListadoCajaTickets); }

    prueba::TiendaEscuchada m_tienda;
};

TEST_F(SentenciasCajaTicketsTest, AMonthOfAStoreIsAskedWithTheseTexts)
{
    m_tienda.puesto.contexto.TiendaSeleccionada = u"Centro"_s;
    QStringList textos = textosDelCorpus(Area, u" Centro"_s);
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaTickets.caja inicial Centro"_s));
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaTickets.retiradas Centro"_s));
    textos += textoDelCorpus(Area, u"ListadoCajaTickets.impuestos"_s);
    ASSERT_EQ(textos.size(), 14);
    pruebaTodas(textos);
}

TEST_F(SentenciasCajaTicketsTest, ADayOfAllStoresIsAskedForItsOpeningCashAndWithdrawalsToo)
{
    m_tienda.puesto.contexto.FechaDesde = m_tienda.puesto.contexto.FechaHasta = dia(2024, 3, 15);
    QStringList textos;
    for (QString texto : textosDelCorpus(Area, u" sin_tienda"_s))
        textos += texto.replace(u"#03/01/2024# and #03/31/2024#"_s, u"#03/15/2024# and #03/15/2024#"_s);
    textos += textoDelCorpus(Area, u"ListadoCajaTickets.impuestos un día"_s);
    ASSERT_EQ(textos.size(), 16);
    pruebaTodas(textos);
}

TEST_F(SentenciasCajaTicketsTest, WithoutTheWholeCashTheAnnulledTicketsAreNotRead)
{
    m_tienda.puesto.contexto.CajaCompleta = false;
    EXPECT_EQ(enviadas({}).filter(u"anulaciones"_s), QStringList{});
}

/// Which line was returned is asked when the sale has a returned line at all, which is read ahead.
TEST_F(SentenciasCajaTicketsTest, ATicketIsAskedForItsFormOfPaymentItsDebtAndItsReturnedLines)
{
    m_tienda.tienda.ejecuta(
        {u"insert into cabecera_factura (Numero, fechaventa, tienda, pago, total) values (118, #03/15/2024#, '', 2, 5)"_s,
         u"insert into cabecera_pago (num_pago, num_factura, importe, tienda) values (1, 118, 2, '')"_s,
         u"insert into detalle_factura (num_factura, codigo, tipo_venta, tipoimpuesto, impuesto, precio) values"
         " (118, 3, 'S', 0, 0, 5)"_s,
         u"insert into detalle_abono (num_factura, codigo) values (118, 4)"_s});
    QStringList textos = textosDelCorpus(Area, u" sin_tienda"_s);
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaTickets.caja inicial sin_tienda"_s));
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaTickets.retiradas sin_tienda"_s));
    textos += textoDelCorpus(Area, u"ListadoCajaTickets.impuestos"_s);
    textos += QStringList{u"Select Nombre from formapago where codigo = 2"_s,
                          u"Select num_pago from cabecera_pago where num_factura= 118 and tienda like '%'"_s,
                          u"Select importe from cabecera_pago where num_factura = 118"_s,
                          u"Select codigo from detalle_abono where num_factura = 118"_s,
                          u"Select codigo from detalle_abono where num_factura = 118 and codigo = 3"_s};
    pruebaTodas(textos);
}

/// 300 tickets, every third with a debt, every second by card.
class CajaTicketsLeidaPorAdelantadoTest : public SentenciasCajaTicketsTest
{
protected:
    CajaTicketsLeidaPorAdelantadoTest()
    {
        m_tienda.tienda.ejecuta({u"insert into formapago (codigo, Nombre) values (1, 'Contado')"_s,
                                 u"insert into formapago (codigo, Nombre) values (2, 'Tarjeta')"_s});
        for (int numero = 1; numero <= Tickets; ++numero) {
            m_tienda.tienda.ejecuta(
                u"insert into cabecera_factura (Numero, fechaventa, tienda, pago, total) values (%1, #03/15/2024#, '', %2, %3)"_s
                    .arg(numero)
                    .arg(1 + numero % 2)
                    .arg(numero));
            if (numero % 3 == 0)
                m_tienda.tienda.ejecuta(
                    u"insert into cabecera_pago (num_pago, num_factura, importe, tienda) values (%1, %1, 0.5, '')"_s.arg(numero));
        }
    }

    QStringList filas()
    {
        Recordset rs;
        rs.Open(u"Select * from informes"_s, m_tienda.puesto.contexto.ConexionListados);
        QStringList todas;
        for (Recordset& fila : rs) {
            QStringList valores;
            for (const jet::ColumnaResultado& columna : fila.columnas())
                valores +=
                    fila.Fields(columna.nombre).esNulo() ? u"nulo"_s : m_tienda.puesto.listados.texto(fila.Fields(columna.nombre));
            todas += valores.join(u'|');
        }
        return todas;
    }

    static constexpr int Tickets = 300;
};

TEST_F(CajaTicketsLeidaPorAdelantadoTest, InAReportTheRowsAreTheSameAndFewStatementsAreSent)
{
    m_tienda.olvida();
    ListadoCajaTickets(m_tienda.puesto.listados);
    const qsizetype unaAUna = m_tienda.anotaciones().filter(u"TiendaKestrane: "_s).size();
    const QStringList esperadas = filas();
    EXPECT_EQ(esperadas.size(), Tickets);
    EXPECT_GT(unaAUna, 2 * Tickets);
    EXPECT_LT(enviadas({}).size(), Tickets / 10);
    EXPECT_EQ(filas(), esperadas);
}

} // namespace
} // namespace kestrane
