#include "cash/vocabulary/consulta_por_codigo.h"

#include "cash/tienda_escuchada.h"
#include "cash/vocabulary/prueba_vocabulario.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

class ConsultaPorCodigoTest : public prueba::PruebaVocabulario
{
protected:
    const ConsultaPorCodigo m_formas{u"Select Nombre from formapago where codigo = "_s, u" and borrar = 0"_s};
};

TEST_F(ConsultaPorCodigoTest, TheCodeGoesAsItsTextBetweenHeadAndTail)
{
    EXPECT_EQ(m_formas.sentencia(m_listados, qint32{-3}), u"Select Nombre from formapago where codigo = -3 and borrar = 0"_s);
    EXPECT_EQ(m_formas.sentencia(m_listados, m_nulo), u"Select Nombre from formapago where codigo =  and borrar = 0"_s);
}

TEST_F(ConsultaPorCodigoTest, TheFirstRowIsReadAndWithoutOneTheFallbackHolds)
{
    ejecuta({u"insert into vales_descuento (Num_Factura, Descuento) values (1, 20)"_s,
             u"insert into vales_descuento (Num_Factura, Descuento) values (1, 10)"_s});
    const QString conFila = u"Select Descuento from vales_descuento where Num_Factura = 1"_s;
    const QString sinFila = u"Select Descuento from vales_descuento where Num_Factura = 2"_s;
    const auto descuento = [](Recordset& fila) { return fila.Fields(u"Descuento").doble(); };
    EXPECT_EQ(primeraFila(m_listados, conFila, -1.0, descuento), 20);
    EXPECT_EQ(primeraFila(m_listados, sinFila, -1.0, descuento), -1);
    EXPECT_TRUE(hayFila(m_listados, conFila));
    EXPECT_FALSE(hayFila(m_listados, sinFila));
}

TEST(ConsultaPorCodigoAnunciadaTest, AnnouncedItIsSentOnceForManyRows)
{
    prueba::TiendaEscuchada tienda;
    for (int codigo = 1; codigo <= 10; ++codigo)
        tienda.tienda.ejecuta({u"insert into cabecera_factura (Numero, pago) values (%1, %1)"_s.arg(codigo),
                               u"insert into formapago (codigo, Nombre) values (%1, 'Forma %1')"_s.arg(codigo)});
    const ConsultaPorCodigo formas{u"Select Nombre from formapago where codigo = "_s, {}};
    QStringList nombres;
    const auto recorre = [&](Listados& listados) {
        Recordset ventas;
        ventas.Open(u"Select * from cabecera_factura"_s, listados.contexto.ConexionTienda);
        formas.anuncia(ventas, u"pago"_s);
        for (Recordset& venta : ventas)
            nombres += primeraFila(listados, formas.sentencia(listados, venta.Fields(u"pago")), QString{},
                                   [](Recordset& fila) { return fila.Fields(u"Nombre").texto(); });
    };
    EXPECT_EQ(tienda.enviadas({}, recorre).filter(u"FROM formapago"_s).size(), 1);
    ASSERT_EQ(nombres.size(), 10);
    EXPECT_EQ(nombres.front(), u"Forma 1"_s);
    EXPECT_EQ(nombres.back(), u"Forma 10"_s);
}

} // namespace
} // namespace kestrane
