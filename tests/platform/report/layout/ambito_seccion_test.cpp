#include "platform/report/layout/ambito_seccion.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(AmbitoSeccion, ExpresionesConElNivelYElTituloDelSitio)
{
    HojaEstilos estilos;
    const PartesComunes partes{ElementoXml{}, {}, estilos};
    MesaLectura mesa{estilos, partes};
    Layout layout;
    layout.titulo = u"Tallas"_s;
    layout.grupos.resize(2);
    layout.grupos[1].nombre = u"dia"_s;
    const AmbitoSeccion ambito{mesa, layout, 100, 1};
    (void)ambito.analiza(u"suma(a) + suma(a; dia)"_s, {});
    ASSERT_EQ(layout.agregados.size(), 2U);
    EXPECT_EQ(layout.agregados[0].nivel, 1);
    EXPECT_EQ(layout.agregados[1].nivel, 2);

    const ElementoXml xml{u"grupo"_s, nullptr, {u"K_x.rpt"_s, 9}, {{u"por"_s, u"titulo"_s}, {u"mal"_s, u"suma(a)"_s}}};
    EXPECT_TRUE(ambito.expresion(xml, u"otra").vacia());
    EXPECT_EQ((ExpresionEnlazada{ambito.clave(xml, u"por"), {}}.valor(prueba::AmbitoFijo{}, prueba::es())), Valor{u"Tallas"_s});
    EXPECT_EQ(prueba::numeroDeError([&] { return ambito.clave(xml, u"mal"); }), 20001);
}

} // namespace
} // namespace kestrane::report
