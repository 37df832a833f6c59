#include "instalacion/demo/mostrador.h"

namespace kestrane::demo {

namespace {

constexpr int DiasDeNotas = 40; // older notes have become sales

} // namespace

bool Mostrador::ocurre(CasoNota caso) const
{
    if (!esComercio(m_negocio.sabor))
        return caso == CasoNota::Corriente || caso == CasoNota::Aparcada;
    const bool conBonos = !m_negocio.catalogo.serviciosConBono().empty();
    return (caso != CasoNota::Bono && caso != CasoNota::ConsumoDeBono) || conBonos;
}

void Mostrador::dejaNotas(const Turno& turno)
{
    if (m_negocio.calendario.hoy().diaDeSerie() - turno.dia.fecha.diaDeSerie() > DiasDeNotas)
        return;
    int orden = 0;
    for (int caso = 0; turno.esHoy && caso < static_cast<int>(CasoNota::Cuantos); ++caso) {
        if (ocurre(static_cast<CasoNota>(caso)))
            deja(turno, orden++, static_cast<CasoNota>(caso));
    }
    const int probables = esComercio(m_negocio.sabor) ? 55 : 8;
    if (!turno.esHoy && m_azar.porCien(probables)) {
        const bool aparcada = !esComercio(m_negocio.sabor) || m_azar.porCien(12);
        deja(turno, orden, aparcada ? CasoNota::Aparcada : CasoNota::Corriente);
    }
}

void Mostrador::deja(const Turno& turno, int orden, CasoNota caso)
{
    const Cliente* cliente = m_negocio.clientela.cualquiera(turno.tienda.numero, turno.dia.fecha);
    Venta venta = abre(turno, (m_negocio.calendario.apertura(turno.dia.fecha) + 30) * 60 + orden, cliente);
    --turno.tienda.siguienteTicket; // a note has no ticket's number
    venta.numero = m_negocio.numeros.temporal++;
    Carrito carrito{m_negocio, turno, venta, m_azar};
    componeNota(carrito, *cliente, caso);
    carrito.grava(m_fisco, cliente->profesional);
    paga(turno, venta, nullptr);
    if (caso == CasoNota::DelDeposito)
        pagaCon(Deposito, venta);
    if (caso != CasoNota::Aparcada)
        venta.albaran = m_negocio.numeros.albaran++;
    escribeTemporal(m_negocio.destino, venta);
}

void Mostrador::componeNota(Carrito& carrito, const Cliente& cliente, CasoNota caso)
{
    const auto bono = [&] { return m_azar.elige(m_negocio.catalogo.serviciosConBono()); };
    switch (caso) {
    case CasoNota::Pack:
        carrito.pack(0, TipoLinea::F);
        return;
    case CasoNota::Bono:
        carrito.servicio(bono(), TipoLinea::B, 5);
        return;
    case CasoNota::ConsumoDeBono:
        carrito.servicio(bono(), TipoLinea::CB);
        return;
    default:
        corriente(carrito, &cliente);
    }
    if (caso == CasoNota::Compartida)
        carrito.comparte();
    if (caso == CasoNota::PackAntiguo)
        carrito.articulo(0, 1).tipo = TipoLinea::SP;
}

} // namespace kestrane::demo
