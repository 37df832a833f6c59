#include "platform/report/layout/lector_pagina.h"

#include "platform/report/layout/error_layout.h"
#include "platform/report/layout/lectura_atributos.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

namespace {

struct PapelConocido
{
    QStringView nombre;
    double ancho;
    double alto;
};

constexpr PapelConocido Papeles[] = {{u"A3", 297, 420}, {u"A4", 210, 297}, {u"A5", 148, 210}, {u"carta", 215.9, 279.4}};

/// Less than this holds nothing that could be read.
constexpr double Minimo = 5;

QSizeF tamanoDe(const QString& papel)
{
    const auto* conocido = std::ranges::find(Papeles, papel, &PapelConocido::nombre);
    if (conocido != std::ranges::end(Papeles))
        return {conocido->ancho, conocido->alto};
    const qsizetype por = papel.indexOf(u'x');
    return {papel.left(por).toDouble(), papel.mid(por + 1).toDouble()};
}

Pagina hoja(const ElementoXml& xml)
{
    Pagina pagina;
    pagina.tamano = tamanoDe(textoDe(xml, u"papel", u"A4"_s));
    if (textoDe(xml, u"orientacion") == u"apaisada")
        pagina.tamano.transpose();
    pagina.margenes = margenesDe(xml, pagina.margenes);
    pagina.columnas = textoDe(xml, u"columnas", u"1"_s).toInt();
    pagina.separacion = medidaDe(xml, u"separacion", 0);
    return pagina;
}

Pagina rollo(const ElementoXml& xml)
{
    constexpr QMarginsF Estrechos{4, 4, 4, 4};
    Pagina pagina;
    pagina.tamano = {medidaDe(xml, u"ancho", 0), 0};
    pagina.margenes = margenesDe(xml, Estrechos);
    pagina.largoMaximo = medidaDe(xml, u"largo-maximo", pagina.largoMaximo);
    return pagina;
}

void compruebaSitio(const Pagina& pagina, const ElementoXml& xml)
{
    const double alto = pagina.esRollo() ? pagina.largoMaximo : pagina.tamano.height();
    if (anchoDeColumna(pagina) < Minimo || alto - pagina.margenes.top() - pagina.margenes.bottom() < Minimo)
        fallaLayout(xml.lugar, u"los márgenes y las columnas no dejan sitio en el papel."_s);
}

} // namespace

double anchoDeColumna(const Pagina& pagina)
{
    return (pagina.anchoUtil() - (pagina.columnas - 1) * pagina.separacion) / pagina.columnas;
}

Pagina leePagina(const ElementoXml& informe)
{
    const ElementoXml* deHojas = informe.unico(u"pagina");
    const ElementoXml* deRollo = informe.unico(u"rollo");
    if (deHojas != nullptr && deRollo != nullptr)
        fallaLayout(deRollo->lugar, u"hay <pagina> y <rollo>: solo puede haber uno de los dos."_s);
    if (deHojas == nullptr && deRollo == nullptr)
        return {};
    const Pagina pagina = deHojas != nullptr ? hoja(*deHojas) : rollo(*deRollo);
    compruebaSitio(pagina, deHojas != nullptr ? *deHojas : *deRollo);
    return pagina;
}

} // namespace kestrane::report
