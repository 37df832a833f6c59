#include "cash/servicios_compartidos.h"

#include "cash/prueba_caja.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using prueba::numeroDeError;

class ServiciosCompartidosTest : public prueba::PruebaCaja
{
protected:
    ServiciosCompartidosTest()
    {
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"3, 'Ana', 'Paz'"_s);
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"7, 'Luis', 'Gil'"_s);
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"5, 'Eva', 'Sanz'"_s);
    }

    void venta(int numero, int pago = 1, const QString& tienda = u"Centro"_s)
    {
        alta(u"cabecera_factura"_s, u"Numero, fechaventa, tienda, pago"_s,
             u"%1, #03/15/2024#, '%3', %2"_s.arg(numero).arg(pago).arg(tienda));
    }
    void anulada(int numero, int pago = 1, int borrar = -1)
    {
        alta(u"cabecera_factura_anulaciones"_s, u"Numero, fechaventa, tienda, pago, borrar"_s,
             u"%1, #03/15/2024#, 'Centro', %2, %3"_s.arg(numero).arg(pago).arg(borrar));
    }
    void linea(int venta, const QString& tipo, int codigo, const QString& precio, int empleado = -1)
    {
        alta(u"detalle_factura"_s, u"num_factura, codigo, tipo_venta, tienda, codEmpleado, precio"_s,
             u"%1, %2, '%3', 'Centro', %4, %5"_s.arg(venta).arg(codigo).arg(tipo).arg(empleado).arg(precio));
    }
    void parte(int venta, const QString& codigo, const QString& tipo, const QString& empleado, const QString& importe)
    {
        alta(u"ventas_compartidas"_s, u"num_factura, cod_detalle, tipo_venta, cod_empleado, importe"_s,
             u"%1, %2, '%3', %4, %5"_s.arg(venta).arg(codigo, tipo, empleado, importe));
    }

    QStringList vendidos()
    {
        Vendedores vendedores{m_listados};
        sumaServiciosCompartidos(m_listados, vendedores);
        return filas();
    }
    QStringList anulados()
    {
        Vendedores vendedores{m_listados};
        anadeServiciosCompartidosAnulados(m_listados, vendedores);
        return filas();
    }
    QStringList filas() { return m_puesto.filas(u"texto21,TEXTO20,numerico1,texto1"_s); }
};

TEST_F(ServiciosCompartidosTest, ASharedLineGoesWholeToTheRowOfItsCombinationAndTheSameAgainAddsToIt)
{
    venta(101);
    venta(102);
    linea(101, u"S"_s, 9, u"50"_s);
    linea(102, u"CB"_s, 8, u"10.5"_s);
    linea(101, u"B"_s, 8, u"4"_s);
    linea(101, u"S"_s, 6, u"1"_s, 3);
    parte(101, u"9"_s, u"S"_s, u"7"_s, u"20"_s);
    parte(101, u"9"_s, u"S"_s, u"3"_s, u"30"_s);
    parte(102, u"8"_s, u"CB"_s, u"3"_s, u"5"_s);
    parte(102, u"8"_s, u"CB"_s, u"7"_s, u"5.5"_s);
    parte(101, u"8"_s, u"B"_s, u"5"_s, u"2"_s);
    parte(101, u"8"_s, u"B"_s, u"3"_s, u"2"_s);
    EXPECT_EQ(vendidos(),
              (QStringList{u"1,3,7|ompartida,Ana P,Luis G|60,5|Servicios"_s, u"1,3,5|ompartida,Ana P,Eva S|4|Servicios"_s}));
}

TEST_F(ServiciosCompartidosTest, MoneyForADepositIsNotLeftOutAndALineThatNobodySharesHasTheKeyOne)
{
    venta(101);
    linea(101, u"S"_s, 2, u"50"_s);
    EXPECT_EQ(vendidos(), QStringList{u"1|ompartida|50|Servicios"_s});
}

TEST_F(ServiciosCompartidosTest, OtherKindsAndSalesFromDepositAreLeftOut)
{
    venta(101);
    venta(102, 4);
    int codigo = 10;
    for (const QString& tipo : {u"P"_s, u"F"_s, u"BF"_s, u"CBF"_s, u"PSPA"_s, u"SF"_s, u"CSF"_s, u"SP"_s})
        linea(101, tipo, codigo++, u"1000"_s);
    linea(102, u"S"_s, 9, u"100"_s);
    linea(101, u"CPSPA"_s, 9, u"1"_s);
    EXPECT_EQ(vendidos(), QStringList{u"1|ompartida|1|Servicios"_s});
}

TEST_F(ServiciosCompartidosTest, SharesOfAnAnnulledLineAreOneRowUnderTheirCodesInStoredOrder)
{
    anulada(-1);
    parte(-1, u"9"_s, u"S"_s, u"7"_s, u"20.5"_s);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"30"_s);
    parte(-1, u"8"_s, u"CPSPA"_s, u"5"_s, u"4"_s);
    EXPECT_EQ(anulados(), (QStringList{u"7,3|Luis G (Compartido con) Ana P|50,5|Servicios"_s, u"5|Eva S|4|Servicios"_s}));
}

TEST_F(ServiciosCompartidosTest, OnlyNeighboursAreFoldedWhateverTheirKind)
{
    anulada(-1);
    anulada(-2);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"1"_s);
    parte(-1, u"9"_s, u"CB"_s, u"7"_s, u"2"_s);
    parte(-2, u"9"_s, u"S"_s, u"3"_s, u"10"_s);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"100"_s);
    EXPECT_EQ(anulados(), (QStringList{u"3,7|Ana P (Compartido con) Luis G|3|Servicios"_s, u"3|Ana P|10|Servicios"_s,
                                       u"3|Ana P|100|Servicios"_s}));
}

TEST_F(ServiciosCompartidosTest, AnnulledSharesDoNotFoldIntoRowsOfTheSameEmployees)
{
    anulada(-1);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"5"_s);
    Vendedores vendedores{m_listados};
    vendedores.anadeServicios(u"3"_s, u"Ana P"_s, 10.0);
    anadeServiciosCompartidosAnulados(m_listados, vendedores);
    EXPECT_EQ(filas(), (QStringList{u"3|Ana P|10|Servicios"_s, u"3|Ana P|5|Servicios"_s}));
}

TEST_F(ServiciosCompartidosTest, OnlySharesOfAnnulledSalesOfThePeriodAndOfServicesCount)
{
    anulada(201, 1, 0);
    anulada(202, 4);
    anulada(203);
    venta(204);
    for (int sale = 201; sale <= 204; ++sale)
        parte(sale, u"9"_s, u"S"_s, u"3"_s, u"5"_s);
    parte(203, u"9"_s, u"P"_s, u"7"_s, u"99"_s);
    EXPECT_EQ(anulados(), QStringList{u"3|Ana P|5|Servicios"_s});
    m_contexto.TiendaSeleccionada = u"Sur"_s;
    EXPECT_EQ(anulados(), QStringList{});
    m_contexto.TiendaSeleccionada.clear();
    marzo();
    ejecuta({u"update cabecera_factura_anulaciones set fechaventa = #04/01/2024#"_s});
    EXPECT_EQ(anulados(), QStringList{});
}

TEST_F(ServiciosCompartidosTest, AShareWithoutAnAmountEndsTheRunAndEarlierGroupsStay)
{
    anulada(-1);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"5"_s);
    parte(-1, u"8"_s, u"S"_s, u"7"_s, u"6"_s);
    parte(-1, u"7"_s, u"S"_s, u"7"_s, u"null"_s);
    EXPECT_EQ(numeroDeError([&] { return anulados(); }), ErrorEjecucion::UsoNoValidoDeNull);
    EXPECT_EQ(filas(), (QStringList{u"3|Ana P|5|Servicios"_s, u"7|Luis G|6|Servicios"_s}));
}

TEST_F(ServiciosCompartidosTest, AShareWithoutAnEmployeeIsRefusedAndEarlierGroupsStay)
{
    anulada(-1);
    parte(-1, u"9"_s, u"S"_s, u"3"_s, u"5"_s);
    parte(-1, u"8"_s, u"S"_s, u"null"_s, u"6"_s);
    EXPECT_EQ(numeroDeError([&] { return anulados(); }), ErrorEjecucion::SentenciaRechazada);
    EXPECT_EQ(filas(), QStringList{u"3|Ana P|5|Servicios"_s});
}

} // namespace
} // namespace kestrane
