#include "instalacion/demo/mostrador.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr Dinero Grande = Dinero::euros(30);
constexpr Dinero MinimoDividido = Dinero::euros(8);
constexpr Dinero MinimoDeuda = Dinero::euros(3);
constexpr int GastaDeposito = 65; // percent of the clients whose deposit suffices

constexpr QStringView observaciones[] = {u"Fórmula del tinte¬7.3 + 20 vol", u"Alergia al amoniaco",
                                         u"Prefiere cita a primera hora",   u"Talla habitual¬M",
                                         u"Piel sensible, probar antes",    u"Descuento de fidelidad¬10%",
                                         u"Avisar cuando llegue su pedido", u"Viene recomendada por una amiga",
                                         u"No llamar por la mañana",        u"Pago aplazado acordado"};

bool traeDeposito(const Venta& venta)
{
    return std::ranges::any_of(
        venta.lineas, [](const Linea& linea) { return linea.tipo == TipoLinea::S && linea.codigo == CodigoIngresoDeposito; });
}

void parte(Venta& venta)
{
    const Dinero total = venta.total();
    venta.efectivo = venta.pago == Efectivo ? total : Dinero{};
    if (venta.pago == Dividido)
        venta.efectivo = Dinero{std::max(4, total.cuartos * 2 / 5 / 20 * 20)};
    venta.tarjeta = venta.pago == Tarjeta || venta.pago == Dividido ? total - venta.efectivo : Dinero{};
}

} // namespace

void Mostrador::paga(const Turno& turno, Venta& venta, Cliente* cliente)
{
    const Dinero total = venta.total();
    const bool deDeposito = cliente != nullptr && total > Dinero{} && cliente->deposito >= total && !traeDeposito(venta);
    if (deDeposito && (turno.esHoy || (turno.dia.detalle == Detalle::Entero && m_azar.porCien(GastaDeposito)))) {
        venta.pago = Deposito;
        cliente->deposito -= total;
    } else if (total >= MinimoDividido && turno.tienda.sucesos.toca(Suceso::Dividido, m_azar)) {
        venta.pago = Dividido;
    } else if (cliente != nullptr && cliente->profesional && m_azar.porCien(30)) {
        venta.pago = Transferencia;
    } else {
        const int enMetalico = total <= Dinero{} ? 100 : total >= Grande ? 34 : 56;
        venta.pago = m_azar.porCien(enMetalico) ? Efectivo : m_azar.porCien(9) ? Bizum : Tarjeta;
    }
    parte(venta);
}

/// Writes the sale and what follows from it.
void Mostrador::asienta(const Turno& turno, Venta& venta, Cliente* cliente)
{
    Sucesos& sucesos = turno.tienda.sucesos;
    if (cliente != nullptr && !venta.esDevolucion && sucesos.toca(Suceso::Albaran, m_azar))
        venta.albaran = m_negocio.numeros.albaran++;
    escribeVenta(m_negocio.destino, venta);
    m_almacen.vende(venta);
    m_agenda.atendida(venta);
    const bool fiable = cliente != nullptr && venta.total() >= MinimoDeuda && venta.pago != Deposito && !traeDeposito(venta);
    if (fiable && sucesos.toca(Suceso::Deuda, m_azar)) {
        m_deudas.apunta(venta);
        if (venta.pago == Efectivo)
            venta.efectivo = Dinero{}; // it did not reach the drawer
        return;
    }
    if (venta.total() > MinimoDividido && sucesos.toca(Suceso::GastoDeVale, m_azar) && !m_vales.gasta(venta) && turno.esHoy)
        sucesos.aplaza(Suceso::GastoDeVale);
    m_devoluciones.apunta(venta);
    if (cliente != nullptr && sucesos.toca(Suceso::Observacion, m_azar))
        observaCliente(turno, *cliente, venta.empleado);
}

void Mostrador::observaCliente(const Turno& turno, const Cliente& cliente, int empleado)
{
    const int cuantas = m_azar.porCien(15) ? 2 : 1;
    for (int i = 1; i <= cuantas; ++i)
        m_negocio.destino.fila(tablas::Obserclientes,
                               {{cliente.codigo, turno.dia.fecha, empleado, i, m_azar.elige(observaciones), turno.tienda.nombre}});
}

/// Notes are kept for the last weeks only: older ones have become sales.
void Mostrador::dejaNotas(const Turno& turno)
{
    const int atras = m_negocio.calendario.hoy().diaDeSerie() - turno.dia.fecha.diaDeSerie();
    if (!esComercio(m_negocio.sabor) || atras > 40)
        return;
    const int cuantas = turno.esHoy ? 4 : m_azar.porCien(55) ? 1 : 0;
    for (int i = 0; i < cuantas; ++i) {
        const Cliente* cliente = m_negocio.clientela.cualquiera(turno.tienda.numero, turno.dia.fecha);
        Venta venta = abre(turno, (m_negocio.calendario.apertura(turno.dia.fecha) + 30) * 60 + i, cliente);
        --turno.tienda.siguienteTicket; // a note has no ticket's number
        venta.numero = m_negocio.numeros.temporal++;
        Carrito carrito{m_negocio, turno, venta, m_azar};
        corriente(carrito, cliente);
        if (i == 1)
            carrito.comparte();
        if (i == 3)
            carrito.articulo(0, 1).tipo = TipoLinea::SP;
        carrito.grava(m_fisco, cliente->profesional);
        paga(turno, venta, nullptr);
        const bool aparcado = i == 2 || (!turno.esHoy && m_azar.porCien(12));
        if (!aparcado)
            venta.albaran = m_negocio.numeros.albaran++;
        escribeTemporal(m_negocio.destino, venta);
    }
}

} // namespace kestrane::demo
