#pragma once

#include "pipeline/listados.h"

#include <QStringView>

#include <span>

/// Statements on the reports database whose text holds a number.
namespace kestrane {

/// Runs `principio` + number + `final`: a total in all rows ("update informes set numerico8= "), a line of the summary box ("insert
/// into subinformes (numerico1,texto1) values (" and ",'Caja Inicial:')"). The decimal mark is a point whatever the regional
/// settings; a sign at the end of `principio` and one of the number add up.
void ejecutaConNumero(Listados& listados, QStringView principio, double numero, QStringView final = {});

/// A line of a summary box.
struct LineaResumen
{
    QStringView principio;
    double importe = 0;
    QStringView final;
};

/// Runs the lines whose amount is above 0, in their order.
void escribeResumen(Listados& listados, std::span<const LineaResumen> lineas);

} // namespace kestrane
