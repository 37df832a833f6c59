#include "instalacion/demo/caja.h"

#include "instalacion/demo/tablas.h"

namespace kestrane::demo {

namespace {

constexpr unsigned Salones = 1U << static_cast<unsigned>(Oficio::Salon);
constexpr unsigned Tiendas = 1U << static_cast<unsigned>(Oficio::Comercio) | 1U << static_cast<unsigned>(Oficio::TallaColor);
constexpr unsigned Comida = 1U << static_cast<unsigned>(Oficio::Alimentacion);
constexpr unsigned Todos = Salones | Tiendas | Comida;

/// What shops pay out of the drawer, in quarters from and to, and which.
struct Gasto
{
    QStringView motivo;
    int desde;
    int hasta;
    unsigned quienes;
};

constexpr Gasto gastos[] = {{u"Productos de limpieza", 24, 88, Todos},
                            {u"Café y agua para el personal", 10, 52, Salones | Tiendas},
                            {u"Mensajería", 26, 60, Todos},
                            {u"Papelería y rollos de caja", 18, 70, Todos},
                            {u"Reparación de persiana", 160, 340, Todos},
                            {u"Bombillas y pequeño material", 16, 64, Todos},
                            {u"Taxi para entrega", 24, 56, Tiendas},
                            {u"Flores para el mostrador", 40, 100, Salones},
                            {u"Revistas para la sala de espera", 12, 32, Salones},
                            {u"Propina a repartidores", 8, 20, Tiendas | Comida},
                            {u"Recibo de la asociación de comerciantes", 100, 100, Todos},
                            {u"Lavandería de toallas y batas", 48, 120, Salones},
                            {u"Hielo y bolsas", 12, 40, Comida},
                            {u"Afilado de cuchillos", 40, 72, Comida},
                            {u"Perchas y cinta de embalar", 20, 60, Tiendas},
                            {u"Cristalero", 180, 320, Todos}};

constexpr QStringView observaciones[] = {u"Falta cambio en monedas de 1 y 2 euros",
                                         u"Descuadre de 2 euros al cierre",
                                         u"El datáfono ha fallado durante media hora",
                                         u"Se deja sobre con 50 euros para el proveedor",
                                         u"Cliente reclama un cobro doble, pendiente de revisar",
                                         u"Billete de 50 dudoso, se ha retirado",
                                         u"Cierre realizado por la tarde, mañana sin incidencias",
                                         u"Se ha pedido cambio al banco",
                                         u"Avería de la luz durante una hora",
                                         u"Cuadre correcto"};

constexpr QStringView observacionMesMalo = u"Obras en la calle: muy poca gente hoy";

constexpr Dinero Cambio = Dinero::euros(120);   // is left in the drawer for the next day
constexpr Dinero CambioMin = Dinero::euros(40); // with less the bank is asked for change
constexpr int UnidadDeRetirada = 40;            // ten of the currency, in quarters

} // namespace

Caja::Caja(Negocio& negocio, Azar azar) : m_negocio{negocio}, m_azar{azar}, m_cajones(negocio.tiendas.size(), Cambio) {}

void Caja::cierraDia(const Turno& turno, Dinero efectivo)
{
    Dinero& cajon = m_cajones[static_cast<std::size_t>(turno.tienda.numero)];
    m_negocio.destino.fila(tablas::CajaInicial,
                           {{turno.dia.fecha, turno.tienda.nombre, cajon.enEuros(), turno.empleados.front()->codigo}});
    cajon += efectivo - gasta(turno);
    cajon -= retira(turno, cajon - Cambio);
    if (cajon < CambioMin)
        cajon = Cambio;
    if (turno.esHoy || m_azar.porMil(110))
        observa(turno);
}

Dinero Caja::gasta(const Turno& turno)
{
    Dinero suma;
    const int cuantos = turno.esHoy ? 2 : m_azar.porCien(35) ? 1 : 0;
    for (int i = 0; i < cuantos; ++i) {
        const Gasto* gasto = &m_azar.elige(gastos);
        while ((gasto->quienes >> static_cast<unsigned>(m_negocio.sabor.oficio) & 1U) == 0)
            gasto = &m_azar.elige(gastos);
        const Dinero importe{m_azar.entre(gasto->desde, gasto->hasta)};
        const auto horas = m_negocio.calendario.horas(turno.dia.fecha, 1, m_azar);
        m_negocio.destino.fila(tablas::Gastos, {{turno.dia.fecha, m_azar.porCien(97) ? Valor{horaDe(horas.front())} : Valor{},
                                                 turno.tienda.nombre, gasto->motivo, importe.enEuros(), quienGasta(turno)}});
        suma += importe;
    }
    return suma;
}

/// The card of someone who spent now and then is gone.
int Caja::quienGasta(const Turno& turno)
{
    return m_gastos++ % 9 == 4 ? EmpleadoSinFicha : m_azar.elige(turno.empleados)->codigo;
}

/// What is more than the change for tomorrow is taken out in tens, in two turns when it is much. Returns how much.
Dinero Caja::retira(const Turno& turno, Dinero sobra)
{
    const int decenas = sobra.cuartos / UnidadDeRetirada;
    const int veces = decenas > 60 ? 2 : 1;
    const int minimo = turno.esHoy ? 1 : 3;
    Dinero suma;
    for (int i = 0; i < veces && decenas >= minimo; ++i) {
        const Dinero importe{decenas / veces * UnidadDeRetirada};
        const int quien = m_retiradas++ % 13 == 6 ? EmpleadoSinFicha : turno.empleados.front()->codigo;
        m_negocio.destino.fila(tablas::Retiradas, {{turno.dia.fecha, turno.tienda.nombre, importe.enEuros(), quien}});
        suma += importe;
    }
    return suma;
}

void Caja::observa(const Turno& turno)
{
    const bool obras = m_negocio.calendario.esMesMalo(turno.dia.fecha) && m_azar.porCien(60);
    const QStringView texto = obras ? observacionMesMalo : m_azar.elige(observaciones);
    const auto horas = m_negocio.calendario.horas(turno.dia.fecha, 2, m_azar);
    m_negocio.destino.fila(tablas::Observacioncaja, {{turno.dia.fecha, horaDe(horas.back()), m_azar.elige(turno.empleados)->codigo,
                                                      texto, turno.tienda.nombre}});
}

} // namespace kestrane::demo
