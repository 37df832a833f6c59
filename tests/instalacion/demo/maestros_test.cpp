#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(MaestrosDeLaDemo);

TEST_P(MaestrosDeLaDemo, EveryLineNamesSomethingOfItsCatalogue)
{
    const auto servicios = codigos(filas(tablas::Servicios));
    const auto productos = codigos(filas(tablas::Productos));
    const auto familias = codigos(filas(tablas::Familias));
    const auto packs = codigos(filas(tablas::CabeceraPackSpa));
    std::map<QString, const std::set<int>*> catalogos{{QStringLiteral("P"), &productos}, {QStringLiteral("PSPA"), &packs}};
    for (const auto* tipo : {u"S", u"B", u"CB", u"CPSPA", u"SF", u"CSF"})
        catalogos[QString::fromUtf16(tipo)] = &servicios;
    for (const auto* tipo : {u"F", u"BF", u"CBF"})
        catalogos[QString::fromUtf16(tipo)] = &familias;
    for (const TablaDemo* tabla : {&tablas::DetalleFactura, &tablas::DetalleAbono}) {
        for (const Fila& linea : filas(*tabla))
            EXPECT_TRUE(catalogos.at(linea.texto("tipo_venta"))->contains(linea.entero("codigo"))) << linea.entero("codigo");
    }
}

TEST_P(MaestrosDeLaDemo, EverySectionAndSupplierExists)
{
    const auto secciones = codigos(filas(tablas::Seccion));
    const auto proveedores = codigos(filas(tablas::Proveedores));
    for (const TablaDemo* tabla : {&tablas::Servicios, &tablas::Productos, &tablas::Familias, &tablas::CabeceraPackSpa}) {
        for (const Fila& fila : filas(*tabla))
            EXPECT_TRUE(secciones.contains(fila.entero("seccion"))) << tabla->nombre.data() << fila.entero("codigo");
    }
    const auto sinProveedor = [&](const Fila& fila) { return !proveedores.contains(fila.entero("proveedor")); };
    EXPECT_EQ(cuantas(filas(tablas::Productos), sinProveedor), 1); // one that no listing finds
    EXPECT_EQ(cuantas(filas(tablas::Proveedores), [](const Fila& fila) { return fila.si("borrar"); }), 1);
}

TEST_P(MaestrosDeLaDemo, PanelsAndListsMeetEachOfTheirCases)
{
    const auto secciones = filas(tablas::Seccion);
    EXPECT_GT(cuantas(secciones, [](const Fila& fila) { return fila.nulo("sec_color"); }), 0);
    EXPECT_GT(cuantas(secciones, [](const Fila& fila) { return !fila.nulo("sec_color") && fila.texto("sec_color") == u"-1"; }), 0);
    EXPECT_EQ(cuantas(secciones, [](const Fila& fila) { return fila.si("borrar"); }), 1);
    std::set<int> muestra;
    for (const Fila& servicio : filas(tablas::Servicios))
        muestra.insert(servicio.entero("mostrarencaja"));
    EXPECT_TRUE(muestra.contains(0) && muestra.contains(-1));
    EXPECT_TRUE(codigos(filas(tablas::Servicios)).contains(2)); // the reserved service
    EXPECT_EQ(filas(tablas::DetallePackSpa).empty(), GetParam() != TipoTienda::Spa);
    int conSigno = 0;
    for (const Fila& nota : filas(tablas::Obserclientes))
        conSigno += nota.texto("observacion").contains(QStringLiteral("¬")) ? 1 : 0;
    EXPECT_GT(conSigno, 0);
}

} // namespace
} // namespace kestrane::demo::pruebas
