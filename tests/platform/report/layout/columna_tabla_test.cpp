#include "platform/report/layout/columna_tabla.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

ElementoXml columna(const QString& ancho, const QString& formato = u"general"_s)
{
    return {u"columna"_s, nullptr, {}, {{u"ancho"_s, ancho}, {u"formato"_s, formato}}};
}

ElementoXml tabla(std::vector<ElementoXml> columnas)
{
    return {u"tabla"_s, nullptr, {u"K_x.rpt"_s, 8}, {}, {}, std::move(columnas)};
}

TEST(ColumnaTabla, LasDeEstrellaSeRepartenElResto)
{
    const ElementoXml xml = tabla({columna(u"20"_s), columna(u"*"_s), columna(u"30"_s), columna(u"*"_s)});
    const auto columnas = columnasDe(xml, 190);
    ASSERT_EQ(columnas.size(), 4U);
    EXPECT_EQ(columnas[1].x, 20);
    EXPECT_EQ(columnas[1].ancho, 70);
    EXPECT_EQ(columnas[2].x, 90);
    EXPECT_EQ(columnas[3].x, 120);
    EXPECT_EQ(columnas[3].ancho, 70);
}

TEST(ColumnaTabla, LasQueNoCaben)
{
    EXPECT_EQ(prueba::descripcionDeError([] {
                  return columnasDe(tabla({columna(u"120"_s), columna(u"80"_s)}), 186);
              }),
              u"K_x.rpt, línea 8: las columnas de la tabla miden 200 mm más las de ancho «*», y caben 186."_s);
    EXPECT_EQ(prueba::numeroDeError([] { return columnasDe(tabla({columna(u"184"_s), columna(u"*"_s)}), 186); }), 20001);
    EXPECT_EQ(prueba::numeroDeError([] { return columnasDe(tabla({}), 186); }), 20001);
}

TEST(ColumnaTabla, LasCantidadesVanALaDerecha)
{
    const ElementoXml xml = tabla({columna(u"20"_s, u"moneda"_s), columna(u"20"_s, u"fecha"_s)});
    const auto columnas = columnasDe(xml, 190);
    EXPECT_EQ(columnas[0].alineacion(Estilo{}), Horizontal::Derecha);
    EXPECT_EQ(columnas[1].alineacion(Estilo{}), Horizontal::Izquierda);
    EXPECT_EQ(columnas[0].alineado(Estilo{}).horizontal, Horizontal::Derecha);
}

TEST(ColumnaTabla, LasVecinasNoSeTocan)
{
    const ElementoXml xml = tabla({columna(u"20"_s), columna(u"4"_s)});
    const auto columnas = columnasDe(xml, 190);
    EXPECT_EQ(columnas[0].caja(5), QRectF(1, 0, 18, 5));
    EXPECT_EQ(columnas[1].caja(5), QRectF(20.5, 0, 3, 5));
}

} // namespace
} // namespace kestrane::report
