#include "instalacion/demo/mostrador.h"

#include <algorithm>
#include <iterator>

namespace kestrane::demo {

namespace {

template<class Condicion>
std::vector<int> aptos(const std::vector<int>& posiciones, Condicion condicion)
{
    std::vector<int> suyos;
    std::ranges::copy_if(posiciones, std::back_inserter(suyos), condicion);
    return suyos;
}

} // namespace

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
    const Venta& venta = carrito.venta();
    if (const auto servicio = m_libros.bonos.consumeSpa(cliente.codigo, venta.fecha)) {
        carrito.servicio(*servicio, TipoLinea::CPSPA);
    } else if (Bonos::Bono* bono = m_libros.bonos.vigente(cliente.codigo, venta.fecha)) {
        if (bono->servicio >= 0)
            carrito.servicio(bono->servicio, TipoLinea::CB);
        else
            carrito.pack(bono->pack, TipoLinea::CBF);
        m_libros.bonos.consume(m_negocio.destino, *bono, venta);
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
    if (m_libros.bonos.vigente(cliente.codigo, venta.fecha.masDias(1)) != nullptr)
        return false;
    Sucesos& sucesos = turno.tienda.sucesos;
    const Publico publico = cliente.publico();
    const std::vector<int> conBono =
        aptos(m_negocio.catalogo.serviciosConBono(), [&](int cual) { return m_negocio.catalogo.esPara(publico, cual); });
    if (!conBono.empty() && sucesos.toca(Suceso::VentaBono, m_azar)) {
        const int posicion = m_azar.elige(conBono);
        const int sesiones = m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)].datos->sesionesBono;
        carrito.servicio(posicion, TipoLinea::B, sesiones);
        m_libros.bonos.vende(venta, posicion, -1, sesiones);
        return true;
    }
    const std::vector<int> packs = aptos(m_negocio.catalogo.packsConBono(), [&](int cual) {
        return m_negocio.catalogo.esPara(publico, m_negocio.catalogo.packs()[static_cast<std::size_t>(cual)]);
    });
    if (packs.empty() || !sucesos.toca(Suceso::VentaBonoPack, m_azar))
        return false;
    const int posicion = m_azar.elige(packs);
    carrito.pack(posicion, TipoLinea::BF);
    m_libros.bonos.vende(venta, -1, posicion, m_negocio.catalogo.packs()[static_cast<std::size_t>(posicion)].datos->sesionesBono);
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
        m_libros.bonos.vendeSpa(carrito.venta(), spa[static_cast<std::size_t>(posicion)]);
        return true;
    }
    const std::vector<int> packs = paraEl(m_negocio.catalogo.packs(), cliente);
    if (packs.empty() || !sucesos.toca(Suceso::VentaPack, m_azar))
        return false;
    carrito.pack(m_azar.elige(packs), TipoLinea::F);
    return true;
}

} // namespace kestrane::demo
