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

Deudas::Deuda& Deudas::nueva(const Venta& venta, Dinero importe)
{
    Deuda deuda;
    deuda.numero = m_negocio.numeros.pago++;
    deuda.factura = venta.numero;
    deuda.cliente = venta.cliente;
    deuda.empleado = venta.empleado;
    deuda.numeroTienda = venta.numeroTienda;
    deuda.importe = importe;
    deuda.fecha = venta.fecha;
    deuda.tienda = venta.tienda;
    deuda.aCuenta = venta.aCuenta;
    return m_deudas.emplace_back(std::move(deuda));
}

Dinero Deudas::apunta(const Venta& venta)
{
    const bool entera = venta.aCuenta || m_azar.porCien(60);
    const Dinero abierto = nueva(venta, entera ? venta.total() : Dinero{std::max(1, venta.total().cuartos / 2)}).importe;
    if (!venta.aCuenta)
        programa(m_deudas.size() - 1);
    return abierto;
}

void Deudas::apuntaAnulada(const Venta& venta)
{
    nueva(venta, venta.total()).anulada = true;
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
    return turno.esHoy ? efectivo + pagaParte(turno) : efectivo;
}

/// The last large order that was taken on account, today's left out, is paid in part.
Dinero Deudas::pagaParte(const Turno& turno)
{
    const auto cual = std::find_if(m_deudas.rbegin(), m_deudas.rend(), [&](const Deuda& deuda) {
        return deuda.aCuenta && deuda.pagado < deuda.importe && deuda.numeroTienda == turno.tienda.numero &&
               deuda.fecha < turno.dia.fecha;
    });
    if (cual == m_deudas.rend())
        return {};
    const auto lugar = static_cast<std::size_t>(m_deudas.rend() - cual) - 1;
    return paga({lugar, Dinero{std::max(1, (cual->importe - cual->pagado).cuartos / 3)}}, turno);
}

/// Someone pays today, so that the day's report has its block: an old debt, or else one of this very day.
void Deudas::anticipa(const Turno& turno)
{
    auto& suyos = m_plazos[static_cast<std::size_t>(turno.tienda.numero)];
    const auto abierta = [&](const Deuda& deuda) {
        return deuda.numeroTienda == turno.tienda.numero && deuda.pagado < deuda.importe && !deuda.anulada && !deuda.aCuenta;
    };
    const auto cual = std::ranges::find_if(m_deudas, abierta);
    if (cual == m_deudas.end())
        return;
    const auto lugar = static_cast<std::size_t>(cual - m_deudas.begin());
    std::erase_if(suyos, [lugar](const auto& plazo) { return plazo.second.deuda == lugar; });
    const Dinero resto = cual->importe - cual->pagado;
    const bool unica = std::find_if(cual + 1, m_deudas.end(), abierta) == m_deudas.end(); // one stays open
    suyos.insert({turno.dia.fecha, {lugar, unica && resto.cuartos > 1 ? Dinero{resto.cuartos / 2} : resto}});
}

Dinero Deudas::paga(const Plazo& plazo, const Turno& turno)
{
    Deuda& deuda = m_deudas[plazo.deuda];
    deuda.pagado += plazo.importe;
    const int tirada = m_azar.hasta(100);
    const bool dividido = m_pagos++ % 5 == 2 && plazo.importe.cuartos > 8;
    const FormaPago forma = dividido ? Dividido : tirada < 56 ? Efectivo : tirada < 92 ? Tarjeta : Bizum;
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
        const bool saldada = deuda.anulada || deuda.pagado == deuda.importe;
        m_negocio.destino.fila(tablas::CabeceraPago, {{deuda.numero, deuda.factura, deuda.cliente, deuda.empleado,
                                                       deuda.importe.enEuros(), deuda.fecha, qint16{saldada}, deuda.tienda}});
    }
}

} // namespace kestrane::demo
