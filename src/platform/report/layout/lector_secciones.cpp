#include "platform/report/layout/lector_secciones.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lector_elementos.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

Banda leeBanda(const ElementoXml& xml, const AmbitoSeccion& ambito)
{
    if (++ambito.mesa.elementos > limites::Elementos)
        fallaLayout(xml.lugar, u"el informe tiene demasiadas bandas: se admiten %1."_s.arg(limites::Elementos));
    Banda banda;
    banda.alto = medidaDe(xml, u"alto", 0);
    compruebaAlto(banda.alto, u"la banda es más alta"_s, xml.lugar, ambito);
    banda.mostrar = ambito.expresion(xml, u"mostrar");
    banda.saltoAntes = siNoDe(xml, u"salto", false);
    banda.alPieDePagina = siNoDe(xml, u"al-pie", false);
    banda.linea = xml.lugar.linea;
    for (const ElementoXml& hijo : xml.hijos)
        banda.elementos.push_back(leeElemento(hijo, ambito, banda.alto));
    return banda;
}

} // namespace

void compruebaAlto(double alto, const QString& quien, const LugarLayout& lugar, const AmbitoSeccion& ambito)
{
    constexpr double Holgura = 0.001;
    const double caben = ambito.altoDeCuerpo();
    if (alto > caben + Holgura)
        fallaLayout(lugar, quien + u" que el sitio que deja la página: caben %1 mm."_s.arg(std::max(caben, 0.0)));
}

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
