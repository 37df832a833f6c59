#include "pipeline/filtros/decision_filtros_productos.h"

#include "pipeline/filtros/decision_productos_vendidos.h"

#include <gtest/gtest.h>

namespace kestrane {
namespace {

using namespace Qt::StringLiterals;
using enum BloqueProductos;

ElementoPanel elemento(const QString& nombre, int codigo)
{
    return {.Texto = nombre, .ColorFondo = {}, .Imagen = {}, .Nombre = nombre, .Codigo = QString::number(codigo)};
}

class DecisionFiltrosProductosTest : public testing::Test
{
protected:
    struct Esperado
    {
        bool bajoMinimos = false;
        qint32 proveedor = -1;
        qint32 seccion = -1;
        qint32 proveedorBajoMinimos = -1;
        QStringView clase = u"";
    };

    void espera(const Esperado& esperado)
    {
        EXPECT_EQ(m_filtros.bajoMinimos, esperado.bajoMinimos);
        EXPECT_EQ(m_filtros.proveedor, esperado.proveedor);
        EXPECT_EQ(m_filtros.seccion, esperado.seccion);
        EXPECT_EQ(m_filtros.proveedorBajoMinimos, esperado.proveedorBajoMinimos);
        EXPECT_EQ(m_filtros.claseProducto, esperado.clase);
    }
    /// As if every block had been gone through.
    void llena()
    {
        m_filtros.bajoMinimos = true;
        m_filtros.proveedor = 1;
        m_filtros.seccion = 2;
        m_filtros.proveedorBajoMinimos = 3;
        m_filtros.claseProducto = u"V"_s;
    }
    const OpcionDeClase& opcion(const QString& control)
    {
        for (const OpcionDeClase& opcion : opcionesDeClase()) {
            if (opcion.control == control)
                return opcion;
        }
        throw std::runtime_error{control.toStdString()};
    }

    EntornoDatos m_entorno{{}};
    ContextoEjecucion m_contexto{m_entorno};
    Filtros& m_filtros = m_contexto.filtros;
    DecisionFiltrosProductos m_decision{m_contexto};
};

TEST_F(DecisionFiltrosProductosTest, LoadingClearsWhatIsChosenAndKeepsTitleAndMinimum)
{
    llena();
    m_filtros.titulo = u"antes"_s;
    m_decision.carga();
    espera({.bajoMinimos = true});
    EXPECT_EQ(m_filtros.titulo, u"antes"_s);
}

TEST_F(DecisionFiltrosProductosTest, ASupplierSetsItsTitleAndItsFilterAlone)
{
    llena();
    m_decision.elige(Proveedor, elemento(u"Ñandú & Hijos"_s, 9));
    EXPECT_EQ(m_filtros.titulo, u"LISTADO DE PRODUCTOS X PROVEEDOR = Ñandú & Hijos"_s);
    espera({.bajoMinimos = false, .proveedor = 9, .seccion = 2, .proveedorBajoMinimos = 3, .clase = u"V"});
}

TEST_F(DecisionFiltrosProductosTest, ASectionSetsItsTitleAndItsFilterAlone)
{
    llena();
    m_decision.elige(Seccion, elemento(u"Champús"_s, 9));
    EXPECT_EQ(m_filtros.titulo, u"LISTADO DE PRODUCTOS X SECCIONES = Champús"_s);
    espera({.bajoMinimos = false, .proveedor = 1, .seccion = 9, .proveedorBajoMinimos = 3, .clase = u"V"});
}

TEST_F(DecisionFiltrosProductosTest, ASupplierOfThoseUnderTheirMinimumHasATitleJoinedWithoutABlank)
{
    m_decision.carga();
    m_decision.elige(BajoMinimo, elemento(u"Aqua"_s, 9));
    EXPECT_EQ(m_filtros.titulo, u"LISTADO DE PRODUCTOS BAJO MINIMOX Proveedor = Aqua"_s);
    espera({.bajoMinimos = true, .proveedorBajoMinimos = 9});
}

TEST_F(DecisionFiltrosProductosTest, TheButtonForAllSuppliersGivesNone)
{
    m_decision.elige(Proveedor, elemento(u"Todos los Proveedores"_s, -1));
    m_decision.acepta(Proveedor);
    EXPECT_EQ(m_filtros.titulo, u"LISTADO DE PRODUCTOS X PROVEEDOR = Todos los Proveedores"_s);
    espera({});
}

TEST_F(DecisionFiltrosProductosTest, EachClassHasItsTitleAndIsNotUnderTheMinimum)
{
    const std::tuple<QString, QString, QString, QString> casos[] = {
        {u"optAmbos"_s, u"Ambos"_s, u"A"_s, u"LISTADO X TIPO DE PRODUCTOS = Ambos"_s},
        {u"optCInt"_s, u"Producto de Consumo Interno"_s, u"CI"_s, u"LISTADO X TIPO DE PRODUCTOS = Productos de Consumo Interno"_s},
        {u"optTodos"_s, u"Todos los Productos"_s, u""_s, u"LISTADO X TIPO DE PRODUCTOS = Todos"_s},
        {u"optVenta"_s, u"Producto de Venta"_s, u"V"_s, u"LISTADO X TIPO DE PRODUCTOS = Productos de Venta"_s},
    };
    for (const auto& [control, leyenda, clase, titulo] : casos) {
        llena();
        m_decision.eligeClase(opcion(control));
        EXPECT_EQ(opcion(control).leyenda, leyenda);
        EXPECT_EQ(m_filtros.titulo, titulo);
        espera({.bajoMinimos = false, .proveedor = 1, .seccion = 2, .proveedorBajoMinimos = 3, .clase = clase});
    }
}

TEST_F(DecisionFiltrosProductosTest, EachAcceptButtonClearsTheFiltersOfTheOthers)
{
    const std::pair<BloqueProductos, Esperado> casos[] = {
        {Proveedor, {.proveedor = 1}},
        {Seccion, {.seccion = 2}},
        {Tipo, {.clase = u"V"}},
        {BajoMinimo, {.bajoMinimos = true, .proveedorBajoMinimos = 3}},
    };
    for (const auto& [bloque, esperado] : casos) {
        llena();
        m_filtros.bajoMinimos = !esperado.bajoMinimos;
        m_decision.acepta(bloque);
        espera(esperado);
    }
}

TEST_F(DecisionFiltrosProductosTest, OfTwoChoicesTheButtonOfTheLastClearsTheFirst)
{
    m_decision.carga();
    m_decision.elige(Seccion, elemento(u"Champús"_s, 4));
    m_decision.elige(Proveedor, elemento(u"Aqua"_s, 9));
    m_decision.acepta(Proveedor);
    espera({.proveedor = 9});
}

TEST_F(DecisionFiltrosProductosTest, UnderTheMinimumAloneIsItsAcceptButtonWithoutAChoice)
{
    m_decision.carga();
    m_decision.acepta(BajoMinimo);
    espera({.bajoMinimos = true});
}

TEST_F(DecisionFiltrosProductosTest, ProductsSoldTakeAnEmployeeAndASupplier)
{
    DecisionProductosVendidos decision{m_contexto};
    decision.eligeEmpleado(3);
    decision.eligeProveedor(9);
    EXPECT_FALSE(m_contexto.FiltroAceptado);
    decision.acepta();
    EXPECT_EQ(m_filtros.empleado, 3);
    EXPECT_EQ(m_filtros.proveedor, 9);
    EXPECT_TRUE(m_contexto.FiltroAceptado);
}

} // namespace
} // namespace kestrane
