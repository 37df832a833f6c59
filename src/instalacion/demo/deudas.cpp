#include "instalacion/demo/deudas.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr int NoPagan = 14;        // percent of debts that nobody pays
constexpr int EnDosPlazos = 30;    // percent of the others
constexpr int PrimerPlazoMax = 45; // days

} // namespace

Deudas::Deudas(Negocio& negocio, Azar azar) : m_negocio{negocio}, m_azar{azar}, m_plazos(negocio.tiendas.size()) {}

void Deudas::apunta(const Venta& venta)
{
    Deuda deuda;
    deuda.numero = m_negocio.numeros.pago++;
    deuda.factura = venta.numero;
    deuda.cliente = venta.cliente;
    deuda.empleado = venta.empleado;
    deuda.numeroTienda = venta.numeroTienda;
    deuda.importe = m_azar.porCien(60) ? venta.total() : Dinero{std::max(1, venta.total().cuartos / 2)};
    deuda.fecha = venta.fecha;
    deuda.tienda = venta.tienda;
    m_deudas.push_back(std::move(deuda));
    programa(m_deudas.size() - 1);
}

void Deudas::programa(std::size_t cual)
{
    const Deuda& deuda = m_deudas[cual];
    if (m_azar.porCien(NoPagan))
        return;
    auto& suyos = m_plazos[static_cast<std::size_t>(deuda.numeroTienda)];
    const Fecha primero = deuda.fecha.masDias(m_azar.entre(3, PrimerPlazoMax));
    const bool dos = deuda.importe.cuartos > 40 && m_azar.porCien(EnDosPlazos);
    const Dinero mitad{dos ? deuda.importe.cuartos / 2 : deuda.importe.cuartos};
    suyos.insert({primero, {cual, mitad}});
    if (dos)
        suyos.insert({primero.masDias(m_azar.entre(10, 40)), {cual, deuda.importe - mitad}});
}

Dinero Deudas::cobra(const Turno& turno)
{
    auto& suyos = m_plazos[static_cast<std::size_t>(turno.tienda.numero)];
    if (turno.esHoy && (suyos.empty() || suyos.begin()->first > turno.dia.fecha))
        anticipa(turno);
    Dinero efectivo;
    while (!suyos.empty() && suyos.begin()->first <= turno.dia.fecha) {
        efectivo += paga(suyos.begin()->second, turno);
        suyos.erase(suyos.begin());
    }
    return efectivo;
}

/// Someone pays today, so that the day's report has its block: an old debt, or else one of this very day.
void Deudas::anticipa(const Turno& turno)
{
    auto& suyos = m_plazos[static_cast<std::size_t>(turno.tienda.numero)];
    const auto abierta = [&](const Deuda& deuda) {
        return deuda.numeroTienda == turno.tienda.numero && deuda.pagado < deuda.importe;
    };
    const auto cual = std::ranges::find_if(m_deudas, abierta);
    if (cual == m_deudas.end())
        return;
    const auto lugar = static_cast<std::size_t>(cual - m_deudas.begin());
    std::erase_if(suyos, [lugar](const auto& plazo) { return plazo.second.deuda == lugar; });
    suyos.insert({turno.dia.fecha, {lugar, cual->importe - cual->pagado}});
}

Dinero Deudas::paga(const Plazo& plazo, const Turno& turno)
{
    Deuda& deuda = m_deudas[plazo.deuda];
    deuda.pagado += plazo.importe;
    const int tirada = m_azar.hasta(100);
    const FormaPago forma = tirada < 52                                ? Efectivo
                            : tirada < 84                              ? Tarjeta
                            : tirada < 94 && plazo.importe.cuartos > 8 ? Dividido
                                                                       : Bizum;
    Dinero efectivo = forma == Efectivo ? plazo.importe : Dinero{};
    if (forma == Dividido)
        efectivo = Dinero{plazo.importe.cuartos / 2};
    const Dinero tarjeta = forma == Tarjeta || forma == Dividido ? plazo.importe - efectivo : Dinero{};
    m_negocio.destino.fila(tablas::DetallePago,
                           {{deuda.numero, turno.dia.fecha, plazo.importe.enEuros(), qint16{forma}, efectivo.enEuros(),
                             tarjeta.enEuros(), m_azar.elige(turno.empleados)->codigo, deuda.tienda}});
    return efectivo;
}

void Deudas::escribe() const
{
    for (const Deuda& deuda : m_deudas) {
        const bool saldada = deuda.pagado == deuda.importe;
        m_negocio.destino.fila(tablas::CabeceraPago, {{deuda.numero, deuda.factura, deuda.cliente, deuda.empleado,
                                                       deuda.importe.enEuros(), deuda.fecha, qint16{saldada}, deuda.tienda}});
    }
}

} // namespace kestrane::demo
