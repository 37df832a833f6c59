#include "instalacion/demo/vales.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr std::size_t Cajon = 400; // older slips have been lost

} // namespace

void Vales::emite(const Venta& venta, Fecha fecha, Dinero importe)
{
    if (m_vales.size() % 5 != 3)
        m_pendientes.push_back(m_vales.size()); // the others lie in a drawer at home
    if (m_pendientes.size() > Cajon)
        m_pendientes.pop_front();
    m_vales.push_back({venta.numero, venta.numeroTienda, venta.cliente, fecha, importe, 0});
}

bool Vales::gasta(const Venta& venta)
{
    const auto cabe = [&](std::size_t i) {
        const Vale& vale = m_vales[i];
        const bool suyo = vale.tienda == venta.numeroTienda && vale.cliente == venta.cliente;
        return suyo && vale.importe <= venta.total() && vale.desde < venta.fecha;
    };
    const auto cual = std::ranges::find_if(m_pendientes, cabe);
    if (cual == m_pendientes.end())
        return false;
    m_vales[*cual].aplicado = venta.numero;
    m_pendientes.erase(cual);
    return true;
}

void Vales::escribe(Destino& destino) const
{
    for (const Vale& vale : m_vales)
        destino.fila(tablas::ValesDescuento,
                     {{vale.factura, vale.desde, vale.importe.enEuros(), vale.aplicado > 0 ? Valor{vale.aplicado} : Valor{}}});
}

} // namespace kestrane::demo
