#include "instalacion/demo/mostrador.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array cicloAnuladas{Anulacion::NumeroNegativo, Anulacion::Marcada, Anulacion::SinFecha,       Anulacion::EnCurso,
                                   Anulacion::Marcada,        Anulacion::Marcada, Anulacion::NumeroNegativo, Anulacion::Marcada};

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
}

Dinero Mostrador::atiende(const Turno& turno, int segundos, Cliente* cliente)
{
    Venta venta = abre(turno, segundos, cliente);
    if (anula(turno, venta, cliente))
        return {};
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
    const auto turnoDe = static_cast<int>(turno.empleados.size());
    const bool fiel = cliente != nullptr && m_azar.porCien(75);
    const int lugar = fiel ? cliente->codigo % turnoDe : m_azar.hasta(turnoDe);
    venta.empleado = turno.empleados[static_cast<std::size_t>(lugar)]->codigo;
    return venta;
}

bool Mostrador::vieneAGastar(const Turno& turno, const Cliente* cliente)
{
    if (cliente == nullptr || !turno.esHoy)
        return false;
    return cliente->deposito > Dinero{} || m_bonos.tiene(cliente->codigo, turno.dia.fecha);
}

/// A ticket that ends among the annulled ones leaves nothing in the other books.
bool Mostrador::anula(const Turno& turno, Venta& venta, Cliente* cliente)
{
    if (vieneAGastar(turno, cliente) || !turno.tienda.sucesos.toca(Suceso::Anulada, m_azar))
        return false;
    const Anulacion anulacion = cicloAnuladas[static_cast<std::size_t>(m_anuladas++) % cicloAnuladas.size()];
    Carrito carrito{m_negocio, turno, venta, m_azar};
    corriente(carrito, cliente);
    if (m_anuladas % 4 == 1)
        carrito.descuenta();
    if (m_anuladas % 3 == 0)
        carrito.comparte();
    if (anulacion == Anulacion::SinFecha && !m_negocio.catalogo.packsSpa().empty())
        carrito.packSpa(0).tipo = TipoLinea::SP;
    carrito.grava(m_fisco, false);
    paga(turno, venta, nullptr);
    if (anulacion == Anulacion::NumeroNegativo || anulacion == Anulacion::SinFecha)
        venta.numero = m_negocio.numeros.anulada--;
    const Fecha cuando = std::min(venta.fecha.masDias(m_azar.porCien(25) ? m_azar.entre(1, 3) : 0), m_negocio.calendario.hoy());
    escribeAnulada(m_negocio.destino, venta, anulacion, cuando);
    return true;
}

void Mostrador::compone(const Turno& turno, Carrito& carrito, Cliente* cliente)
{
    if (rara(turno, carrito, cliente))
        return;
    if (turno.esHoy && cliente != nullptr && cliente->deposito > Dinero{}) {
        corriente(carrito, cliente);
        carrito.limita(cliente->deposito);
        return;
    }
    if (cliente != nullptr && especial(turno, carrito, *cliente))
        return;
    if (turno.tienda.sucesos.toca(Suceso::Arreglo, m_azar))
        arregla(carrito, cliente);
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
    if (turno.tienda.sucesos.toca(Suceso::IngresoDeposito, m_azar)) {
        constexpr std::array importes{40, 50, 50, 60, 100, 150};
        const Dinero importe = Dinero::euros(m_azar.elige(importes));
        carrito.deposito(importe);
        cliente.deposito += importe;
        if (m_azar.porCien(30))
            corriente(carrito, &cliente);
        return true;
    }
    return vendeBono(turno, carrito, cliente) || vendePack(turno, carrito);
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
    const auto& conBono = m_negocio.catalogo.serviciosConBono();
    if (!conBono.empty() && sucesos.toca(Suceso::VentaBono, m_azar)) {
        const int posicion = m_azar.elige(conBono);
        const int sesiones = m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)].datos->sesionesBono;
        carrito.servicio(posicion, TipoLinea::B, sesiones);
        m_bonos.vende(venta, posicion, -1, sesiones);
        return true;
    }
    const auto& packs = m_negocio.catalogo.packsConBono();
    if (packs.empty() || !sucesos.toca(Suceso::VentaBonoPack, m_azar))
        return false;
    const int posicion = m_azar.elige(packs);
    carrito.pack(posicion, TipoLinea::BF);
    m_bonos.vende(venta, -1, posicion, m_negocio.catalogo.packs()[static_cast<std::size_t>(posicion)].datos->sesionesBono);
    return true;
}

bool Mostrador::vendePack(const Turno& turno, Carrito& carrito)
{
    Sucesos& sucesos = turno.tienda.sucesos;
    const auto& spa = m_negocio.catalogo.packsSpa();
    if (!spa.empty() && sucesos.toca(Suceso::VentaPackSpa, m_azar)) {
        const int posicion = m_azar.hasta(static_cast<int>(spa.size()));
        carrito.packSpa(posicion);
        m_bonos.vendeSpa(carrito.venta(), spa[static_cast<std::size_t>(posicion)]);
        return true;
    }
    const auto& packs = m_negocio.catalogo.packs();
    if (packs.empty() || !sucesos.toca(Suceso::VentaPack, m_azar))
        return false;
    carrito.pack(m_azar.hasta(static_cast<int>(packs.size())), TipoLinea::F);
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
        if (!carrito.tiene(TipoLinea::S, m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)].codigo))
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

/// Something is brought to be mended: a job for a workshop and the line that is paid for it.
void Mostrador::arregla(Carrito& carrito, const Cliente* cliente)
{
    const auto cuantos = static_cast<int>(m_negocio.sabor.arreglos.size());
    Linea& linea = carrito.servicio(m_azar.hasta(cuantos));
    linea.arreglo = m_negocio.numeros.arreglo++;
    const QString quien = cliente != nullptr ? juntos(cliente->nombreDePila(), cliente->apellidosJuntos())
                                             : juntos(m_azar.elige(nombresDeMujer()), m_azar.elige(apellidos()));
    const bool reciente = m_negocio.calendario.hoy().diaDeSerie() - carrito.venta().fecha.diaDeSerie() < 12;
    const bool recogido = !reciente || m_azar.porCien(30);
    m_negocio.destino.fila(tablas::ArreglosProductos,
                           {{linea.arreglo, m_negocio.catalogo.sorteaArticulo(carrito.venta().fecha, m_azar) + 1,
                             m_azar.entre(1, 3), quien, telefonoMovil(m_azar), recogido}});
}

void Mostrador::remata(const Turno& turno, Carrito& carrito, const Cliente* cliente)
{
    const Venta& venta = carrito.venta();
    const bool llana = !venta.lineas.empty() && !venta.esDevolucion;
    Sucesos& sucesos = turno.tienda.sucesos;
    if (llana && sucesos.toca(Suceso::Descuento, m_azar)) {
        carrito.descuenta();
        if (venta.descuento() == Dinero{})
            sucesos.aplaza(Suceso::Descuento);
    }
    if (llana && sucesos.toca(Suceso::Compartida, m_azar) && !carrito.comparte())
        sucesos.aplaza(Suceso::Compartida);
    carrito.grava(m_fisco, cliente != nullptr && cliente->profesional && !venta.esDevolucion);
}

} // namespace kestrane::demo
