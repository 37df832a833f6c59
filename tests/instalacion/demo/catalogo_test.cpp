#include "instalacion/demo/mes_de_cada_sabor.h"

#include <map>
#include <set>

namespace kestrane::demo::pruebas {
namespace {

KESTRANE_CADA_SABOR(CatalogoDeLaDemo);

TEST_P(CatalogoDeLaDemo, SizesAndColoursStandInTheirFlavoursAlone)
{
    std::map<int, std::set<QString>> variantes;
    const auto tallas = codigos(filas(tablas::Tallas));
    const auto colores = codigos(filas(tablas::Colorestextil));
    for (const Fila& variante : filas(tablas::Productostextil)) {
        variantes[variante.entero("codigopadre")].insert(variante.texto("codigohijo"));
        EXPECT_TRUE(tallas.contains(variante.entero("talla")));
        EXPECT_TRUE(colores.contains(variante.entero("color")));
    }
    EXPECT_EQ(!variantes.empty(), datos().oficio == Oficio::TallaColor);
    for (const Fila& linea : filas(tablas::DetalleFactura)) {
        const QString hijo = linea.nulo("codproductotextil") ? QStringLiteral("-1") : linea.texto("codproductotextil");
        const bool deVariante = linea.texto("tipo_venta") == u"P" && variantes.contains(linea.entero("codigo"));
        EXPECT_EQ(deVariante, hijo != u"-1");
        EXPECT_TRUE(!deVariante || variantes[linea.entero("codigo")].contains(hijo));
    }
}

} // namespace
} // namespace kestrane::demo::pruebas
