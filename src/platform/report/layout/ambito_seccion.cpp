#include "platform/report/layout/ambito_seccion.h"

#include "platform/report/layout/cuerpo_de_pagina.h"

namespace kestrane::report {

double AmbitoSeccion::altoDeCuerpo() const
{
    return report::altoDeCuerpo(layout) - reservado;
}

Expresion AmbitoSeccion::expresion(const ElementoXml& xml, QStringView cual) const
{
    const QString* texto = xml.atributo(cual);
    return texto == nullptr ? Expresion{} : analiza(*texto, xml.lugar);
}

Expresion AmbitoSeccion::analiza(const QString& texto, const LugarLayout& lugar) const
{
    return analiza(texto, lugar, AlcanceExpresion::Todo);
}

Expresion AmbitoSeccion::clave(const ElementoXml& xml, QStringView cual) const
{
    return analiza(*xml.atributo(cual), xml.lugar, AlcanceExpresion::SoloColumnas);
}

Expresion AmbitoSeccion::analiza(const QString& texto, const LugarLayout& lugar, AlcanceExpresion alcance) const
{
    QStringList grupos;
    for (const Grupo& grupo : layout.grupos)
        grupos << grupo.nombre;
    ContextoAnalisis contexto{grupos, nivel, layout.agregados, layout.titulo, alcance};
    return analizaExpresion(texto, lugar, contexto);
}

} // namespace kestrane::report
