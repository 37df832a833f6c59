#include "cash/sumas_por_empleado.h"

#include "cash/prueba_caja.h"
#include "cash/sentencias_del_corpus.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;

struct SumaNombrada
{
    QString nombre;
    const SumaPorEmpleado& suma;
};

const SumaNombrada todas[] = {{u"productos"_s, sumas::Productos},
                              {u"servicios"_s, sumas::Servicios},
                              {u"depósito"_s, sumas::IngresosEnDeposito},
                              {u"packs"_s, sumas::Packs},
                              {u"packs spa"_s, sumas::PacksSpa}};

QString delCorpus(const SumaNombrada& suma, const QString& forma)
{
    return prueba::textoDelCorpus("caja_general", u"ListadoCajaGeneral.%1 %2"_s.arg(suma.nombre, forma));
}

class SumasPorEmpleadoTest : public prueba::PruebaCaja
{
protected:
    SumasPorEmpleadoTest() { marzo(); }

    /// "total|code" of the rows of a statement.
    QStringList filas(const QString& sentencia)
    {
        QStringList halladas;
        Recordset rs;
        rs.Open(sentencia, m_contexto.ConexionTienda);
        for (Recordset& fila : rs)
            halladas += m_listados.texto(fila.Fields(u"total")) + u'|' + m_listados.texto(fila.Fields(u"codEmpleado"));
        return halladas;
    }
};

TEST_F(SumasPorEmpleadoTest, TheTextsAreTheseToTheLastBlank)
{
    for (const QString& tienda : {u"Centro"_s, u"Peñíscola"_s}) {
        m_contexto.TiendaSeleccionada = tienda;
        m_contexto.MultiTienda = true;
        for (const SumaNombrada& suma : todas) {
            EXPECT_EQ(sentenciaVendido(m_contexto, suma.suma), delCorpus(suma, u"ventas "_s + tienda));
            EXPECT_EQ(sentenciaDevuelto(m_contexto, suma.suma), delCorpus(suma, u"abonos "_s + tienda));
            EXPECT_EQ(sentenciaAnulado(m_contexto, suma.suma), delCorpus(suma, u"anuladas "_s + tienda));
        }
    }
}

TEST_F(SumasPorEmpleadoTest, WithoutAStoreOrWithOneAloneTheAnnulledLinesAreNotFiltered)
{
    for (const SumaNombrada& suma : todas) {
        m_contexto.TiendaSeleccionada.clear();
        m_contexto.MultiTienda = true;
        EXPECT_EQ(sentenciaVendido(m_contexto, suma.suma), delCorpus(suma, u"ventas sin_tienda"_s));
        EXPECT_EQ(sentenciaDevuelto(m_contexto, suma.suma), delCorpus(suma, u"abonos sin_tienda"_s));
        EXPECT_EQ(sentenciaAnulado(m_contexto, suma.suma), delCorpus(suma, u"anuladas sin_clausula"_s));
        m_contexto.TiendaSeleccionada = u"Centro"_s;
        m_contexto.MultiTienda = false;
        EXPECT_EQ(sentenciaAnulado(m_contexto, suma.suma), delCorpus(suma, u"anuladas sin_clausula"_s));
    }
}

TEST_F(SumasPorEmpleadoTest, SumsComeByEmployeeInAscendingOrder)
{
    alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda, pago"_s, u"101, #03/15/2024#, 'Centro', 1"_s);
    alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda, pago"_s, u"102, #03/15/2024#, 'Centro', 4"_s);
    const auto linea = [&](int venta, int empleado, const QString& precio) {
        alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s,
             u"%1, 7, 'P', 'Centro', %2, %3"_s.arg(venta).arg(empleado).arg(precio));
    };
    linea(101, 7, u"10"_s);
    linea(101, 3, u"1.5"_s);
    linea(101, -1, u"100"_s);
    linea(101, 7, u"5"_s);
    linea(102, 7, u"1000"_s);
    EXPECT_EQ(filas(sentenciaVendido(m_contexto, sumas::Productos)), (QStringList{u"100|-1"_s, u"1,5|3"_s, u"15|7"_s}));
}

TEST_F(SumasPorEmpleadoTest, AReturnIsJoinedByTheNumberOfTheSale)
{
    alta(u"cabecera_abono"_s, u"Numero, num_factura, fechaventa, tienda, pago"_s, u"5, 101, #03/15/2024#, 'Centro', 1"_s);
    alta(u"detalle_abono"_s, u"num_abono, num_factura, codigo, tipo_venta, tienda, codempleado, precio"_s,
         u"5, 101, 7, 'P', 'Centro', 3, 10"_s);
    EXPECT_EQ(filas(sentenciaDevuelto(m_contexto, sumas::Productos)), QStringList{}) << "return 5 is not sale 101";
    alta(u"detalle_abono"_s, u"num_abono, num_factura, codigo, tipo_venta, tienda, codempleado, precio"_s,
         u"9, 5, 7, 'P', 'Centro', 3, 20"_s);
    EXPECT_EQ(filas(sentenciaDevuelto(m_contexto, sumas::Productos)), QStringList{u"20|3"_s});
}

} // namespace
} // namespace kestrane
