#include "instalacion/demo/mostrador.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr std::array cicloAnuladas{Anulacion::NumeroNegativo, Anulacion::Marcada, Anulacion::SinFecha,       Anulacion::EnCurso,
                                   Anulacion::Marcada,        Anulacion::Marcada, Anulacion::NumeroNegativo, Anulacion::Marcada};

bool cuenta(Anulacion anulacion)
{
    return anulacion == Anulacion::NumeroNegativo || anulacion == Anulacion::Marcada;
}

} // namespace

bool Mostrador::ocurre(CasoAnulado caso) const
{
    const Catalogo& catalogo = m_negocio.catalogo;
    switch (caso) {
    case CasoAnulado::Bono:
    case CasoAnulado::ConsumoDeBono:
        return !catalogo.serviciosConBono().empty();
    case CasoAnulado::BonoDePack:
    case CasoAnulado::ConsumoDePack:
        return !catalogo.packsConBono().empty();
    case CasoAnulado::Pack:
        return !catalogo.packs().empty();
    case CasoAnulado::PackSpa:
    case CasoAnulado::ConsumoSpa:
        return !catalogo.packsSpa().empty();
    case CasoAnulado::Arreglo:
        return !m_negocio.sabor.arreglos.empty();
    default:
        return true;
    }
}

/// A ticket that ends among the annulled ones leaves hardly anything in the other books. The cases take turns among those that
/// reports read.
bool Mostrador::anula(const Turno& turno, Venta& venta, Cliente* cliente)
{
    if (vieneAGastar(turno, cliente) || !turno.tienda.sucesos.toca(Suceso::Anulada, m_azar))
        return false;
    const Anulacion anulacion = cicloAnuladas[static_cast<std::size_t>(m_anuladas++) % cicloAnuladas.size()];
    const CasoAnulado caso = m_casosAnulados[m_casoAnulado % m_casosAnulados.size()];
    m_casoAnulado += cuenta(anulacion) ? 1 : 0;
    Cliente& quien = cliente != nullptr ? *cliente : *m_negocio.clientela.cualquiera(turno.tienda.numero, turno.dia.fecha);
    if (caso != CasoAnulado::Corriente)
        venta.cliente = quien.codigo;
    if (anulacion == Anulacion::NumeroNegativo || anulacion == Anulacion::SinFecha)
        venta.numero = m_negocio.numeros.anulada--;
    Carrito carrito{m_negocio, turno, venta, m_azar};
    componeAnulada(carrito, quien, caso);
    if (anulacion == Anulacion::SinFecha && !m_negocio.catalogo.packsSpa().empty())
        carrito.packSpa(0).tipo = TipoLinea::SP;
    carrito.grava(m_fisco, caso == CasoAnulado::Profesional);
    paga(turno, venta, nullptr);
    if (caso == CasoAnulado::DelDeposito)
        pagaCon(Deposito, venta); // and the money is given back
    if (caso == CasoAnulado::Debida)
        m_libros.deudas.apuntaAnulada(venta);
    const Fecha cuando = std::min(venta.fecha.masDias(m_azar.porCien(25) ? m_azar.entre(1, 3) : 0), m_negocio.calendario.hoy());
    escribeAnulada(m_negocio.destino, venta, anulacion, cuando);
    return true;
}

void Mostrador::componeAnulada(Carrito& carrito, Cliente& cliente, CasoAnulado caso)
{
    switch (caso) {
    case CasoAnulado::Servicio:
        servicios(carrito, &cliente, 1);
        break;
    case CasoAnulado::Producto:
        articulos(carrito, 1);
        break;
    case CasoAnulado::Compartida:
        componeCompartida(carrito, cliente);
        return;
    case CasoAnulado::Pack:
    case CasoAnulado::PackSpa:
    case CasoAnulado::ConsumoSpa:
        packAnulado(carrito, caso);
        return;
    case CasoAnulado::IngresoEnDeposito:
        carrito.deposito(Dinero::euros(50));
        return;
    case CasoAnulado::Arreglo:
        arregla(carrito, &cliente, 0);
        return;
    case CasoAnulado::Bono:
    case CasoAnulado::ConsumoDeBono:
    case CasoAnulado::BonoDePack:
    case CasoAnulado::ConsumoDePack:
        bonoAnulado(carrito, caso);
        return;
    default:
        corriente(carrito, &cliente);
    }
    if (m_anuladas % 4 == 1)
        carrito.descuenta();
}

/// Something dear enough to be shared.
void Mostrador::componeCompartida(Carrito& carrito, const Cliente& cliente)
{
    constexpr int Intentos = 40;
    for (int i = 0; i < Intentos; ++i) {
        carrito.venta().lineas.clear();
        if (esComercio(m_negocio.sabor))
            articulos(carrito, 1);
        else
            servicios(carrito, &cliente, 1);
        if (carrito.comparte())
            return;
    }
}

void Mostrador::packAnulado(Carrito& carrito, CasoAnulado caso)
{
    const Catalogo& catalogo = m_negocio.catalogo;
    if (caso == CasoAnulado::Pack)
        carrito.pack(m_azar.hasta(static_cast<int>(catalogo.packs().size())), TipoLinea::F);
    else if (caso == CasoAnulado::PackSpa)
        carrito.packSpa(0);
    else
        carrito.servicio(catalogo.packsSpa().front().servicios.front(), TipoLinea::CPSPA);
}

void Mostrador::bonoAnulado(Carrito& carrito, CasoAnulado caso)
{
    const Catalogo& catalogo = m_negocio.catalogo;
    if (caso == CasoAnulado::Bono || caso == CasoAnulado::ConsumoDeBono) {
        const int posicion = m_azar.elige(catalogo.serviciosConBono());
        const int sesiones = catalogo.servicios()[static_cast<std::size_t>(posicion)].datos->sesionesBono;
        carrito.servicio(posicion, caso == CasoAnulado::Bono ? TipoLinea::B : TipoLinea::CB, sesiones);
        if (caso == CasoAnulado::Bono)
            m_libros.bonos.vendeAnulado(carrito.venta(), posicion, -1, sesiones);
        return;
    }
    const int posicion = m_azar.elige(catalogo.packsConBono());
    carrito.pack(posicion, caso == CasoAnulado::BonoDePack ? TipoLinea::BF : TipoLinea::CBF);
    if (caso == CasoAnulado::BonoDePack)
        m_libros.bonos.vendeAnulado(carrito.venta(), -1, posicion,
                                    catalogo.packs()[static_cast<std::size_t>(posicion)].datos->sesionesBono);
}

} // namespace kestrane::demo
