#include "cash/filas_de_caja.h"

#include "cash/tienda_de_caja.h"

#include <gtest/gtest.h>

namespace kestrane::cash {
namespace {

using namespace Qt::StringLiterals;

class FilasDeCajaTest : public testing::Test
{
protected:
    /// The columns of one row to which `pon` was done, a line "Corte" at hand.
    template<class Pon>
    QStringList fila(const QString& columnas, Pon pon)
    {
        m_tienda.vende({.numero = 7});
        Recordset lineas;
        lineas.Open(u"Select * from detalle_factura"_s, m_tienda.contexto.ConexionTienda);
        InformeNuevo informe{m_tienda.listados, {}};
        informe.AddNew();
        pon(informe, lineas);
        informe.Update();
        return m_tienda.filas(columnas);
    }

    prueba::TiendaDeCaja m_tienda;
};

TEST_F(FilasDeCajaTest, ABlockIsItsKeyAndItsTitle)
{
    EXPECT_EQ(fila(u"texto22,texto21"_s, [](InformeNuevo& informe, Recordset&) { ponBloque(informe, bloques::Retiradas); }),
              QStringList{u"8|Retiradas del Dia"_s});
}

TEST_F(FilasDeCajaTest, APaymentIsItsNameAndItsCodeAndAnUnknownOneHasNoName)
{
    EXPECT_EQ(fila(u"texto4,texto23"_s, [&](InformeNuevo& informe, Recordset&) { ponPago(m_tienda.listados, informe, qint16{9}); }),
              QStringList{u"|9"_s});
}

TEST_F(FilasDeCajaTest, ANullAmountStaysNull)
{
    EXPECT_EQ(fila(u"numerico2,numerico3"_s, [](InformeNuevo& informe, Recordset&) { ponImportes(informe, {}, 2.5); }),
              QStringList{u"nulo|2,5"_s});
}

TEST_F(FilasDeCajaTest, ABonoOfWhichNothingIsKnownHasNoSessions)
{
    EXPECT_EQ(fila(u"texto3,texto22"_s,
                   [&](InformeNuevo& informe, Recordset& linea) { ponVentaDeBono(m_tienda.listados, informe, qint32{7}, linea); }),
              QStringList{u" de - Corte|3"_s});
}

TEST_F(FilasDeCajaTest, WhatIsPaidFromDepositHasNoMoney)
{
    EXPECT_EQ(fila(u"texto3,numerico2,numerico3"_s,
                   [&](InformeNuevo& informe, Recordset& linea) { ponConsumoDeDeposito(m_tienda.listados, informe, linea); }),
              QStringList{u"Cons.Deposito: Corte|0|0"_s});
}

} // namespace
} // namespace kestrane::cash
