#include "cash/vendedores.h"

#include "cash/prueba_caja.h"

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using namespace familias_de_caja;
using prueba::numeroDeError;

class VendedoresTest : public prueba::PruebaCaja
{
protected:
    VendedoresTest()
    {
        alta(u"empleados"_s, u"codigo, Nombre, Apellidos"_s, u"3, 'Ana', 'Paz'"_s);
        alta(u"empleados"_s, u"codigo, Nombre"_s, u"7, 'Luis'"_s);
    }

    /// `aplica` to a sum of that amount and employee, as they stand in a statement.
    void conSuma(const QString& total, const QString& empleado, void (Vendedores::*aplica)(const FamiliaDeCaja&, Recordset&),
                 const FamiliaDeCaja& familia)
    {
        ejecuta({u"delete from detalle_factura"_s});
        alta(u"detalle_factura"_s, u"precio, codEmpleado"_s, total + u", "_s + empleado);
        Recordset suma;
        suma.Open(u"Select sum(precio) as total,codEmpleado from detalle_factura group by codEmpleado"_s,
                  m_contexto.ConexionTienda);
        (m_vendedores.*aplica)(familia, suma);
    }
    void vende(const QString& total, const QString& empleado, const FamiliaDeCaja& familia = Servicios)
    {
        conSuma(total, empleado, &Vendedores::vende, familia);
    }
    void devuelve(const QString& total, const QString& empleado, const FamiliaDeCaja& familia = Servicios)
    {
        conSuma(total, empleado, &Vendedores::devuelve, familia);
    }
    void anula(const QString& total, const QString& empleado, const FamiliaDeCaja& familia = Servicios)
    {
        conSuma(total, empleado, &Vendedores::anula, familia);
    }

    /// "key|name|services|label" of all rows.
    QStringList servicios() { return m_puesto.filas(u"texto21,TEXTO20,numerico1,texto1"_s); }

    Vendedores m_vendedores{m_listados};
};

TEST_F(VendedoresTest, ASellerIsMadeOnceAndFoundAgainByTheCode)
{
    vende(u"10"_s, u"3"_s);
    vende(u"20"_s, u"7"_s);
    vende(u"5"_s, u"3"_s, Packs);
    EXPECT_EQ(m_puesto.filas(u"texto21,TEXTO20,numerico1,texto1,numerico2,texto2"_s),
              (QStringList{u"3|Ana P|10|Servicios|5|Pack Servicios"_s, u"7|Luis |20|Servicios|nulo|nulo"_s}));
}

TEST_F(VendedoresTest, ASaleSetsTheColumnAReturnTakesOffAndAnAnnulledSaleAdds)
{
    vende(u"10"_s, u"3"_s);
    vende(u"12"_s, u"3"_s);
    EXPECT_EQ(servicios(), QStringList{u"3|Ana P|12|Servicios"_s});
    devuelve(u"2.5"_s, u"3"_s);
    EXPECT_EQ(servicios(), QStringList{u"3|Ana P|9,5|Servicios"_s});
    anula(u"20"_s, u"3"_s);
    EXPECT_EQ(servicios(), QStringList{u"3|Ana P|29,5|Servicios"_s});
}

TEST_F(VendedoresTest, AnEmployeeWithOnlyAReturnHasANegativeRow)
{
    devuelve(u"2.5"_s, u"3"_s);
    EXPECT_EQ(servicios(), QStringList{u"3|Ana P|-2,5|Servicios"_s});
}

TEST_F(VendedoresTest, AColumnThatWasNeverWrittenCountsAsZero)
{
    vende(u"10"_s, u"3"_s, Packs);
    devuelve(u"2.5"_s, u"3"_s);
    anula(u"4"_s, u"3"_s, PacksSpa);
    EXPECT_EQ(m_puesto.filas(u"numerico1,texto1,numerico2,texto2,numerico4,texto3"_s),
              QStringList{u"-2,5|Servicios|10|Pack Servicios|4|Pack Spa"_s});
}

TEST_F(VendedoresTest, ProductsHaveNoLabelAndTheirFirstSumsAreNotLookedFor)
{
    conSuma(u"10"_s, u"3"_s, &Vendedores::vendeElPrimero, Productos);
    conSuma(u"20"_s, u"3"_s, &Vendedores::vendeElPrimero, Productos);
    devuelve(u"1"_s, u"3"_s, Productos);
    EXPECT_EQ(m_puesto.filas(u"texto21,numerico3"_s), (QStringList{u"3|9"_s, u"3|20"_s})) << "the older row is found";
    EXPECT_EQ(m_puesto.escritas(0),
              (QStringList{u"texto20"_s, u"texto21"_s, u"texto34"_s, u"texto35"_s, u"numerico3"_s, u"fecha1"_s, u"fecha2"_s}));
}

TEST_F(VendedoresTest, SharedLinesAreOneSellerAndAnUnknownEmployeeHasNoName)
{
    vende(u"10"_s, u"-1"_s);
    vende(u"20"_s, u"99"_s);
    EXPECT_EQ(servicios(), (QStringList{u"-1|Ventas Compartidas|10|Servicios"_s, u"99||20|Servicios"_s}));
}

TEST_F(VendedoresTest, ALineWithoutAnEmployeeEndsTheRun)
{
    EXPECT_EQ(numeroDeError([&] { vende(u"10"_s, u"null"_s); }), ErrorEjecucion::SentenciaRechazada);
}

TEST_F(VendedoresTest, ASharedServiceAddsToTheRowOfItsKeyWithoutALabel)
{
    vende(u"10"_s, u"3"_s, Packs);
    m_vendedores.comparte(u"1,3,7"_s, u"ompartida,Ana P,Luis "_s, 5.5);
    m_vendedores.comparte(u"1,3,7"_s, u"otro nombre"_s, 2.0);
    m_vendedores.comparte(u"3"_s, u"otro nombre"_s, 1.25);
    EXPECT_EQ(servicios(), (QStringList{u"3|Ana P|1,25|nulo"_s, u"1,3,7|ompartida,Ana P,Luis |7,5|Servicios"_s}));
}

TEST_F(VendedoresTest, ServicesOfAnnulledSharesAreAlwaysANewRowAndTheOlderOneIsFound)
{
    vende(u"10"_s, u"3"_s);
    m_vendedores.anadeServicios(u"3"_s, u"Ana P"_s, 4.0);
    vende(u"7"_s, u"3"_s, Packs);
    EXPECT_EQ(m_puesto.filas(u"texto21,numerico1,numerico2"_s), (QStringList{u"3|10|7"_s, u"3|4|nulo"_s}));
}

TEST_F(VendedoresTest, RowsOfAnEarlierReportAreCleared)
{
    m_contexto.ConexionListados.Execute(u"insert into informes (texto21, TEXTO20) values ('3', 'vieja')"_s);
    Vendedores otros{m_listados};
    EXPECT_EQ(servicios(), QStringList{});
}

} // namespace
} // namespace kestrane
