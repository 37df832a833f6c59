#include "instalacion/demo/caja.h"

#include "instalacion/demo/tablas.h"

namespace kestrane::demo {

namespace {

/// What shops pay out of the drawer, in quarters from and to.
struct Gasto
{
    QStringView motivo;
    int desde;
    int hasta;
};

constexpr Gasto gastos[] = {{u"Productos de limpieza", 24, 88},
                            {u"Café y agua para el personal", 10, 52},
                            {u"Mensajería", 26, 60},
                            {u"Papelería y rollos de caja", 18, 70},
                            {u"Reparación de persiana", 160, 340},
                            {u"Bombillas y pequeño material", 16, 64},
                            {u"Taxi para entrega", 24, 56},
                            {u"Flores para el mostrador", 40, 100},
                            {u"Propina a repartidores", 8, 20},
                            {u"Recibo de la asociación de comerciantes", 100, 100},
                            {u"Lavandería", 48, 120},
                            {u"Cristalero", 180, 320}};

constexpr QStringView observaciones[] = {u"Falta cambio en monedas de 1 y 2 euros",
                                         u"Descuadre de 2 euros al cierre",
                                         u"El datáfono ha fallado durante media hora",
                                         u"Se deja sobre con 50 euros para el proveedor",
                                         u"Cliente reclama un cobro doble, pendiente de revisar",
                                         u"Billete de 50 dudoso, se ha retirado",
                                         u"Cierre realizado por la tarde, mañana sin incidencias",
                                         u"Se ha pedido cambio al banco",
                                         u"Avería de la luz de 12 a 13 horas",
                                         u"Cuadre correcto"};

constexpr QStringView observacionMesMalo = u"Obras en la calle: muy poca gente hoy";

constexpr int UnidadDeRetirada = 40; // ten of the currency, in quarters

} // namespace

Caja::Caja(Negocio& negocio, Azar azar) : m_negocio{negocio}, m_azar{azar} {}

void Caja::cierraDia(const Turno& turno, Dinero efectivo)
{
    const Dinero inicial{400 + 100 * m_azar.hasta(5)};
    m_negocio.destino.fila(tablas::CajaInicial,
                           {{turno.dia.fecha, turno.tienda.nombre, inicial.enEuros(), turno.empleados.front()->codigo}});
    const Dinero gastado = gasta(turno);
    if (turno.dia.detalle == Detalle::Entero)
        retira(turno, efectivo - gastado);
    if (turno.esHoy || m_azar.porMil(110))
        observa(turno);
}

Dinero Caja::gasta(const Turno& turno)
{
    Dinero suma;
    const int cuantos = turno.esHoy ? 2 : m_azar.porCien(35) ? 1 : 0;
    for (int i = 0; i < cuantos; ++i) {
        const Gasto& gasto = m_azar.elige(gastos);
        const Dinero importe{m_azar.entre(gasto.desde, gasto.hasta)};
        const auto horas = m_negocio.calendario.horas(turno.dia.fecha, 1, m_azar);
        m_negocio.destino.fila(tablas::Gastos,
                               {{turno.dia.fecha, m_azar.porCien(97) ? Valor{horaDe(horas.front())} : Valor{}, turno.tienda.nombre,
                                 gasto.motivo, importe.enEuros(), m_azar.elige(turno.empleados)->codigo}});
        suma += importe;
    }
    return suma;
}

void Caja::retira(const Turno& turno, Dinero enCaja)
{
    const int decenas = enCaja.cuartos * 4 / 5 / UnidadDeRetirada;
    const int veces = decenas > 60 ? 2 : 1;
    for (int i = 0; i < veces && decenas >= 3; ++i) {
        const Dinero importe{decenas / veces * UnidadDeRetirada};
        m_negocio.destino.fila(tablas::Retiradas,
                               {{turno.dia.fecha, turno.tienda.nombre, importe.enEuros(), turno.empleados.front()->codigo}});
    }
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
