#include "instalacion/demo/devoluciones.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr std::size_t Memoria = 60; // sales remembered per store
constexpr int PorDia = 4;           // of them
constexpr int PlazoMax = 45;        // days
constexpr int PlazoMin = 2;
constexpr int LoRaro = 35; // percent of returns that are of a kind long not seen
constexpr Dinero MuyBarato = Dinero::euros(2);

bool esBono(const Linea& linea)
{
    return linea.tipo == TipoLinea::B || linea.tipo == TipoLinea::BF;
}

bool esIngreso(const Linea& linea)
{
    return linea.tipo == TipoLinea::S && linea.codigo == CodigoIngresoDeposito;
}

bool esPaquete(const Linea& linea)
{
    return linea.tipo != TipoLinea::S && linea.tipo != TipoLinea::P;
}

/// A part of a line's units, with its part of the price and of the tax.
Linea parte(const Linea& linea, double unidades)
{
    Linea suya = linea;
    suya.unidades = unidades;
    suya.precio = Dinero::euros(linea.unitario.enEuros() * unidades);
    suya.impuesto = Dinero{static_cast<qint32>(linea.impuesto.cuartos * unidades / linea.unidades)};
    suya.impuesto2 = Dinero{};
    return suya;
}

} // namespace

Devoluciones::Devoluciones(Negocio& negocio, Bonos& bonos, Vales& vales, Azar azar)
    : m_negocio{negocio}
    , m_bonos{bonos}
    , m_vales{vales}
    , m_azar{azar}
    , m_recientes(negocio.tiendas.size())
    , m_talonarios(negocio.tiendas.size())
{
}

/// Nobody brings back half a kilo of fish, or a loaf.
bool Devoluciones::devoluble(const Linea& linea) const
{
    if (linea.precio < Dinero{})
        return false;
    if (linea.articulo < 0 || m_negocio.sabor.oficio != Oficio::Alimentacion)
        return true;
    return linea.unitario >= MuyBarato && !m_negocio.catalogo.articulos()[static_cast<std::size_t>(linea.articulo)].porPeso();
}

void Devoluciones::apunta(const Venta& venta)
{
    const auto puede = [this](const Linea& linea) { return devoluble(linea); };
    if (venta.tienda.isNull() || venta.esDevolucion || !std::ranges::any_of(venta.lineas, puede))
        return;
    auto& suyas = m_recientes[static_cast<std::size_t>(venta.numeroTienda)];
    const bool conArticulo = std::ranges::any_of(venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::P; });
    const bool especial = std::ranges::any_of(venta.lineas, [](const Linea& linea) {
        return esPaquete(linea) || esIngreso(linea) || !linea.reparto.empty() || !linea.reparto.empty();
    });
    const int tantas = 1000 * PorDia / m_negocio.sabor.ritmo.ticketsDia;
    const bool interesa =
        especial || venta.pago == Dividido || venta.pago == Deposito || m_azar.porMil(conArticulo ? tantas : tantas / 4);
    if (!interesa && suyas.size() >= 4)
        return;
    suyas.push_back({venta, false});
    if (suyas.size() > Memoria)
        suyas.pop_front();
}

bool Devoluciones::sePuede(const Venta& venta) const
{
    const bool escasos = m_negocio.parametros.tamano == Tamano::Dia; // what was paid before is needed for today
    return std::ranges::all_of(venta.lineas, [&](const Linea& linea) {
        if (esBono(linea))
            return !escasos && m_bonos.intacto(venta.numero);
        if (linea.tipo == TipoLinea::PSPA)
            return !escasos && m_bonos.intactoSpa(venta.cliente);
        return !esIngreso(linea) || (!escasos && m_negocio.clientela.cliente(venta.cliente).deposito >= linea.precio);
    });
}

std::vector<Devoluciones::Rareza> Devoluciones::rarezas(const Recuerdo& recuerdo) const
{
    std::vector<Rareza> suyas;
    suyas.reserve(recuerdo.venta.lineas.size() + 4);
    for (const Linea& linea : recuerdo.venta.lineas)
        suyas.push_back(esIngreso(linea)        ? IngresoEnDeposito
                        : linea.reparto.empty() ? static_cast<Rareza>(linea.tipo)
                                                : Compartida);
    if (recuerdo.venta.pago == Dividido)
        suyas.push_back(PagoDividido);
    if (recuerdo.venta.pago == Deposito)
        suyas.push_back(PagoDelDeposito);
    if (recuerdo.yaDevuelta)
        suyas.push_back(SegundaVez);
    if (recuerdo.venta.albaran > 0)
        suyas.push_back(DeAlbaran);
    return suyas;
}

int Devoluciones::vistas(const Recuerdo& recuerdo) const
{
    return m_vueltas[std::ranges::min(rarezas(recuerdo), {}, [this](Rareza una) { return m_vueltas[una]; })];
}

/// The place of a sale to be returned, or the size of the list.
std::size_t Devoluciones::elige(const std::deque<Recuerdo>& suyas, Fecha hoy)
{
    std::vector<std::size_t> maduras;
    std::vector<std::size_t> conArticulo;
    for (std::size_t i = 0; i < suyas.size(); ++i) {
        const Venta& venta = suyas[i].venta;
        if (venta.fecha.masDias(PlazoMin) > hoy || !sePuede(venta))
            continue;
        maduras.push_back(i);
        if (std::ranges::any_of(venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::P; }))
            conArticulo.push_back(i);
    }
    if (maduras.empty())
        return suyas.size();
    if (m_azar.porCien(LoRaro))
        return *std::ranges::min_element(maduras, {}, [&](std::size_t i) { return vistas(suyas[i]); });
    return m_azar.elige(conArticulo.empty() ? maduras : conArticulo);
}

bool Devoluciones::devuelve(const Turno& turno, int segundos, Dinero& efectivo)
{
    auto& suyas = m_recientes[static_cast<std::size_t>(turno.tienda.numero)];
    const Fecha hoy = turno.dia.fecha;
    std::erase_if(suyas, [hoy](const Recuerdo& uno) { return uno.venta.fecha.masDias(PlazoMax) < hoy; });
    const std::size_t cual = elige(suyas, hoy);
    if (cual == suyas.size())
        return false;
    const auto lugar = suyas.begin() + static_cast<std::ptrdiff_t>(cual);
    for (const Rareza una : rarezas(*lugar))
        ++m_vueltas[una];
    m_venta = lugar->venta;
    separa(*lugar);
    if (lugar->venta.lineas.empty())
        suyas.erase(lugar);
    cancela();
    Dinero total;
    for (const Linea& linea : m_devueltas)
        total += linea.precio;
    const Dinero enMano = liquida(hoy, total);
    if (!m_conVale)
        efectivo -= enMano;
    escribe(turno, segundos, total, enMano);
    return true;
}

/// What goes back and what stays with the client: packs, bonos and their like go back whole, of goods mostly one.
void Devoluciones::separa(Recuerdo& recuerdo)
{
    std::vector<Linea> quedan;
    m_devueltas.clear();
    auto& lineas = recuerdo.venta.lineas;
    const bool entera = std::ranges::any_of(lineas, [](const Linea& linea) { return esPaquete(linea) || esIngreso(linea); });
    std::ranges::stable_partition(lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::P; });
    for (const Linea& linea : lineas) {
        if (!devoluble(linea) || (!entera && !m_devueltas.empty() && m_azar.porCien(70))) {
            quedan.push_back(linea);
            continue;
        }
        const bool varias = linea.unidades >= 2 && linea.descuento == Dinero{} && m_venta.impuestoIncluido;
        if (!varias || m_azar.porCien(30)) {
            m_devueltas.push_back(linea);
            continue;
        }
        m_devueltas.push_back(parte(linea, 1));
        quedan.push_back(parte(linea, linea.unidades - 1));
    }
    const bool algoQueDevolver = std::ranges::any_of(quedan, [this](const Linea& linea) { return devoluble(linea); });
    lineas = algoQueDevolver ? quedan : std::vector<Linea>{};
    recuerdo.yaDevuelta = true;
}

/// What a return undoes in other books. A session that was enjoyed stays used.
void Devoluciones::cancela()
{
    for (const Linea& linea : m_devueltas) {
        if (esBono(linea))
            m_bonos.cancela(m_venta.numero);
        if (linea.tipo == TipoLinea::PSPA)
            m_bonos.cancelaSpa(m_venta.cliente);
        if (esIngreso(linea))
            m_negocio.clientela.cliente(m_venta.cliente).deposito -= linea.precio;
    }
}

/// Pays back as it was paid, half of the returns of a shop by a voucher. Returns the cash part.
Dinero Devoluciones::liquida(Fecha fecha, Dinero total)
{
    if (m_venta.pago == Dividido && total.cuartos < 2)
        m_venta.pago = Efectivo;
    m_conVale = esComercio(m_negocio.sabor) && m_venta.pago != Deposito && m_hechas++ % 2 == 1 && total > Dinero{};
    if (m_conVale)
        m_vales.emite(m_venta, fecha, total);
    if (m_venta.pago == Deposito)
        m_negocio.clientela.cliente(m_venta.cliente).deposito += total;
    if (m_venta.pago == Efectivo)
        return total;
    return m_venta.pago == Dividido ? std::min(m_venta.efectivo, Dinero{total.cuartos / 2}) : Dinero{};
}

/// The books of returns are apart from those of sales, and their numbers are the same ones: each month, and today, a store begins
/// its book at the number of the first ticket that comes back.
int Devoluciones::numera(const Turno& turno)
{
    Talonario& suyo = m_talonarios[static_cast<std::size_t>(turno.tienda.numero)];
    const int mes = turno.esHoy ? -1 : turno.dia.fecha.anio() * 12 + turno.dia.fecha.mes();
    const bool abre = suyo.abierto != mes && m_venta.numero > suyo.ultimo;
    if (abre)
        suyo.abierto = mes;
    const int primero = turno.tienda.numero == 0 && m_negocio.tiendas.size() == 1 ? 1 : (turno.tienda.numero + 1) * 100'000;
    suyo.ultimo = abre ? m_venta.numero : std::max(suyo.ultimo, primero) + 1;
    return suyo.ultimo;
}

void Devoluciones::escribe(const Turno& turno, int segundos, Dinero total, Dinero efectivo)
{
    const int numero = numera(turno);
    Dinero descuento;
    for (const Linea& linea : m_devueltas)
        descuento += linea.descuento;
    const bool conTarjeta = m_venta.pago == Tarjeta || m_venta.pago == Dividido;
    m_negocio.destino.fila(
        tablas::CabeceraAbono,
        {{numero, m_venta.numero, turno.dia.fecha, horaDe(segundos), m_venta.cliente, qint16{m_venta.pago}, total.enEuros(),
          efectivo.enEuros(), conTarjeta ? (total - efectivo).enEuros() : 0.0, descuento.enEuros(), m_venta.tienda}});
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
