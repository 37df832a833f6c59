#include "platform/report/layout/cuerpo_de_pagina.h"

#include "platform/report/layout/soporte.h"

namespace kestrane::report {
namespace {

using namespace Qt::StringLiterals;

TEST(CuerpoDePagina, LoQueDejanLosMargenesYLoQueSaleSiempre)
{
    const QString pagina = u"<pagina papel=\"100x150\" margenes=\"5 10 5 15\"/>"_s; // 125 mm between the margins
    EXPECT_EQ(altoDeCuerpo(prueba::layoutDe(pagina)), 125);
    EXPECT_EQ(altoDeCuerpo(prueba::layoutDe(
                  pagina + u"<cabecera-pagina><banda alto=\"20\"/><banda alto=\"7\" mostrar=\"a &gt; 1\"/></cabecera-pagina>"
                           "<pie-pagina><banda alto=\"5\"/></pie-pagina>"_s)),
              100)
        << "what may not show takes nothing";
}

TEST(CuerpoDePagina, LaCabeceraDeLaTablaSeRepite)
{
    const Layout layout = prueba::layoutDe(u"<pagina papel=\"100x150\" margenes=\"0 0 0 0\"/>"
                                           "<tabla alto=\"8\"><columna titulo=\"A\" valor=\"a\"/></tabla>"_s);
    EXPECT_EQ(altoDeCuerpo(layout), 142);
}

TEST(CuerpoDePagina, ElDeUnRolloEsElDeSuMayorLargo)
{
    EXPECT_EQ(altoDeCuerpo(prueba::layoutDe(u"<rollo ancho=\"80\" margenes=\"4 4 4 6\" largo-maximo=\"300\"/>"_s)), 290);
}

} // namespace
} // namespace kestrane::report
