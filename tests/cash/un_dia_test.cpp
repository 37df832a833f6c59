// The day that docs/a-day-at-the-till.md explains line by line. Whoever changes a figure here changes it there.

#include "cash/listado_caja_diaria.h"
#include "pipeline/puesto_de_prueba.h"

#include <gtest/gtest.h>

#include <QFile>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class UnDiaTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QFile sentencias{QStringLiteral(KESTRANE_UN_DIA)};
        ASSERT_TRUE(sentencias.open(QIODevice::ReadOnly));
        for (const QString& sentencia : QString::fromUtf8(sentencias.readAll()).split(u'\n', Qt::SkipEmptyParts))
            m_puesto.tienda.ejecuta(sentencia);
        m_puesto.contexto.TipoPrograma = u"PELUQUERIA"_s;
        m_puesto.contexto.FechaDesde = m_puesto.contexto.FechaHasta = *Fecha::deCalendario(2024, 3, 15);
        ListadoCajaDiaria(m_puesto.listados);
    }

    prueba::PuestoDePrueba m_puesto;
};

TEST_F(UnDiaTest, EachLineOfTheSheetIsTheOneThatTheDocumentExplains)
{
    EXPECT_EQ(m_puesto.filas(u"texto22,texto10,texto2,texto30,texto3,texto7,texto4,numerico2,numerico3"_s),
              (QStringList{u"1|0|||Caja Inicial|Ana P||100|0"_s, u"2|101|Eva Ruiz|12345678Z|1 X Corte|Ana Paz|Contado|15|3,15"_s,
                           u"2|102|Cliente Generico|12345678Z|1 X Tinte|ompartida,Ana P,Luis P|Tarjeta|30|6,3"_s,
                           u"2|102|Cliente Generico|12345678Z|1 X Champú|Luis Polo|Tarjeta|10|2,1"_s,
                           u"2|103|Marta Sanz||1 X Mechas|Ana Paz|Contado y tarjeta|50|10,5"_s,
                           u"2|104|Eva Ruiz|12345678Z|Cons.Deposito: Corte|Ana Paz|Depósito|0|0"_s,
                           u"2|105|Marta Sanz||1 X Ingreso en depósito|Luis Polo|Contado|30|0"_s,
                           u"3|106|Eva Ruiz|12345678Z|10 de - Masaje capilar|Luis Polo|Tarjeta|100|21"_s,
                           u"5|106|Eva Ruiz|12345678Z|Venta no Cobrada|2|Tarjeta|-50|0"_s,
                           u"4|7|Marta Sanz||Pago Pendiente de Factura: 80|Ana P|Contado|25|0"_s,
                           u"6|3 / 90|Marta Sanz||Abono: Gel|Luis Polo|Contado|-7,1|-1,05"_s,
                           u"7|0||nulo|Bombillas|Ana P||-14,2|0"_s, u"8|0||nulo|Retirada|Ana P||-60|0"_s}));
}

TEST_F(UnDiaTest, TheTotalsInEveryRowAreThoseOfTheDocument)
{
    EXPECT_EQ(m_puesto.filas(u"numerico13,numerico14,numerico9,numerico8,numerico10,numerico17,numerico16,numerico18"_s),
              QStringList(13, u"235,95|6,05|3|5|100|6|14,2|25"_s));
}

TEST_F(UnDiaTest, WhatCameInByPaymentFormIsWhatTheDocumentSays)
{
    Recordset formas;
    formas.Open(u"Select texto4, sum(numerico2) as neto, sum(numerico2 + numerico3) as bruto from informes group by texto4"_s,
                m_puesto.contexto.ConexionListados);
    QStringList sumas;
    for (Recordset& forma : formas)
        sumas += u"%1|%2|%3"_s.arg(m_puesto.listados.texto(forma.Fields(u"texto4")))
                     .arg(forma.Fields(u"neto").doble(), 0, 'f', 2)
                     .arg(forma.Fields(u"bruto").doble(), 0, 'f', 2);
    EXPECT_EQ(sumas, (QStringList{u"|25.80|25.80"_s, u"Contado|62.90|65.00"_s, u"Contado y tarjeta|50.00|60.50"_s,
                                  u"Depósito|0.00|0.00"_s, u"Tarjeta|90.00|119.40"_s}));
}

TEST_F(UnDiaTest, TheRemarkStandsBesideTheRows)
{
    EXPECT_EQ(m_puesto.filas(u"Fecha1,fecha2,texto1,texto2"_s, u"subinformes"_s),
              QStringList{u"15/03/2024|20:15:00|Ana P|El datáfono se quedó sin papel a mediodía."_s});
}

} // namespace
} // namespace kestrane
