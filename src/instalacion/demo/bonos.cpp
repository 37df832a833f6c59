#include "instalacion/demo/bonos.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr int Validez = 180;

} // namespace

Bonos::Bono& Bonos::nuevo(const Venta& venta, int servicio, int pack, int sesiones)
{
    Bono bono;
    bono.numero = m_numeros.bono++;
    bono.factura = venta.numero;
    bono.sesiones = sesiones;
    bono.cliente = venta.cliente;
    bono.servicio = servicio;
    bono.pack = pack;
    bono.alta = venta.fecha;
    bono.hasta = venta.fecha.masDias(bono.numero % 5 == 0 ? Validez / 3 : Validez);
    bono.tienda = venta.tienda;
    return m_bonos.emplace_back(std::move(bono));
}

void Bonos::vende(const Venta& venta, int servicio, int pack, int sesiones)
{
    m_deCliente.insert(venta.cliente, m_bonos.size());
    m_deFactura.insert(venta.numero, m_bonos.size());
    nuevo(venta, servicio, pack, sesiones);
}

void Bonos::vendeAnulado(const Venta& venta, int servicio, int pack, int sesiones)
{
    Bono& bono = nuevo(venta, servicio, pack, sesiones);
    bono.hasta = bono.alta;
}

Bonos::Bono* Bonos::vigente(int cliente, Fecha fecha)
{
    const auto lugar = m_deCliente.constFind(cliente);
    if (lugar == m_deCliente.constEnd())
        return nullptr;
    Bono& bono = m_bonos[*lugar];
    return bono.alta < fecha && bono.vigente(fecha) ? &bono : nullptr;
}

bool Bonos::tiene(int cliente, Fecha fecha)
{
    const auto spa = m_spa.constFind(cliente);
    return (spa != m_spa.constEnd() && spa->alta < fecha) || vigente(cliente, fecha) != nullptr;
}

std::vector<int> Bonos::titulares(const QString& tienda, Fecha fecha) const
{
    std::vector<int> clientes;
    const auto deServicio = [](const Bono& bono) { return bono.servicio >= 0; };
    for (const bool servicios : {true, false}) {
        const auto vale = [&](const Bono& bono) {
            return deServicio(bono) == servicios && bono.tienda == tienda && bono.alta < fecha && bono.vigente(fecha);
        };
        const auto cual = std::find_if(m_bonos.rbegin(), m_bonos.rend(), vale);
        if (cual != m_bonos.rend())
            clientes.push_back(cual->cliente);
    }
    int conSpa = 0;
    for (auto suyo = m_spa.cbegin(); suyo != m_spa.cend(); ++suyo) {
        if (suyo->tienda == tienda && suyo->alta < fecha)
            conSpa = std::max(conSpa, suyo.key()); // the order of a hash is none
    }
    if (conSpa > 0)
        clientes.push_back(conSpa);
    return clientes;
}

void Bonos::consume(Destino& destino, Bono& bono, const Venta& venta)
{
    ++bono.usadas;
    destino.fila(tablas::DetalleBono, {{bono.numero, venta.fecha, venta.lineas.front().empleado, venta.tienda}});
}

bool Bonos::intacto(int factura) const
{
    const auto lugar = m_deFactura.constFind(factura);
    return lugar != m_deFactura.constEnd() && m_bonos[*lugar].usadas == 0;
}

bool Bonos::intactoSpa(int cliente) const
{
    const auto suyo = m_spa.constFind(cliente);
    return suyo != m_spa.constEnd() && suyo->dado == 0;
}

bool Bonos::cancela(int factura)
{
    const auto lugar = m_deFactura.constFind(factura);
    if (lugar == m_deFactura.constEnd() || m_bonos[*lugar].usadas > 0)
        return false;
    m_bonos[*lugar].hasta = m_bonos[*lugar].alta; // lapses at once
    return true;
}

void Bonos::vendeSpa(const Venta& venta, const Pack& pack)
{
    m_spa.insert(venta.cliente, Spa{&pack, 0, venta.fecha, venta.tienda});
}

std::optional<int> Bonos::consumeSpa(int cliente, Fecha fecha)
{
    const auto suyo = m_spa.find(cliente);
    if (suyo == m_spa.end() || suyo->alta >= fecha)
        return std::nullopt;
    const int servicio = suyo->pack->servicios[suyo->dado++];
    if (suyo->dado == suyo->pack->servicios.size())
        m_spa.erase(suyo);
    return servicio;
}

bool Bonos::cancelaSpa(int cliente)
{
    const auto suyo = m_spa.find(cliente);
    if (suyo == m_spa.end() || suyo->dado > 0)
        return false;
    m_spa.erase(suyo);
    return true;
}

void Bonos::escribe(Destino& destino, const Catalogo& catalogo, Fecha hoy) const
{
    for (const Bono& bono : m_bonos) {
        const int servicio = bono.servicio < 0 ? 0 : catalogo.servicios()[static_cast<std::size_t>(bono.servicio)].codigo;
        const int pack = bono.pack < 0 ? 0 : catalogo.packs()[static_cast<std::size_t>(bono.pack)].codigo;
        const bool caducado = !bono.vigente(hoy) || bono.hasta == bono.alta;
        destino.fila(tablas::CabeceraBonos, {{bono.numero, bono.factura, static_cast<qint16>(bono.sesiones), bono.cliente, servicio,
                                              pack, caducado, bono.alta, bono.alta, bono.hasta, bono.tienda}});
    }
}

} // namespace kestrane::demo
