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

void Agenda::abreDia(const QString& tienda, Fecha fecha)
{
    m_tienda = &tienda;
    m_fecha = fecha;
    m_ocupado.clear();
}

bool Agenda::libre(int empleado, int desde, int minutos) const
{
    const int hasta = desde + minutos * 60;
    return std::ranges::none_of(
        m_ocupado, [=](const Hueco& uno) { return uno.empleado == empleado && desde < uno.hasta && uno.desde < hasta; });
}

/// The start of so many free minutes of an employee, a quarter of an hour or more before `limite`; below 0 when there are none.
int Agenda::hueco(int empleado, int limite, int minutos) const
{
    constexpr int CuartoDeHora = 900;
    constexpr int Intentos = 8;
    int desde = enCuartosDeHora(limite - minutos * 60);
    for (int i = 0; i < Intentos; ++i, desde -= CuartoDeHora) {
        if (m_negocio.calendario.atiende(m_fecha, desde / 60, desde / 60 + minutos) && libre(empleado, desde, minutos))
            return desde;
    }
    return -1;
}

void Agenda::atendida(const Venta& venta)
{
    const auto conFicha = static_cast<int>(m_negocio.clientela.todos().size());
    if (venta.cliente == 0 || venta.cliente > conFicha || esComercio(m_negocio.sabor))
        return;
    const auto servicio = std::ranges::find_if(venta.lineas, [](const Linea& linea) {
        return linea.codigo != CodigoIngresoDeposito && (linea.tipo == TipoLinea::S || linea.tipo == TipoLinea::CB);
    });
    if (servicio == venta.lineas.end() || servicio->empleado <= 0 || !m_azar.porCien(Reservada))
        return;
    const int minutos = m_negocio.catalogo.minutosDe(servicio->codigo);
    const int desde = hueco(servicio->empleado, venta.hora.segundoDelDia(), minutos);
    if (desde < 0)
        return; // walked in
    m_ocupado.push_back({servicio->empleado, desde, desde + minutos * 60});
    escribe({venta.cliente, servicio->empleado, servicio->codigo, venta.fecha, desde, false, venta.tienda});
}

/// An appointment of someone who does not come that day; null when it fits nowhere.
std::optional<Agenda::Cita> Agenda::nueva(int numeroTienda, const Turnantes& turno)
{
    Cliente* cliente = m_negocio.clientela.ausente(numeroTienda, m_fecha);
    const auto& servicios = m_negocio.catalogo.servicios();
    const bool comercio = esComercio(m_negocio.sabor);
    const int servicio = comercio ? m_azar.hasta(static_cast<int>(servicios.size())) : m_azar.elige(cliente->habituales);
    const Servicio& suyo = servicios[static_cast<std::size_t>(servicio)];
    const Empleado* quien = m_negocio.plantilla.habitual(turno, cliente->gusto, suyo.datos->seccion);
    Cita cita{.fecha = m_fecha, .tienda = *m_tienda};
    cita.cliente = cliente->codigo;
    cita.empleado = (quien == nullptr ? m_azar.elige(turno) : quien)->codigo;
    cita.servicio = m_azar.porCien(comercio ? 50 : 93) ? suyo.codigo : 0;
    const int minutos = suyo.datos->minutos;
    cita.segundos = hueco(cita.empleado, m_negocio.calendario.horas(m_fecha, 1, m_azar).front() + minutos * 60, minutos);
    if (cita.segundos < 0)
        return std::nullopt;
    if (m_citas++ % 41 == 7)
        cita.empleado = EmpleadoSinFicha;
    m_ocupado.push_back({cita.empleado, cita.segundos, cita.segundos + minutos * 60});
    return cita;
}

void Agenda::cierraDia(const Turno& turno, int tickets)
{
    const bool salon = !esComercio(m_negocio.sabor);
    const int minimo = turno.esHoy ? 1 : 0;
    const int ausentes = std::max(minimo, salon ? (tickets * 4 + m_azar.hasta(100)) / 100 : m_azar.porCien(25) ? 1 : 0);
    const int anuladas = std::max(minimo, salon ? (tickets * 5 + m_azar.hasta(100)) / 100 : m_azar.porCien(12) ? 1 : 0);
    int hechas = 0;
    for (int i = 0; hechas < ausentes + anuladas && i < 4 * (ausentes + anuladas); ++i) {
        std::optional<Cita> cita = nueva(turno.tienda.numero, turno.empleados);
        if (!cita)
            continue;
        cita->anulada = hechas++ >= ausentes;
        escribe(*cita);
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
        abreDia(tienda.nombre, fecha);
        reserva(tienda, fecha, citas);
    }
}

void Agenda::reserva(const Tienda& tienda, Fecha fecha, int citas)
{
    const Turnantes turno = m_negocio.plantilla.deTurno(tienda.numero, fecha);
    for (int i = 0; i < citas; ++i) {
        if (std::optional<Cita> cita = nueva(tienda.numero, turno)) {
            cita->anulada = m_azar.porCien(6);
            escribe(*cita);
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
