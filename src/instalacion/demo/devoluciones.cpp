#include "instalacion/demo/devoluciones.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr std::size_t Memoria = 24; // sales remembered per store
constexpr int SeRecuerda = 15;      // percent of sales
constexpr int SiLlevaArticulo = 60; // percent of those with goods

bool devoluble(const Linea& linea)
{
    const bool deDeposito = linea.tipo == TipoLinea::S && linea.codigo == CodigoIngresoDeposito;
    const bool otra = linea.tipo == TipoLinea::CB || linea.tipo == TipoLinea::CBF || linea.tipo == TipoLinea::CSF;
    return !deDeposito && !otra && linea.tipo != TipoLinea::CPSPA && linea.precio >= Dinero{};
}

bool esBono(const Linea& linea)
{
    return linea.tipo == TipoLinea::B || linea.tipo == TipoLinea::BF;
}

/// One unit of several, with its part of the tax.
void dejaUna(Linea& linea)
{
    linea.precio = linea.unitario;
    linea.impuesto = Dinero{static_cast<qint32>(linea.impuesto.cuartos / linea.unidades)};
    linea.impuesto2 = Dinero{};
    linea.unidades = 1;
}

} // namespace

void Vales::emite(int factura, Fecha fecha, Dinero importe)
{
    if (m_vales.size() % 5 != 3)
        m_pendientes.push_back(m_vales.size()); // the others lie in a drawer at home
    m_vales.push_back({factura, fecha, importe, 0});
}

bool Vales::gasta(const Venta& venta)
{
    const auto cabe = [&](std::size_t i) { return m_vales[i].importe <= venta.total() && m_vales[i].desde < venta.fecha; };
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

Devoluciones::Devoluciones(Negocio& negocio, Bonos& bonos, Vales& vales, Azar azar)
    : m_negocio{negocio}
    , m_bonos{bonos}
    , m_vales{vales}
    , m_azar{azar}
    , m_recientes(negocio.tiendas.size())
{
}

void Devoluciones::apunta(const Venta& venta)
{
    auto& suyas = m_recientes[static_cast<std::size_t>(venta.numeroTienda)];
    const bool interesa = venta.total() > Dinero{} && std::ranges::any_of(venta.lineas, devoluble);
    const bool conArticulo = std::ranges::any_of(venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::P; });
    if (!interesa || (suyas.size() >= 4 && !m_azar.porCien(conArticulo ? SiLlevaArticulo : SeRecuerda)))
        return;
    suyas.push_back(venta);
    if (suyas.size() > Memoria)
        suyas.pop_front();
}

bool Devoluciones::devuelve(const Turno& turno, int segundos, Dinero& efectivo)
{
    auto& suyas = m_recientes[static_cast<std::size_t>(turno.tienda.numero)];
    std::erase_if(suyas, [&](const Venta& venta) { return turno.dia.fecha.diaDeSerie() - venta.fecha.diaDeSerie() > 60; });
    if (suyas.size() < 2 || suyas.front().fecha >= turno.dia.fecha)
        return false;
    const auto cual = suyas.begin() + m_azar.hasta(static_cast<int>(suyas.size()) / 2);
    m_venta = std::move(*cual);
    suyas.erase(cual);
    if (!eligeLineas())
        return false;
    Dinero total;
    for (const Linea& linea : m_devueltas)
        total += linea.precio;
    const FormaPago pago = m_venta.pago == Dividido ? Efectivo : m_venta.pago;
    const bool vale = esComercio(m_negocio.sabor) && pago != Deposito && m_negocio.numeros.abono % 2 == 0;
    if (vale)
        m_vales.emite(m_venta.numero, turno.dia.fecha, total);
    if (pago == Deposito)
        m_negocio.clientela.cliente(m_venta.cliente).deposito += total;
    if (pago == Efectivo && !vale)
        efectivo -= total;
    escribe(turno, segundos, pago, total);
    return true;
}

bool Devoluciones::eligeLineas()
{
    m_devueltas.clear();
    const bool deBono = std::ranges::any_of(m_venta.lineas, esBono);
    if (deBono && !m_bonos.cancela(m_venta.numero))
        return false;
    const bool deSpa = std::ranges::any_of(m_venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::PSPA; });
    if (deSpa && !m_bonos.cancelaSpa(m_venta.cliente))
        return false;
    const bool dePack = std::ranges::any_of(m_venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::F; });
    std::ranges::stable_partition(m_venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::P; });
    for (const Linea& linea : m_venta.lineas) {
        if (!devoluble(linea) || (!deBono && !dePack && !m_devueltas.empty() && m_azar.porCien(70)))
            continue;
        m_devueltas.push_back(linea);
        Linea& devuelta = m_devueltas.back();
        const bool varias = devuelta.unidades >= 2 && devuelta.descuento == Dinero{} && m_venta.impuestoIncluido;
        if (varias && m_azar.porCien(60))
            dejaUna(devuelta);
    }
    return !m_devueltas.empty();
}

void Devoluciones::escribe(const Turno& turno, int segundos, FormaPago pago, Dinero total)
{
    const int numero = m_negocio.numeros.abono++;
    Dinero descuento;
    for (const Linea& linea : m_devueltas)
        descuento += linea.descuento;
    const auto parte = [total, pago](FormaPago forma) { return pago == forma ? total.enEuros() : 0.0; };
    m_negocio.destino.fila(tablas::CabeceraAbono,
                           {{numero, m_venta.numero, turno.dia.fecha, horaDe(segundos), m_venta.cliente, qint16{pago},
                             total.enEuros(), parte(Efectivo), parte(Tarjeta), descuento.enEuros(), m_venta.tienda}});
    for (const Linea& linea : m_devueltas) {
        const bool sinSegundo = linea.impuesto2 == Dinero{} && m_azar.porCien(40);
        m_negocio.destino.fila(
            tablas::DetalleAbono,
            {{numero, m_venta.numero, linea.codigo, texto(linea.tipo), linea.texto, linea.unidades, linea.precio.enEuros(),
              linea.unitario.enEuros(), linea.impuesto.enEuros(), sinSegundo ? Valor{} : Valor{linea.impuesto2.enEuros()},
              linea.nombreEmpleado, linea.empleado, linea.codigoVariante.isNull() ? Valor{} : Valor{linea.codigoVariante},
              linea.arreglo, m_venta.tienda}});
    }
}

} // namespace kestrane::demo
