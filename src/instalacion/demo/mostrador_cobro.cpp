#include "instalacion/demo/mostrador.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr Dinero Grande = Dinero::euros(30);
constexpr Dinero MinimoDividido = Dinero::euros(8);
constexpr Dinero MinimoDeuda = Dinero::euros(3);
constexpr int DivididasDebidas = 15; // percent
constexpr int GastaDeposito = 65;    // percent of the clients whose deposit suffices

constexpr QStringView deTodos[] = {u"Descuento de fidelidad¬10%", u"Avisar cuando llegue su pedido",
                                   u"Viene recomendada por una amiga", u"No llamar por la mañana", u"Pago aplazado acordado"};
constexpr QStringView dePeluqueria[] = {u"Fórmula del tinte¬7.3 + 20 vol", u"Alergia al amoniaco", u"Prefiere cita a primera hora"};
constexpr QStringView dePiel[] = {u"Fototipo¬III", u"Piel sensible, probar antes", u"Prefiere cita a última hora"};
constexpr QStringView deClinica[] = {u"Alergia¬penicilina", u"Trae informe del traumatólogo", u"Avisar el día antes de la cita"};
constexpr QStringView deTallas[] = {u"Talla habitual¬M", u"Número habitual¬38", u"Suele pedir arreglos"};
constexpr QStringView deComida[] = {u"Reparto los viernes¬11:00", u"Intolerante al gluten", u"Encargo fijo de los domingos"};

std::span<const QStringView> propias(const Sabor& datos)
{
    switch (datos.oficio) {
    case Oficio::Comercio:
        return deTodos;
    case Oficio::TallaColor:
        return deTallas;
    case Oficio::Alimentacion:
        return deComida;
    case Oficio::Salon:
        break;
    }
    if (datos.tipo == TipoTienda::Peluqueria)
        return dePeluqueria;
    return datos.tipo == TipoTienda::Clinicas ? std::span{deClinica} : std::span{dePiel};
}

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
    const bool fia = turno.esHoy && cliente != nullptr && !turno.tienda.fiadoHoy && !traeDeposito(venta);
    const bool conPasado = turno.dia.detalle == Detalle::Entero || m_negocio.parametros.tamano == Tamano::Mes;
    const bool deDeposito =
        !venta.aCuenta && cliente != nullptr && total > Dinero{} && cliente->deposito >= total && !traeDeposito(venta);
    if (deDeposito && (turno.esHoy || (conPasado && m_azar.porCien(GastaDeposito)))) {
        venta.pago = Deposito;
        cliente->deposito -= total;
    } else if (total >= MinimoDividido && (fia || turno.tienda.sucesos.toca(Suceso::Dividido, m_azar))) {
        venta.pago = Dividido;
    } else if (cliente != nullptr && cliente->profesional && m_azar.porCien(30)) {
        venta.pago = Transferencia;
    } else {
        const int enMetalico = total <= Dinero{} ? 100 : total >= Grande ? 34 : 56;
        venta.pago = m_azar.porCien(enMetalico) ? Efectivo : m_azar.porCien(9) ? Bizum : Tarjeta;
    }
    parte(venta);
}

void Mostrador::pagaCon(FormaPago forma, Venta& venta)
{
    venta.pago = forma;
    parte(venta);
}

/// Invoices are asked for some days later, by firms above all. What older programs rang up has no date of its own.
void Mostrador::fechaFactura(Venta& venta, const Cliente* cliente)
{
    const bool factura = cliente != nullptr && (cliente->profesional || venta.numero % 11 == 3);
    if (venta.numero % 29 == 7)
        venta.fechaFactura = std::nullopt;
    else
        venta.fechaFactura = std::min(venta.fecha.masDias(factura ? m_azar.entre(1, 6) : 0), m_negocio.calendario.hoy());
}

bool Mostrador::debe(const Turno& turno, const Venta& venta, const Cliente* cliente)
{
    if (cliente == nullptr || venta.total() < MinimoDeuda || venta.pago == Deposito || traeDeposito(venta))
        return false;
    if (venta.pago == Dividido && turno.esHoy && !turno.tienda.fiadoHoy) {
        turno.tienda.fiadoHoy = true;
        return true;
    }
    const bool dividida = venta.pago == Dividido && m_azar.porCien(DivididasDebidas);
    return venta.aCuenta || dividida || turno.tienda.sucesos.toca(Suceso::Deuda, m_azar);
}

/// Writes the sale and what follows from it.
void Mostrador::asienta(const Turno& turno, Venta& venta, Cliente* cliente)
{
    Sucesos& sucesos = turno.tienda.sucesos;
    if (cliente != nullptr && !venta.esDevolucion && sucesos.toca(Suceso::Albaran, m_azar))
        venta.albaran = m_negocio.numeros.albaran++;
    if (venta.esDevolucion && esComercio(m_negocio.sabor) && m_comoVentas++ % 2 == 0)
        venta.albaran = m_negocio.numeros.albaran++; // of goods that had gone out with a note
    fechaFactura(venta, cliente);
    escribeVenta(m_negocio.destino, venta);
    m_libros.almacen.vende(venta);
    m_libros.agenda.atendida(venta);
    if (debe(turno, venta, cliente)) {
        const Dinero abierto = m_libros.deudas.apunta(venta);
        venta.efectivo -= std::min(venta.efectivo, abierto); // it did not reach the drawer
        return;
    }
    const bool conVale = !venta.tienda.isNull() && venta.total() > MinimoDividido &&
                         (cliente != nullptr || sucesos.toca(Suceso::GastoDeVale, m_azar));
    if (conVale && esComercio(m_negocio.sabor) && !m_libros.vales.gasta(venta) && turno.esHoy && cliente == nullptr)
        sucesos.aplaza(Suceso::GastoDeVale);
    m_libros.devoluciones.apunta(venta);
    if (cliente != nullptr && sucesos.toca(Suceso::Observacion, m_azar))
        observaCliente(turno, *cliente, venta.empleado);
}

void Mostrador::observaCliente(const Turno& turno, const Cliente& cliente, int empleado)
{
    const int cuantas = m_azar.porCien(15) ? 2 : 1;
    for (int i = 1; i <= cuantas; ++i) {
        const auto suyas = m_observaciones % 3 == 2 ? std::span<const QStringView>{deTodos} : propias(m_negocio.sabor);
        const QStringView texto = suyas[static_cast<std::size_t>(m_observaciones++ / 3) % suyas.size()];
        m_negocio.destino.fila(tablas::Obserclientes, {{cliente.codigo, turno.dia.fecha, empleado, i, texto, turno.tienda.nombre}});
    }
}

} // namespace kestrane::demo
