#include "platform/report/layout/lector_elementos.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lector_informe.h"
#include "platform/report/layout/lectura_atributos.h"
#include "platform/report/layout/limites.h"
#include "platform/report/layout/nodo_expresion.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

/// Sums of rounded millimetres.
constexpr double Holgura = 0.05;

/// How large an element is that does not say it.
enum class SinMedida { HastaElBorde, Nada };

class LectorElemento
{
public:
    LectorElemento(const ElementoXml& xml, const AmbitoSeccion& ambito, double altoBanda)
        : m_xml{xml}
        , m_ambito{ambito}
        , m_altoBanda{altoBanda}
    {
    }

    [[nodiscard]] Elemento texto() const
    {
        auto nuevo = elementoEn<Texto>(comun());
        nuevo.valor = valorDeTexto();
        nuevo.formato = formatoDe(m_xml);
        nuevo.estilo = m_ambito.mesa.estilos.de(m_xml, u"estilo", u"texto"_s);
        nuevo.estilo.horizontal = horizontalDe(m_xml, u"alinea", nuevo.estilo.horizontal);
        nuevo.variantes = leeVariantes(m_xml, m_ambito);
        nuevo.crece = siNoDe(m_xml, u"crece", false);
        return nuevo;
    }

    [[nodiscard]] Elemento linea() const
    {
        auto nueva = elementoEn<Linea>(comun(SinMedida::Nada));
        nueva.grosor = medidaDe(m_xml, u"grosor", nueva.grosor);
        nueva.color = colorDe(m_xml, u"color", nueva.color);
        nueva.hastaElFondo = siNoDe(m_xml, u"hasta-el-fondo", false);
        return nueva;
    }

    [[nodiscard]] Elemento marco() const
    {
        auto nuevo = elementoEn<Marco>(comun());
        nuevo.grosor = medidaDe(m_xml, u"grosor", nuevo.grosor);
        nuevo.color = colorDe(m_xml, u"color", nuevo.color);
        nuevo.relleno = colorDe(m_xml, u"relleno", nuevo.relleno);
        nuevo.hastaElFondo = siNoDe(m_xml, u"hasta-el-fondo", false);
        return nuevo;
    }

    [[nodiscard]] Elemento imagen() const
    {
        const QString* fichero = m_xml.atributo(u"fichero");
        if ((fichero == nullptr) == (m_xml.atributo(u"valor") == nullptr))
            fallaLayout(m_xml.lugar, u"<imagen> ha de llevar «fichero» o «valor», uno de los dos."_s);
        auto nueva = elementoEn<Imagen>(comun());
        nueva.fichero = fichero != nullptr ? expresionLiteral(*fichero, m_xml.lugar) : m_ambito.expresion(m_xml, u"valor");
        return nueva;
    }

    [[nodiscard]] Elemento codigo39() const
    {
        auto nuevo = elementoEn<Codigo39>(comun());
        nuevo.valor = m_ambito.expresion(m_xml, u"valor");
        nuevo.estilo = m_ambito.mesa.estilos.de(m_xml, u"estilo", u"texto"_s);
        nuevo.leyenda = siNoDe(m_xml, u"leyenda", true);
        return nuevo;
    }

    [[nodiscard]] Elemento subinforme() const
    {
        auto nuevo = elementoEn<Subinforme>(comun());
        nuevo.caja.setHeight(0);
        nuevo.titulo = textoDe(m_xml, u"titulo");
        nuevo.layout = std::make_shared<const Layout>(leeSubinforme(m_xml, m_ambito, nuevo.caja.width()));
        return nuevo;
    }

private:
    [[nodiscard]] ComunElemento comun(SinMedida sinMedida = SinMedida::HastaElBorde) const
    {
        const bool hastaElBorde = sinMedida == SinMedida::HastaElBorde || textoDe(m_xml, u"ancho") == u"*";
        const double x = medidaDe(m_xml, u"x", 0);
        const double y = medidaDe(m_xml, u"y", 0);
        const double ancho = medidaDe(m_xml, u"ancho", hastaElBorde ? std::max(0.0, m_ambito.ancho - x) : 0);
        const double alto = medidaDe(m_xml, u"alto", sinMedida == SinMedida::Nada ? 0 : std::max(0.0, m_altoBanda - y));
        if (x + ancho > m_ambito.ancho + Holgura)
            sobresale(u"por la derecha: llega a %1 mm y caben %2."_s, x + ancho, m_ambito.ancho);
        if (y + alto > m_altoBanda + Holgura)
            sobresale(u"por abajo: llega a %1 mm y la banda tiene %2."_s, y + alto, m_altoBanda);
        return {QRectF{x, y, ancho, alto}, m_ambito.expresion(m_xml, u"mostrar")};
    }

    [[noreturn]] void sobresale(const QString& porDonde, double llega, double cabe) const
    {
        fallaLayout(m_xml.lugar, u"<%1> sobresale "_s.arg(m_xml.nombre) + porDonde.arg(llega).arg(cabe));
    }

    [[nodiscard]] Expresion valorDeTexto() const
    {
        const bool hayValor = m_xml.atributo(u"valor") != nullptr;
        if (hayValor == !m_xml.texto.isEmpty())
            fallaLayout(m_xml.lugar, u"<texto> ha de llevar «valor» o un texto dentro, uno de los dos."_s);
        return hayValor ? m_ambito.expresion(m_xml, u"valor") : expresionLiteral(m_xml.texto, m_xml.lugar);
    }

    const ElementoXml& m_xml;
    const AmbitoSeccion& m_ambito;
    double m_altoBanda;
};

struct LecturaDeElemento
{
    QStringView nombre;
    Elemento (LectorElemento::*lee)() const;
};

constexpr LecturaDeElemento Lecturas[] = {
    {u"texto", &LectorElemento::texto},   {u"linea", &LectorElemento::linea},       {u"marco", &LectorElemento::marco},
    {u"imagen", &LectorElemento::imagen}, {u"codigo39", &LectorElemento::codigo39}, {u"subinforme", &LectorElemento::subinforme},
};

} // namespace

std::vector<EstiloCondicional> leeVariantes(const ElementoXml& xml, const AmbitoSeccion& ambito)
{
    std::vector<EstiloCondicional> variantes;
    for (const ElementoXml& si : xml.hijos) {
        Estilo estilo = ambito.mesa.estilos.de(si, u"estilo", {});
        estilo.horizontal = horizontalDe(xml, u"alinea", estilo.horizontal);
        variantes.push_back({ambito.expresion(si, u"condicion"), estilo});
    }
    return variantes;
}

Elemento leeElemento(const ElementoXml& xml, const AmbitoSeccion& ambito, double alto)
{
    if (++ambito.mesa.elementos > limites::Elementos)
        fallaLayout(xml.lugar, u"el informe tiene demasiados elementos: se admiten %1."_s.arg(limites::Elementos));
    const LectorElemento lector{xml, ambito, alto};
    const auto* lectura = std::ranges::find(Lecturas, xml.nombre, &LecturaDeElemento::nombre);
    return (lector.*lectura->lee)();
}

} // namespace kestrane::report
