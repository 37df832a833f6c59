#include "instalacion/demo/venta.h"

#include "instalacion/demo/tablas.h"

#include <array>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

/// A kind that was lost is a matter of the first line alone.
enum class PrimerTipo { Suyo, Perdido };

Valor oNulo(const QString& texto)
{
    return texto.isNull() ? Valor{} : Valor{texto};
}

/// Only lines of service must name their repair; the others leave it open now and then.
Valor arreglo(const Linea& linea)
{
    return linea.tipo == TipoLinea::S || linea.codigo % 2 == 0 ? Valor{linea.arreglo} : Valor{};
}

void escribeLineas(Destino& destino, const TablaDemo& tabla, const Venta& venta, PrimerTipo primero)
{
    bool pierde = primero == PrimerTipo::Perdido;
    for (const Linea& linea : venta.lineas) {
        destino.fila(tabla, {{venta.numero, linea.codigo, pierde ? Valor{} : Valor{texto(linea.tipo)}, linea.texto, linea.unidades,
                              linea.precio.enEuros(), linea.unitario.enEuros(), linea.impuesto.enEuros(), linea.impuesto2.enEuros(),
                              static_cast<double>(linea.iva), linea.descuento.enEuros(), linea.nombreEmpleado, linea.empleado,
                              oNulo(linea.codigoVariante), arreglo(linea), oNulo(venta.tienda)}});
        pierde = false;
    }
}

void escribeRepartos(Destino& destino, const Venta& venta)
{
    for (const Linea& linea : venta.lineas) {
        for (const Reparto& parte : linea.reparto)
            destino.fila(tablas::VentasCompartidas, {{venta.numero, linea.codigo, texto(linea.tipo), parte.empleado,
                                                      parte.importe.enEuros(), oNulo(venta.tienda)}});
    }
}

/// Sales without a note hold 0 or nothing, as the programs that wrote them did.
Valor albaran(const Venta& venta)
{
    if (venta.albaran > 0)
        return venta.albaran;
    return venta.numero % 2 == 0 ? Valor{0} : Valor{};
}

Valor caracteristica(const Venta& venta)
{
    return venta.esDevolucion ? Valor{u"DV"_s} : Valor{};
}

} // namespace

const QString& texto(TipoLinea tipo)
{
    static const std::array textos{u"S"_s,   u"B"_s,    u"CB"_s,    u"P"_s,  u"F"_s,   u"BF"_s,
                                   u"CBF"_s, u"PSPA"_s, u"CPSPA"_s, u"SF"_s, u"CSF"_s, u"SP"_s};
    return textos[static_cast<std::size_t>(tipo)];
}

Dinero Venta::total() const
{
    Dinero suma;
    for (const Linea& linea : lineas)
        suma += linea.precio;
    return suma;
}

Dinero Venta::descuento() const
{
    Dinero suma;
    for (const Linea& linea : lineas)
        suma += linea.descuento;
    return suma;
}

void escribeVenta(Destino& destino, const Venta& venta)
{
    destino.fila(tablas::CabeceraFactura,
                 {{venta.numero, venta.fecha, venta.fechaFactura ? Valor{*venta.fechaFactura} : Valor{}, venta.hora,
                   oNulo(venta.tienda), venta.cliente, venta.empleado, qint16{venta.pago}, venta.total().enEuros(),
                   venta.efectivo.enEuros(), venta.tarjeta.enEuros(), venta.descuento().enEuros(),
                   venta.albaran > 0   ? Valor{venta.albaran}
                   : venta.cliente > 0 ? Valor{0}
                                       : Valor{},
                   caracteristica(venta), venta.impuestoIncluido}});
    escribeLineas(destino, tablas::DetalleFactura, venta, PrimerTipo::Suyo);
    escribeRepartos(destino, venta);
}

void escribeAnulada(Destino& destino, const Venta& venta, Anulacion anulacion, Fecha fecha)
{
    const bool sinFecha = anulacion == Anulacion::SinFecha;
    destino.fila(tablas::CabeceraFacturaAnulaciones,
                 {{venta.numero, sinFecha ? Valor{} : Valor{venta.fecha}, fecha, venta.hora, oNulo(venta.tienda), venta.cliente,
                   venta.empleado, qint16{venta.pago}, venta.total().enEuros(), venta.efectivo.enEuros(), venta.tarjeta.enEuros(),
                   venta.descuento().enEuros(), Nulo{}, caracteristica(venta), venta.impuestoIncluido,
                   anulacion == Anulacion::Marcada || sinFecha}});
    escribeLineas(destino, tablas::DetalleFacturaAnulaciones, venta, sinFecha ? PrimerTipo::Perdido : PrimerTipo::Suyo);
    escribeRepartos(destino, venta);
}

void escribeTemporal(Destino& destino, const Venta& venta)
{
    destino.fila(tablas::CabeceraFacturaTemp,
                 {{venta.numero, venta.fecha, albaran(venta), venta.cliente, venta.empleado, qint16{venta.pago}}});
    escribeLineas(destino, tablas::DetalleFacturaTemp, venta, PrimerTipo::Suyo);
    escribeRepartos(destino, venta);
}

} // namespace kestrane::demo
