#include "cash/vocabulary/totales_ventas.h"

#include "cash/vocabulary/costes.h"
#include "cash/vocabulary/pagos.h"
#include "cash/vocabulary/tipos_venta.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

FamiliaVenta familiaDe(QStringView tipo, QStringView packSpa)
{
    if (tipo == packSpa)
        return FamiliaVenta::PacksSpa;
    const FamiliaVenta familia = tipoDeVenta(tipo).familia;
    return familia == FamiliaVenta::PacksSpa ? FamiliaVenta::Ninguna : familia;
}

/// The sum of money to which a family adds; none for lines that are no sale of anything.
double* dineroDe(TotalesVentas& totales, FamiliaVenta familia)
{
    switch (familia) {
    case FamiliaVenta::Servicios:
        return &totales.TotalServicios;
    case FamiliaVenta::Productos:
        return &totales.TotalProductos;
    case FamiliaVenta::Packs:
        return &totales.TotalPacks;
    case FamiliaVenta::PacksSpa:
        return &totales.TotalPacksSpa;
    case FamiliaVenta::Ninguna:
        break;
    }
    return nullptr;
}

double costeDeUnidades(Listados& listados, Recordset& linea)
{
    return costeDeLinea(listados, linea) * linea.Fields(u"unidades").doble();
}

} // namespace

bool esIngresoEnDeposito(const Listados& listados, Recordset& linea)
{
    const Valor codigo = linea.Fields(u"codigo");
    return listados.texto(linea.Fields(u"tipo_venta")) == u"S" && !codigo.esNulo() && codigo.entero32() == ServicioDeposito;
}

void sumaLineaVendida(Listados& listados, TotalesVentas& totales, const Valor& pago, Recordset& linea, QStringView packSpa)
{
    if (esIngresoEnDeposito(listados, linea))
        return;
    const QString tipo = listados.texto(linea.Fields(u"tipo_venta"));
    const FamiliaVenta familia = familiaDe(tipo, packSpa);
    double* const dinero = dineroDe(totales, familia);
    if (dinero && entraDinero(pago))
        *dinero += linea.Fields(u"precio").doble();
    if (familia == FamiliaVenta::Servicios)
        totales.UnidadesServicios += tipo == u"B" ? 1 : linea.Fields(u"unidades").doble();
    if (familia == FamiliaVenta::Productos)
        totales.CosteProductos += costeDeUnidades(listados, linea);
}

void restaLineaDevuelta(Listados& listados, TotalesVentas& totales, Recordset& linea, QStringView packSpa)
{
    const FamiliaVenta familia = familiaDe(listados.texto(linea.Fields(u"tipo_venta")), packSpa);
    if (double* const dinero = dineroDe(totales, familia))
        *dinero -= linea.Fields(u"precio").doble();
    if (familia == FamiliaVenta::Servicios)
        totales.UnidadesServicios -= linea.Fields(u"unidades").doble();
    if (familia == FamiliaVenta::Productos)
        totales.CosteProductos -= costeDeUnidades(listados, linea);
}

void juntaServiciosYPacks(TotalesVentas& totales)
{
    totales.TotalServicios = totales.TotalServicios + totales.TotalPacks + totales.TotalPacksSpa;
}

} // namespace kestrane
