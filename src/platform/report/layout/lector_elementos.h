#pragma once

#include "platform/report/layout/ambito_seccion.h"

namespace kestrane::report {

/// The element of a band that `xml` describes; `alto` is the band's. Error when it sticks out of the band.
[[nodiscard]] Elemento leeElemento(const ElementoXml& xml, const AmbitoSeccion& ambito, double alto);

/// A new element of the kind T with its box and its condition.
template<class T>
[[nodiscard]] T elementoEn(const ComunElemento& comun)
{
    T nuevo;
    static_cast<ComunElemento&>(nuevo) = comun;
    return nuevo;
}

/// The <si> of a text or of a column: the condition, and the style with the alignment that `alinea` of `xml` gives.
[[nodiscard]] std::vector<EstiloCondicional> leeVariantes(const ElementoXml& xml, const AmbitoSeccion& ambito);

} // namespace kestrane::report
