#include "instalacion/demo/fisco.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

/// The surcharge that goes with each rate.
double recargoDe(int iva)
{
    return iva == 21 ? 5.2 : iva == 10 ? 1.4 : iva == 4 ? 0.5 : 0.0;
}

constexpr double MayorResto = 3.0;

} // namespace

void Fisco::grava(Linea& linea, bool recargo)
{
    const double segundo = recargo ? recargoDe(linea.iva) : 0.0;
    const double base = linea.precio.enEuros() / (1 + (linea.iva + segundo) / 100);
    linea.impuesto2 = Dinero::euros(base * segundo / 100);
    const double exacto = base * linea.iva / 100;
    double& resto = m_resto[static_cast<std::size_t>(linea.iva)];
    const Dinero menor{static_cast<qint32>(exacto * 4)};
    const Dinero mayor = exacto * 4 > menor.cuartos && linea.precio.cuartos >= 8 ? Dinero{menor.cuartos + 1} : menor;
    linea.impuesto = std::clamp(Dinero::euros(exacto + resto), std::min(menor, mayor), std::max(menor, mayor));
    resto = std::clamp(resto + exacto - linea.impuesto.enEuros(), -MayorResto, MayorResto);
}

void Fisco::gravaAparte(Linea& linea, bool recargo)
{
    linea.unitario = Dinero::euros(linea.unitario.enEuros() / (1 + linea.iva / 100.0));
    linea.descuento = std::min(linea.descuento, Dinero{linea.unitario.cuartos / 2});
    const double base = linea.unitario.enEuros() * linea.unidades - linea.descuento.enEuros();
    linea.impuesto = Dinero::euros(base * linea.iva / 100);
    linea.impuesto2 = recargo ? Dinero::euros(base * recargoDe(linea.iva) / 100) : Dinero{};
    linea.precio = Dinero::euros(base) + linea.impuesto + linea.impuesto2;
}

} // namespace kestrane::demo
