#include "platform/report/informe_enlazado.h"

#include "platform/report/filas_agrupadas.h"
#include "platform/report/informe_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

std::unique_ptr<FilasInforme> tresFilas(const Layout& layout)
{
    return std::make_unique<FilasAgrupadas>(layout, prueba::copiaNumerada(3), ConfiguracionRegional::espania());
}

TEST(InformeEnlazado, KnowsWhichBandsHaveAFixedHeight)
{
    prueba::LayoutDePrueba prueba;
    prueba.layout.detalle.push_back(prueba.banda(5, u"n"_s));
    prueba.layout.detalle.push_back(prueba.banda(5, u"n"_s));
    prueba.layout.detalle.back().elementos.emplace_back(prueba.crece(u"n"_s, 20));
    prueba.layout.detalle.push_back(prueba.banda(5, u"n"_s));
    Subinforme subinforme;
    subinforme.layout = std::make_shared<const Layout>();
    prueba.layout.detalle.back().elementos.emplace_back(subinforme);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, tresFilas, estilos};
    EXPECT_TRUE(informe.detalle()[0].deAltoFijo);
    EXPECT_FALSE(informe.detalle()[1].deAltoFijo);
    EXPECT_FALSE(informe.detalle()[2].deAltoFijo);
    EXPECT_EQ(informe.detalle()[2].subinformes, 1);
    EXPECT_TRUE(informe.detalle()[2].elementos[1].subinforme->esSubinforme());
}

TEST(InformeEnlazado, StylesOfConditionsFollowTheElementsOwn)
{
    prueba::LayoutDePrueba prueba;
    Texto texto = prueba.texto(u"n"_s);
    Estilo rojo = texto.estilo;
    rojo.color = Qt::red;
    texto.variantes.push_back({prueba.expresion(u"n > 2"_s), rojo});
    Banda banda;
    banda.elementos.emplace_back(texto);
    prueba.layout.detalle.push_back(banda);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, tresFilas, estilos};
    const ElementoEnlazado& elemento = informe.detalle()[0].elementos[0];
    ASSERT_EQ(elemento.estilos.size(), 2U);
    EXPECT_EQ(estilos.estilo(elemento.estilos[1]).color, Qt::red);
    EXPECT_EQ(elemento.condiciones.size(), 1U);
}

TEST(InformeEnlazado, ABarCodesFontIsForThoseWithALegendWhateverTheMachineHas)
{
    prueba::LayoutDePrueba prueba;
    Codigo39 codigo;
    codigo.valor = prueba.expresion(u"n"_s);
    Banda banda;
    banda.elementos.emplace_back(codigo);
    codigo.leyenda = false;
    banda.elementos.emplace_back(codigo);
    prueba.layout.detalle.push_back(banda);
    TablaEstilos estilos;
    const InformeEnlazado informe{prueba.layout, tresFilas, estilos};
    EXPECT_EQ(informe.detalle()[0].elementos[0].estilos.size(), 2U);
    EXPECT_EQ(informe.detalle()[0].elementos[1].estilos.size(), 1U);
}

TEST(InformeEnlazado, AColumnThatIsNotThereIsRefused)
{
    prueba::LayoutDePrueba prueba;
    prueba.layout.pieInforme.push_back(prueba.banda(5, u"precio"_s));
    TablaEstilos estilos;
    EXPECT_THROW((InformeEnlazado{prueba.layout, tresFilas, estilos}), ErrorEjecucion);
}

TEST(InformeEnlazado, SubreportsDoNotNestWithoutEnd)
{
    auto layout = std::make_shared<const Layout>();
    for (int i = 0; i < 6; ++i) {
        Subinforme subinforme;
        subinforme.layout = layout;
        Banda banda;
        banda.elementos.emplace_back(subinforme);
        auto exterior = std::make_shared<Layout>();
        exterior->detalle.push_back(banda);
        layout = exterior;
    }
    TablaEstilos estilos;
    try {
        const InformeEnlazado informe{*layout, tresFilas, estilos};
        FAIL() << "accepted";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), ErrorEjecucion::LayoutIncorrecto);
    }
}

} // namespace
} // namespace kestrane::report
