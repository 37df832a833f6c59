#pragma once

#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/layout.h"

#include <map>

namespace kestrane::report {

/// The styles of a report by name, those of its shared parts first.
class HojaEstilos
{
public:
    /// Takes in every <estilo> of `raiz`. A style is based on one that is there already, so that there are no circles; one that an
    /// earlier file brought is replaced. Error for a name given twice in `raiz` and for a base that is not there.
    void anade(const ElementoXml& raiz);

    /// The style that the attribute `cual` of `elemento` names, which must be there. Where the attribute is not written, the style
    /// `propio` if there is one, else `siNo`.
    [[nodiscard]] Estilo de(const ElementoXml& elemento, QStringView cual, const QString& propio, const Estilo& siNo = {}) const;

private:
    [[nodiscard]] const Estilo& existente(const QString& nombre, const ElementoXml& pedido) const;

    std::map<QString, Estilo> m_estilos;
};

} // namespace kestrane::report
