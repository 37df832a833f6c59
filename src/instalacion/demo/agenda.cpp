#include "instalacion/demo/agenda.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int Reservada = 62; // percent of visits with a service, in salons
constexpr int DiasPorVenir = 28;
constexpr QStringView motivosSalon[] = {u"Prueba de alergia", u"Presupuesto de boda", u"Reunión con representante", u"Reservado",
                                        u"Formación del personal"};
constexpr QStringView motivosComercio[] = {u"Recoger encargo", u"Visita del representante", u"Reserva de cliente",
                                           u"Entrega a domicilio", u"Pedido para recoger por la tarde"};

} // namespace

Agenda::Agenda(Negocio& negocio, Azar azar) : m_negocio{negocio}, m_azar{azar} {}

void Agenda::atendida(const Venta& venta)
{
    if (venta.cliente == 0 || esComercio(m_negocio.sabor))
        return;
    const auto servicio = std::ranges::find_if(venta.lineas, [](const Linea& linea) {
        return linea.codigo != CodigoIngresoDeposito && (linea.tipo == TipoLinea::S || linea.tipo == TipoLinea::CB);
    });
    if (servicio == venta.lineas.end() || !m_azar.porCien(Reservada))
        return;
    const int antes = enCuartosDeHora(std::max(0, venta.hora.segundoDelDia() - m_azar.entre(25, 70) * 60));
    const int abre = m_negocio.calendario.apertura(venta.fecha) * 60;
    escribe({venta.cliente, venta.empleado, servicio->codigo, venta.fecha, std::max(antes, abre), false, venta.tienda});
}

Agenda::Cita Agenda::nueva(int numeroTienda, const QString& tienda, Fecha fecha)
{
    Cliente* cliente = m_negocio.clientela.ausente(numeroTienda, fecha);
    const auto turno = m_negocio.plantilla.deTurno(numeroTienda, fecha);
    const auto& servicios = m_negocio.catalogo.servicios();
    const int servicio =
        esComercio(m_negocio.sabor) ? m_azar.hasta(static_cast<int>(servicios.size())) : m_azar.elige(cliente->habituales);
    Cita cita{.fecha = fecha, .tienda = tienda};
    cita.cliente = cliente->codigo;
    cita.empleado = m_azar.elige(turno)->codigo;
    cita.servicio =
        m_azar.porCien(esComercio(m_negocio.sabor) ? 50 : 93) ? servicios[static_cast<std::size_t>(servicio)].codigo : 0;
    const auto horas = m_negocio.calendario.horas(fecha, 1, m_azar);
    cita.segundos = enCuartosDeHora(horas.front());
    return cita;
}

void Agenda::cierraDia(const Turno& turno, int tickets)
{
    const bool salon = !esComercio(m_negocio.sabor);
    const int minimo = turno.esHoy ? 1 : 0;
    const int ausentes = std::max(minimo, salon ? (tickets * 4 + m_azar.hasta(100)) / 100 : m_azar.porCien(25) ? 1 : 0);
    const int anuladas = std::max(minimo, salon ? (tickets * 5 + m_azar.hasta(100)) / 100 : m_azar.porCien(12) ? 1 : 0);
    for (int i = 0; i < ausentes + anuladas; ++i) {
        Cita cita = nueva(turno.tienda.numero, turno.tienda.nombre, turno.dia.fecha);
        cita.anulada = i >= ausentes;
        escribe(cita);
    }
}

void Agenda::futuras(const Tienda& tienda)
{
    const Fecha hoy = m_negocio.calendario.hoy();
    for (int dias = 1; dias <= DiasPorVenir; ++dias) {
        const Fecha fecha = hoy.masDias(dias);
        if (!m_negocio.calendario.abre(fecha, tienda.numero))
            continue;
        const int citas = esComercio(m_negocio.sabor) ? m_azar.hasta(2) : std::max(1, 16 - dias / 2 - m_azar.hasta(5));
        for (int i = 0; i < citas; ++i) {
            Cita cita = nueva(tienda.numero, tienda.nombre, fecha);
            cita.anulada = m_azar.porCien(6);
            escribe(cita);
        }
    }
}

void Agenda::escribe(const Cita& cita)
{
    const bool salon = !esComercio(m_negocio.sabor);
    Valor motivo;
    if (cita.servicio == 0 && !m_azar.porCien(5))
        motivo = (salon ? m_azar.elige(motivosSalon) : m_azar.elige(motivosComercio)).toString();
    m_negocio.destino.fila(tablas::Agenda, {{m_negocio.numeros.cita++, cita.cliente, cita.empleado, cita.servicio, cita.fecha,
                                             horaDe(cita.segundos), motivo, cita.anulada, cita.tienda}});
}

} // namespace kestrane::demo
