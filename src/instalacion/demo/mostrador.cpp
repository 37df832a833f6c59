#include "instalacion/demo/mostrador.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>
#include <iterator>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

template<class Condicion>
std::vector<int> aptos(const std::vector<int>& posiciones, Condicion condicion)
{
    std::vector<int> suyos;
    std::ranges::copy_if(posiciones, std::back_inserter(suyos), condicion);
    return suyos;
}

constexpr int RebajadosDe100 = 40; // sales with something reduced, in the sales

} // namespace

Mostrador::Mostrador(Negocio& negocio, Bonos& bonos, Deudas& deudas, Devoluciones& devoluciones, Vales& vales, Almacen& almacen,
                     Agenda& agenda, Azar azar)
    : m_negocio{negocio}
    , m_bonos{bonos}
    , m_deudas{deudas}
    , m_devoluciones{devoluciones}
    , m_vales{vales}
    , m_almacen{almacen}
    , m_agenda{agenda}
    , m_azar{azar}
    , m_lineas{{negocio.sabor.ritmo.lineas.begin(), negocio.sabor.ritmo.lineas.end()}}
{
    for (int caso = 0; caso < static_cast<int>(CasoAnulado::Cuantos); ++caso) {
        if (ocurre(static_cast<CasoAnulado>(caso)))
            m_casosAnulados.push_back(static_cast<CasoAnulado>(caso));
    }
}

Dinero Mostrador::atiende(const Turno& turno, int segundos, Cliente* cliente)
{
    Venta venta = abre(turno, segundos, cliente);
    if (anula(turno, venta, cliente))
        return {};
    pierdeDatos(turno, venta, cliente);
    Carrito carrito{m_negocio, turno, venta, m_azar};
    compone(turno, carrito, cliente);
    remata(turno, carrito, cliente);
    paga(turno, venta, cliente);
    asienta(turno, venta, cliente);
    return venta.efectivo;
}

Venta Mostrador::abre(const Turno& turno, int segundos, const Cliente* cliente)
{
    Venta venta;
    venta.numero = turno.tienda.siguienteTicket++;
    venta.fecha = turno.dia.fecha;
    venta.hora = horaDe(segundos);
    venta.tienda = turno.tienda.nombre;
    venta.numeroTienda = turno.tienda.numero;
    venta.cliente = cliente == nullptr ? 0 : cliente->codigo;
    venta.gusto = cliente == nullptr ? -1 : cliente->gusto;
    const Empleado* suyo = cliente == nullptr ? nullptr : m_negocio.plantilla.habitual(turno.empleados, cliente->gusto);
    const bool fiel = suyo != nullptr && m_azar.porCien(75);
    venta.empleado = (fiel ? suyo : m_azar.elige(turno.empleados))->codigo;
    return venta;
}

/// Rows of older programs: a client whose card is gone, a store without its name.
void Mostrador::pierdeDatos(const Turno& turno, Venta& venta, const Cliente* cliente)
{
    if (cliente != nullptr)
        return;
    if (turno.tienda.sucesos.toca(Suceso::SinFicha, m_azar))
        venta.cliente = m_negocio.clientela.codigoSinFicha();
    else if (turno.tienda.sucesos.toca(Suceso::SinTienda, m_azar))
        venta.tienda = QString{};
}

bool Mostrador::vieneAGastar(const Turno& turno, const Cliente* cliente)
{
    if (cliente == nullptr || !turno.esHoy)
        return false;
    return cliente->deposito > Dinero{} || m_bonos.tiene(cliente->codigo, turno.dia.fecha);
}

void Mostrador::compone(const Turno& turno, Carrito& carrito, Cliente* cliente)
{
    if (rara(turno, carrito, cliente))
        return;
    if (cliente != nullptr && cliente->deposito > Dinero{} && (turno.esHoy || m_azar.porCien(50))) {
        gastaDeposito(carrito, *cliente);
        return;
    }
    if (cliente != nullptr && especial(turno, carrito, *cliente))
        return;
    if (turno.tienda.sucesos.toca(Suceso::Arreglo, m_azar))
        arregla(carrito, cliente, m_azar.hasta(static_cast<int>(m_negocio.sabor.arreglos.size())));
    else
        corriente(carrito, cliente);
}

/// What the client's deposit pays for, if anything does.
void Mostrador::gastaDeposito(Carrito& carrito, const Cliente& cliente)
{
    constexpr int Intentos = 60;
    if (esComercio(m_negocio.sabor))
        articulos(carrito, m_lineas.gira(m_azar) + 1);
    else
        corriente(carrito, &cliente);
    carrito.limita(cliente.deposito);
    for (int i = 0; i < Intentos && carrito.venta().total() > cliente.deposito; ++i) {
        carrito.venta().lineas.clear();
        articulos(carrito, 1);
    }
}

/// The tickets that puzzle: an opened drawer without lines, a return rung up as a sale.
bool Mostrador::rara(const Turno& turno, Carrito& carrito, const Cliente* cliente)
{
    if (vieneAGastar(turno, cliente))
        return false;
    Sucesos& sucesos = turno.tienda.sucesos;
    if (sucesos.toca(Suceso::SinLineas, m_azar))
        return true;
    if (!sucesos.toca(Suceso::ComoVenta, m_azar))
        return false;
    carrito.articulo(m_negocio.catalogo.sorteaArticulo(turno.dia.fecha, m_azar), -1);
    carrito.venta().esDevolucion = true;
    return true;
}

bool Mostrador::especial(const Turno& turno, Carrito& carrito, Cliente& cliente)
{
    if ((turno.esHoy || m_azar.porCien(80)) && consume(carrito, cliente))
        return true;
    if (turno.tienda.sucesos.toca(Suceso::Encargo, m_azar)) {
        encarga(carrito);
        return true;
    }
    if (turno.tienda.sucesos.toca(Suceso::IngresoDeposito, m_azar)) {
        constexpr std::array importes{40, 50, 50, 60, 100, 150};
        const Dinero importe = Dinero::euros(m_azar.elige(importes));
        carrito.deposito(importe);
        cliente.deposito += importe;
        if (m_azar.porCien(30))
            corriente(carrito, &cliente);
        return true;
    }
    return vendeBono(turno, carrito, cliente) || vendePack(turno, carrito, cliente);
}

/// Some orders are as long as a list of debts can just show, others are longer.
void Mostrador::encarga(Carrito& carrito)
{
    constexpr qsizetype Entero = 255;
    if (m_encargos++ % 2 == 0)
        carrito.encargo(Entero - 2, Entero);
    else
        carrito.encargo(Entero + 1, 2 * Entero);
    carrito.venta().aCuenta = true;
}

/// A session of a bono or of a spa pack, with something more now and then.
bool Mostrador::consume(Carrito& carrito, const Cliente& cliente)
{
    Venta& venta = carrito.venta();
    if (const auto servicio = m_bonos.consumeSpa(cliente.codigo, venta.fecha)) {
        carrito.servicio(*servicio, TipoLinea::CPSPA);
    } else if (Bonos::Bono* bono = m_bonos.vigente(cliente.codigo, venta.fecha)) {
        if (bono->servicio >= 0)
            carrito.servicio(bono->servicio, TipoLinea::CB);
        else
            carrito.pack(bono->pack, TipoLinea::CBF);
        m_bonos.consume(m_negocio.destino, *bono, venta);
    } else {
        return false;
    }
    if (m_azar.porCien(25))
        servicios(carrito, &cliente, 1);
    return true;
}

bool Mostrador::vendeBono(const Turno& turno, Carrito& carrito, const Cliente& cliente)
{
    const Venta& venta = carrito.venta();
    if (m_bonos.vigente(cliente.codigo, venta.fecha.masDias(1)) != nullptr)
        return false;
    Sucesos& sucesos = turno.tienda.sucesos;
    const Publico publico = cliente.publico();
    const std::vector<int> conBono =
        aptos(m_negocio.catalogo.serviciosConBono(), [&](int cual) { return m_negocio.catalogo.esPara(publico, cual); });
    if (!conBono.empty() && sucesos.toca(Suceso::VentaBono, m_azar)) {
        const int posicion = m_azar.elige(conBono);
        const int sesiones = m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)].datos->sesionesBono;
        carrito.servicio(posicion, TipoLinea::B, sesiones);
        m_bonos.vende(venta, posicion, -1, sesiones);
        return true;
    }
    const std::vector<int> packs = aptos(m_negocio.catalogo.packsConBono(), [&](int cual) {
        return m_negocio.catalogo.esPara(publico, m_negocio.catalogo.packs()[static_cast<std::size_t>(cual)]);
    });
    if (packs.empty() || !sucesos.toca(Suceso::VentaBonoPack, m_azar))
        return false;
    const int posicion = m_azar.elige(packs);
    carrito.pack(posicion, TipoLinea::BF);
    m_bonos.vende(venta, -1, posicion, m_negocio.catalogo.packs()[static_cast<std::size_t>(posicion)].datos->sesionesBono);
    return true;
}

/// Positions of the packs that are for such a client.
std::vector<int> Mostrador::paraEl(const std::vector<Pack>& packs, const Cliente& cliente) const
{
    std::vector<int> suyos;
    for (std::size_t i = 0; i < packs.size(); ++i) {
        if (m_negocio.catalogo.esPara(cliente.publico(), packs[i]))
            suyos.push_back(static_cast<int>(i));
    }
    return suyos;
}

bool Mostrador::vendePack(const Turno& turno, Carrito& carrito, const Cliente& cliente)
{
    Sucesos& sucesos = turno.tienda.sucesos;
    const auto& spa = m_negocio.catalogo.packsSpa();
    const std::vector<int> deSpa = paraEl(spa, cliente);
    if (!deSpa.empty() && sucesos.toca(Suceso::VentaPackSpa, m_azar)) {
        const int posicion = m_azar.elige(deSpa);
        carrito.packSpa(posicion);
        m_bonos.vendeSpa(carrito.venta(), spa[static_cast<std::size_t>(posicion)]);
        return true;
    }
    const std::vector<int> packs = paraEl(m_negocio.catalogo.packs(), cliente);
    if (packs.empty() || !sucesos.toca(Suceso::VentaPack, m_azar))
        return false;
    carrito.pack(m_azar.elige(packs), TipoLinea::F);
    return true;
}

void Mostrador::corriente(Carrito& carrito, const Cliente* cliente)
{
    const int cuantas = m_lineas.gira(m_azar) + 1;
    const bool extra = m_azar.porCien(m_negocio.sabor.ritmo.conProducto);
    if (esComercio(m_negocio.sabor)) {
        articulos(carrito, cuantas);
        if (extra)
            servicios(carrito, nullptr, 1);
        return;
    }
    servicios(carrito, cliente, cuantas);
    if (extra)
        articulos(carrito, m_azar.porCien(15) ? 2 : 1);
}

void Mostrador::servicios(Carrito& carrito, const Cliente* cliente, int cuantos)
{
    const Publico publico = cliente != nullptr ? cliente->publico() : m_azar.porCien(62) ? Publico::Mujer : Publico::Hombre;
    for (int i = 0; i < cuantos; ++i) {
        const bool habitual = cliente != nullptr && m_azar.porCien(75);
        const int posicion =
            habitual ? cliente->habituales[static_cast<std::size_t>(i % 3)] : m_negocio.catalogo.sorteaServicio(publico, m_azar);
        if (posicion < static_cast<int>(m_negocio.sabor.arreglos.size()))
            arregla(carrito, cliente, posicion);
        else if (!carrito.tiene(TipoLinea::S, m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)].codigo))
            carrito.servicio(posicion);
    }
}

void Mostrador::articulos(Carrito& carrito, int cuantos)
{
    for (int i = 0; i < cuantos; ++i) {
        int posicion = m_negocio.catalogo.sorteaArticulo(carrito.venta().fecha, m_azar);
        for (int intentos = 0; intentos < 3 && carrito.tiene(TipoLinea::P, posicion + 1) && !m_azar.porCien(4); ++intentos)
            posicion = m_negocio.catalogo.sorteaArticulo(carrito.venta().fecha, m_azar);
        carrito.articulo(posicion, carrito.unidadesUsuales(posicion));
    }
}

void Mostrador::remata(const Turno& turno, Carrito& carrito, const Cliente* cliente)
{
    Venta& venta = carrito.venta();
    const bool llana = !venta.lineas.empty() && !venta.esDevolucion;
    if (!esComercio(m_negocio.sabor) && llana)
        venta.empleado = venta.lineas.front().empleado; // who did the work rings it up
    Sucesos& sucesos = turno.tienda.sucesos;
    const bool rebajado = llana && m_negocio.calendario.hayRebajas(venta.fecha) && m_azar.porCien(RebajadosDe100);
    if (rebajado)
        carrito.descuenta();
    if (llana && !rebajado && sucesos.toca(Suceso::Descuento, m_azar)) {
        carrito.descuenta();
        if (venta.descuento() == Dinero{})
            sucesos.aplaza(Suceso::Descuento);
    }
    if (llana && sucesos.toca(Suceso::Compartida, m_azar) && !carrito.comparte())
        sucesos.aplaza(Suceso::Compartida);
    carrito.grava(m_fisco, cliente != nullptr && cliente->profesional && !venta.esDevolucion);
}

} // namespace kestrane::demo
