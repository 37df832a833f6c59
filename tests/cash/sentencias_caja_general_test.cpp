// What the general cash asks of the shop, word by word and blank by blank, and how often.

#include "cash/listado_caja_general.h"

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

const std::string Area = "caja_general";

class SentenciasCajaGeneralTest : public testing::Test
{
protected:
    SentenciasCajaGeneralTest()
    {
        m_contexto.FechaDesde = dia(2024, 3, 1);
        m_contexto.FechaHasta = dia(2024, 3, 31);
        m_contexto.CajaCompleta = true;
    }

    QStringList enviadas(const QStringList& conocidas) { return m_tienda.enviadas(conocidas, ListadoCajaGeneral); }

    void pruebaTodas(const QStringList& textos) { m_tienda.pruebaTodas(textos, ListadoCajaGeneral); }

    prueba::TiendaEscuchada m_tienda;
    ContextoEjecucion& m_contexto{m_tienda.puesto.contexto};
};

TEST_F(SentenciasCajaGeneralTest, AMonthOfAStoreIsAskedWithTheseTexts)
{
    m_contexto.TiendaSeleccionada = u"Centro"_s;
    m_contexto.MultiTienda = true;
    QStringList textos = textosDelCorpus(Area, u" Centro"_s);
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaGeneral.caja inicial Centro"_s));
    textos.removeAll(textoDelCorpus(Area, u"ListadoCajaGeneral.retiradas Centro"_s));
    ASSERT_EQ(textos.size(), 20);
    pruebaTodas(textos);
}

TEST_F(SentenciasCajaGeneralTest, ADayOfAllStoresIsAskedForItsOpeningCashAndWithdrawalsToo)
{
    m_contexto.FechaDesde = m_contexto.FechaHasta = dia(2024, 3, 15);
    QStringList textos;
    for (QString texto : textosDelCorpus(Area, u" sin_tienda"_s) + textosDelCorpus(Area, u" sin_clausula"_s))
        textos += texto.replace(u"#03/01/2024# and #03/31/2024#"_s, u"#03/15/2024# and #03/15/2024#"_s);
    ASSERT_EQ(textos.size(), 22);
    pruebaTodas(textos);
}

TEST_F(SentenciasCajaGeneralTest, WithoutTheWholeCashNothingAnnulledIsRead)
{
    m_contexto.CajaCompleta = false;
    EXPECT_EQ(enviadas({}).filter(u"anulaciones"_s), QStringList{});
}

TEST_F(SentenciasCajaGeneralTest, TheSummaryAndTheLastUpdatesAreWrittenInThisOrder)
{
    m_contexto.FechaHasta = m_contexto.FechaDesde;
    m_contexto.TipoPrograma = u"SPA"_s;
    m_tienda.tienda.ejecuta({u"insert into gastos (fecha, tienda, importe) values (#03/01/2024#, '', 16.5)"_s,
                             u"insert into caja_inicial (fecha, tienda, importe) values (#03/01/2024#, '', 100)"_s});
    EXPECT_EQ(m_tienda.cambios(ListadoCajaGeneral),
              (QStringList{u"DELETE FROM informes"_s, u"DELETE FROM subinformes"_s,
                           u"INSERT INTO subinformes (numerico1, texto1) VALUES (-16,5, 'Gastos del Dia:')"_s,
                           u"INSERT INTO subinformes (numerico1, texto1) VALUES (100, 'Caja Inicial:')"_s,
                           u"UPDATE informes SET numerico19 = 83,5"_s, u"UPDATE informes SET texto1 = 'Servicios'"_s,
                           u"UPDATE informes SET texto2 = 'Pack Servicios'"_s, u"UPDATE informes SET texto3 = 'Pack Spa'"_s,
                           u"UPDATE informes SET texto33 = 'Tienda = '"_s}));
}

TEST_F(SentenciasCajaGeneralTest, InAReportManyTicketsAreAskedForTheirDebtsTogether)
{
    constexpr int Tickets = 300;
    for (int numero = 1; numero <= Tickets; ++numero) {
        m_tienda.tienda.ejecuta(
            {u"insert into cabecera_factura (Numero, fechaventa, tienda, pago, total) values (%1, #03/15/2024#, '', 1, 5)"_s.arg(
                 numero),
             u"insert into detalle_factura (num_factura, codigo, tipo_venta, tienda, codEmpleado, precio) values (%1, 9, 'P', '', 3, 5)"_s
                 .arg(numero)});
        if (numero % 3 == 0)
            m_tienda.tienda.ejecuta(
                u"insert into cabecera_pago (num_pago, num_factura, importe, tienda) values (%1, %1, 0.5, '')"_s.arg(numero));
    }
    const auto saldo = [&] {
        Recordset fila;
        fila.Open(u"Select * from informes"_s, m_contexto.ConexionListados);
        return fila.Fields(u"numerico19").doble();
    };
    m_tienda.olvida();
    ListadoCajaGeneral(m_tienda.puesto.listados);
    EXPECT_GT(m_tienda.anotaciones().filter(u"TiendaKestrane: "_s).size(), Tickets);
    EXPECT_EQ(saldo(), -50);
    EXPECT_LT(enviadas({}).size(), Tickets / 10);
    EXPECT_EQ(saldo(), -50);
}

} // namespace
} // namespace kestrane
