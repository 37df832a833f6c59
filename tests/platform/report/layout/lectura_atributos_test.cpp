#include "platform/report/layout/lectura_atributos.h"

#include "platform/runtime/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

ElementoXml con(std::vector<AtributoXml> atributos)
{
    return {u"texto"_s, nullptr, {}, std::move(atributos)};
}

TEST(LecturaAtributos, LoEscrito)
{
    const ElementoXml xml = con({{u"x"_s, u"12.5"_s},
                                 {u"negrita"_s, u"si"_s},
                                 {u"crece"_s, u"no"_s},
                                 {u"color"_s, u"#102030"_s},
                                 {u"fondo"_s, u"ninguno"_s},
                                 {u"alinea"_s, u"centro"_s},
                                 {u"vertical"_s, u"abajo"_s},
                                 {u"sentido"_s, u"descendente"_s},
                                 {u"margenes"_s, u"1 2 3 4.5"_s},
                                 {u"ancho"_s, u"*"_s}});
    EXPECT_EQ(medidaDe(xml, u"x", 0), 12.5);
    EXPECT_EQ(medidaDe(xml, u"ancho", 70), 70);
    EXPECT_TRUE(siNoDe(xml, u"negrita", false));
    EXPECT_FALSE(siNoDe(xml, u"crece", true));
    EXPECT_EQ(colorDe(xml, u"color", Qt::black), QColor(16, 32, 48));
    EXPECT_FALSE(colorDe(xml, u"fondo", Qt::black).isValid());
    EXPECT_EQ(horizontalDe(xml, u"alinea", Horizontal::Izquierda), Horizontal::Centro);
    EXPECT_EQ(verticalDe(xml, u"vertical", Vertical::Arriba), Vertical::Abajo);
    EXPECT_TRUE(esDescendente(xml));
    EXPECT_EQ(margenesDe(xml, {}), QMarginsF(1, 2, 3, 4.5));
}

TEST(LecturaAtributos, LoQueFalta)
{
    const ElementoXml xml = con({});
    EXPECT_EQ(textoDe(xml, u"letra", u"A"_s), u"A"_s);
    EXPECT_EQ(medidaDe(xml, u"x", 3), 3);
    EXPECT_TRUE(siNoDe(xml, u"negrita", true));
    EXPECT_EQ(horizontalDe(xml, u"alinea", Horizontal::Derecha), Horizontal::Derecha);
    EXPECT_EQ(verticalDe(xml, u"vertical", Vertical::Arriba), Vertical::Arriba);
    EXPECT_FALSE(esDescendente(xml));
    EXPECT_EQ(margenesDe(xml, QMarginsF(1, 1, 1, 1)), QMarginsF(1, 1, 1, 1));
    EXPECT_EQ(formatoDe(xml), FormatoValor{});
}

TEST(LecturaAtributos, Formato)
{
    const ElementoXml xml = con({{u"formato"_s, u"moneda"_s}, {u"decimales"_s, u"3"_s}, {u"cero"_s, u"blanco"_s}});
    EXPECT_EQ(formatoDe(xml), (FormatoValor{Formato::Moneda, 3, true}));
}

} // namespace
} // namespace kestrane::report
