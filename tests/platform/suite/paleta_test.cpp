#include "platform/suite/paleta.h"

#include "platform/suite/apariencia.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

using namespace kestrane;

namespace {

// Contrast as the Web Content Accessibility Guidelines 2.1 define it.

double canalLineal(Rgb color, int bits)
{
    const double canal = (color >> bits & 0xff) / 255.0;
    return canal <= 0.04045 ? canal / 12.92 : std::pow((canal + 0.055) / 1.055, 2.4);
}

double luminancia(Rgb color)
{
    return 0.2126 * canalLineal(color, 16) + 0.7152 * canalLineal(color, 8) + 0.0722 * canalLineal(color, 0);
}

double contraste(Rgb uno, Rgb otro)
{
    const auto [oscuro, claro] = std::minmax({luminancia(uno), luminancia(otro)});
    return (claro + 0.05) / (oscuro + 0.05);
}

struct Pareja
{
    const char* nombre;
    Rgb encima;
    Rgb fondo;
};

std::vector<Pareja> textos(const Paleta& p)
{
    std::vector<Pareja> parejas{
        {"text, window", p.texto, p.fondo},
        {"text, small window", p.texto, p.fondoPequeno},
        {"text, card", p.texto, p.tarjeta},
        {"text, field", p.texto, p.campo},
        {"text, second row", p.texto, p.filaAlterna},
        {"text, marked", p.texto, p.resalte},
        {"soft text, window", p.textoSuave, p.fondo},
        {"soft text, small window", p.textoSuave, p.fondoPequeno},
        {"soft text, card", p.textoSuave, p.tarjeta},
        {"soft text, field", p.textoSuave, p.campo},
        {"warning, window", p.aviso, p.fondo},
        {"warning, small window", p.aviso, p.fondoPequeno},
        {"warning, card", p.aviso, p.tarjeta},
        {"link, window", p.foco, p.fondo},
        {"link, small window", p.foco, p.fondoPequeno},
        {"link, card", p.foco, p.tarjeta},
        {"selection", p.textoSeleccion, p.seleccion},
        {"tool tip", p.fondo, p.texto},
    };
    for (const auto& [nombre, fondo, texto] : {Pareja{"button", p.boton, p.textoBoton},
                                               {"accent", p.acento, p.textoAcento},
                                               {"cmdListados", p.listados, p.textoBoton}}) {
        parejas.push_back({nombre, texto, fondo});
        parejas.push_back({nombre, texto, mezclado(fondo, texto, PorCientoEncima)});
        parejas.push_back({nombre, texto, mezclado(fondo, texto, PorCientoPulsado)});
    }
    for (const Rgb panel : p.paneles)
        parejas.push_back({"tile", p.texto, panel});
    return parejas;
}

std::vector<Pareja> trazos(const Paleta& p)
{
    std::vector<Pareja> parejas;
    for (const Rgb fondo : {p.fondo, p.fondoPequeno, p.tarjeta, p.campo}) {
        parejas.push_back({"border", p.borde, fondo});
        parejas.push_back({"focus ring", p.foco, fondo});
        parejas.push_back({"mark of a box", p.acento, fondo});
    }
    parejas.push_back({"tick", p.textoAcento, p.acento});
    parejas.push_back({"focus ring, button", p.foco, p.boton});
    return parejas;
}

void exige(qint32 tema, const std::vector<Pareja>& parejas, double minimo)
{
    for (const Pareja& pareja : parejas)
        EXPECT_GE(contraste(pareja.encima, pareja.fondo), minimo) << "theme " << tema << ": " << pareja.nombre;
}

/// How far two colours lie apart: the greatest difference of a channel.
int distancia(Rgb uno, Rgb otro)
{
    int mayor = 0;
    for (const int bits : {16, 8, 0})
        mayor = std::max(mayor, std::abs(int(uno >> bits & 0xff) - int(otro >> bits & 0xff)));
    return mayor;
}

} // namespace

TEST(PaletaTest, TheContrastIsThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(contraste(0x000000, 0xffffff), 21);
    EXPECT_DOUBLE_EQ(contraste(0xffffff, 0xffffff), 1);
    EXPECT_NEAR(contraste(0x777777, 0xffffff), 4.48, 0.005); // the well-known grey that just fails
}

TEST(PaletaTest, TextsAreReadableOnEveryBackInEveryTheme)
{
    for (const qint32 tema : Temas)
        exige(tema, textos(paletaDe(tema)), 4.5);
}

TEST(PaletaTest, TheThemeOfHighContrastHasTheEnhancedOne)
{
    exige(TemaAltoContraste, textos(paletaDe(TemaAltoContraste)), 7);
    exige(TemaAltoContraste, trazos(paletaDe(TemaAltoContraste)), 7);
}

TEST(PaletaTest, BordersAndFocusRingsAreSeenInEveryTheme)
{
    for (const qint32 tema : Temas)
        exige(tema, trazos(paletaDe(tema)), 3);
}

TEST(PaletaTest, TheFourPanelColoursOfAThemeAreToldApart)
{
    for (const qint32 tema : Temas) {
        const auto& paneles = paletaDe(tema).paneles;
        for (std::size_t i = 0; i < paneles.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_GE(distancia(paneles[i], paneles[j]), 20) << "theme " << tema << ": " << i << ", " << j;
        }
    }
}

TEST(PaletaTest, EachThemeHasABackOfItsOwn)
{
    for (const qint32 tema : Temas) {
        for (const qint32 otro : Temas)
            EXPECT_EQ(paletaDe(tema).fondo == paletaDe(otro).fondo, tema == otro) << tema << ", " << otro;
    }
}

TEST(PaletaTest, ANumberThatIsNoThemeGivesTheFirst)
{
    for (const qint32 tema : {0, 5, -1, std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()})
        EXPECT_EQ(&paletaDe(tema), &paletaDe(1)) << tema;
}

TEST(PaletaTest, AMixtureLiesBetweenItsTwoColours)
{
    EXPECT_EQ(mezclado(0x000000, 0xffffff, 0), 0x000000U);
    EXPECT_EQ(mezclado(0x000000, 0xffffff, 100), 0xffffffU);
    EXPECT_EQ(mezclado(0x0064c8, 0xc86400, 50), 0x646464U); // 0, 100, 200 half-way to 200, 100, 0
}
