#include "platform/report/layout/lector_secciones.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lector_elementos.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

/// The room for bands on a page of the report: all but the margins and the headings that always show. None of a roll.
double altoDeCuerpo(const Layout& layout)
{
    const Pagina& pagina = layout.pagina;
    double alto = pagina.tamano.height() - pagina.margenes.top() - pagina.margenes.bottom();
    for (const Seccion* seccion : {&layout.cabeceraPagina, &layout.piePagina}) {
        for (const Banda& banda : *seccion)
            alto -= banda.mostrar.vacia() ? banda.alto : 0;
    }
    return alto;
}

/// What is higher than a page would be painted over its edge.
void compruebaAlto(double alto, const LugarLayout& lugar, const Layout& layout)
{
    constexpr double Holgura = 0.001;
    if (!layout.pagina.esRollo() && alto > altoDeCuerpo(layout) + Holgura)
        fallaLayout(lugar, u"la banda es más alta que el sitio que deja la página: caben %1 mm."_s.arg(
                               std::max(altoDeCuerpo(layout), 0.0)));
}

Banda leeBanda(const ElementoXml& xml, const AmbitoSeccion& ambito)
{
    if (++ambito.mesa.elementos > limites::Elementos)
        fallaLayout(xml.lugar, u"el informe tiene demasiadas bandas: se admiten %1."_s.arg(limites::Elementos));
    Banda banda;
    banda.alto = medidaDe(xml, u"alto", 0);
    compruebaAlto(banda.alto, xml.lugar, ambito.layout);
    banda.mostrar = ambito.expresion(xml, u"mostrar");
    banda.saltoAntes = siNoDe(xml, u"salto", false);
    banda.alPieDePagina = siNoDe(xml, u"al-pie", false);
    banda.linea = xml.lugar.linea;
    for (const ElementoXml& hijo : xml.hijos)
        banda.elementos.push_back(leeElemento(hijo, ambito, banda.alto));
    return banda;
}

} // namespace

Seccion leeSeccion(const ElementoXml* seccion, const AmbitoSeccion& ambito)
{
    Seccion bandas;
    if (seccion == nullptr)
        return bandas;
    for (const ElementoXml& hijo : seccion->hijos) {
        if (hijo.nombre == u"banda") {
            bandas.push_back(leeBanda(hijo, ambito));
            continue;
        }
        for (const ElementoXml& comun : ambito.mesa.partes.bandas(hijo).hijos)
            bandas.push_back(leeBanda(comun, ambito));
    }
    return bandas;
}

} // namespace kestrane::report
