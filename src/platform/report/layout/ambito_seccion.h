#pragma once

#include "platform/report/layout/arbol_xml.h"
#include "platform/report/layout/hoja_estilos.h"
#include "platform/report/layout/partes_comunes.h"

namespace kestrane::report {

/// What the reading of one file keeps for all of its reports, sub-reports included.
struct MesaLectura
{
    const HojaEstilos& estilos;
    const PartesComunes& partes;
    int elementos = 0; ///< put into bands so far: shared parts count each time they are used
};

/// Where bands are being read: in which report, in which of its groups, and how wide.
struct AmbitoSeccion
{
    MesaLectura& mesa;
    Layout& layout;
    double ancho = 0;
    int nivel = 0;        ///< 0 outside the groups
    double reservado = 0; ///< of each page's height, for the table's headings, which are not there yet

    /// The room for bands on a page.
    [[nodiscard]] double altoDeCuerpo() const;

    /// An attribute that holds an expression; the empty one when it is not written.
    [[nodiscard]] Expresion expresion(const ElementoXml& xml, QStringView cual) const;
    [[nodiscard]] Expresion analiza(const QString& texto, const LugarLayout& lugar) const;
    /// The same without sums and pages.
    [[nodiscard]] Expresion clave(const ElementoXml& xml, QStringView cual) const;

private:
    [[nodiscard]] Expresion analiza(const QString& texto, const LugarLayout& lugar, AlcanceExpresion alcance) const;
};

} // namespace kestrane::report
