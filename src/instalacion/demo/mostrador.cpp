#include "instalacion/demo/mostrador.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr int RebajadosDe100 = 40; // sales with something reduced, in the sales

} // namespace

Mostrador::Mostrador(Negocio& negocio, const Libros& libros, Azar azar)
    : m_negocio{negocio}
    , m_libros{libros}
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
    return cliente->deposito > Dinero{} || m_libros.bonos.tiene(cliente->codigo, turno.dia.fecha);
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
