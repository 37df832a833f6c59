#include "platform/report/layout/hoja_estilos.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lectura_atributos.h"

#include <set>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

/// What `xml` says, on top of `base`.
Estilo estiloSobre(Estilo base, const ElementoXml& xml)
{
    base.familia = textoDe(xml, u"letra", base.familia);
    base.cuerpo = medidaDe(xml, u"cuerpo", base.cuerpo);
    base.negrita = siNoDe(xml, u"negrita", base.negrita);
    base.cursiva = siNoDe(xml, u"cursiva", base.cursiva);
    base.color = colorDe(xml, u"color", base.color);
    base.fondo = colorDe(xml, u"fondo", base.fondo);
    base.horizontal = horizontalDe(xml, u"alinea", base.horizontal);
    base.vertical = verticalDe(xml, u"vertical", base.vertical);
    return base;
}

} // namespace

void HojaEstilos::anade(const ElementoXml& raiz)
{
    std::set<QString> nuevos;
    for (const ElementoXml& xml : raiz.hijos) {
        if (xml.nombre != u"estilo")
            continue;
        const QString nombre = textoDe(xml, u"nombre");
        if (!nuevos.insert(nombre).second)
            fallaLayout(xml.lugar, u"ya hay un estilo «"_s + nombre + u"»."_s);
        const QString* base = xml.atributo(u"basado-en");
        m_estilos[nombre] = estiloSobre(base == nullptr ? Estilo{} : existente(*base, xml), xml);
    }
}

Estilo HojaEstilos::de(const ElementoXml& elemento, QStringView cual, const QString& propio, const Estilo& siNo) const
{
    if (const QString* nombre = elemento.atributo(cual))
        return existente(*nombre, elemento);
    const auto hallado = m_estilos.find(propio);
    return hallado == m_estilos.end() ? siNo : hallado->second;
}

const Estilo& HojaEstilos::existente(const QString& nombre, const ElementoXml& pedido) const
{
    const auto hallado = m_estilos.find(nombre);
    if (hallado == m_estilos.end()) {
        QStringList hay;
        for (const auto& entrada : m_estilos)
            hay << entrada.first;
        fallaLayout(pedido.lugar, u"hasta aquí no hay ningún estilo «%1»; los que hay: %2."_s.arg(nombre, hay.join(u", "_s)));
    }
    return hallado->second;
}

} // namespace kestrane::report
