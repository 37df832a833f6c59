#include "instalacion/demo/generador.h"

#include "instalacion/demo/caja.h"
#include "instalacion/demo/maestros.h"
#include "instalacion/demo/mostrador.h"
#include "instalacion/demo/nombres.h"

#include <algorithm>
#include <cmath>

namespace kestrane::demo {

namespace {

constexpr int NumerosPorTienda = 100'000;
constexpr double ParteDeMuestra = 0.16; // of the tickets of a day, when a day is only sampled
constexpr int ConDeposito = 80;         // days in a thousand on which someone comes to spend a deposit
constexpr int VueltaDeReyes = 25;       // returns in a thousand tickets, beside the usual ones, after Christmas

enum Rama : quint64 {
    DeCatalogo = 11,
    DePlantilla,
    DeClientela,
    DeMostrador,
    DeDeudas,
    DeDevoluciones,
    DeAlmacen,
    DeAgenda,
    DeCaja,
    DeJornada,
    DeMaestros,
    DeOpciones,
    DeTiendas
};

/// Stores have numbers of their own; the first of a shop that is alone goes on from the tickets of years before.
std::vector<Tienda> abreTiendas(const Sabor& datos, int cuantas, Azar azar)
{
    std::vector<Tienda> tiendas;
    for (int i = 0; i < cuantas; ++i) {
        const double escala = cuantas == 1 ? 1.0 : 1.12 - 0.24 * i / (cuantas - 1) + (azar.real() - 0.5) * 0.08;
        const int primero = cuantas == 1 ? 10'001 : (i + 1) * NumerosPorTienda + 1;
        const QString nombre = cuantas == 1 ? QStringLiteral("") : nombresDeTienda()[static_cast<std::size_t>(i)].toString();
        tiendas.push_back({i, nombre, escala, primero, Sucesos{datos.oficio}});
    }
    return tiendas;
}

/// The shop's days, one after the other.
class Vida
{
public:
    Vida(Negocio& negocio, Azar azar)
        : m_negocio{negocio}
        , m_azar{azar.rama(DeJornada)}
        , m_bonos{negocio.numeros}
        , m_deudas{negocio, azar.rama(DeDeudas)}
        , m_devoluciones{negocio, m_bonos, m_vales, azar.rama(DeDevoluciones)}
        , m_almacen{negocio, azar.rama(DeAlmacen)}
        , m_agenda{negocio, azar.rama(DeAgenda)}
        , m_caja{negocio, azar.rama(DeCaja)}
        , m_mostrador{negocio, {m_bonos, m_deudas, m_devoluciones, m_vales, m_almacen, m_agenda}, azar.rama(DeMostrador)}
    {
    }

    void transcurre(const std::function<void()>& trasCadaDia)
    {
        for (const DiaNegocio& dia : m_negocio.calendario.dias()) {
            for (Tienda& tienda : m_negocio.tiendas) {
                if (m_negocio.calendario.abre(dia.fecha, tienda.numero))
                    jornada(tienda, dia);
            }
            if (trasCadaDia)
                trasCadaDia();
        }
    }

    void cierra()
    {
        for (const Tienda& tienda : m_negocio.tiendas)
            m_agenda.futuras(tienda);
        m_deudas.escribe();
        m_vales.escribe(m_negocio.destino);
        m_bonos.escribe(m_negocio.destino, m_negocio.catalogo, m_negocio.calendario.hoy());
    }

private:
    [[nodiscard]] int tickets(const Tienda& tienda, const DiaNegocio& dia)
    {
        const Ritmo& ritmo = m_negocio.sabor.ritmo;
        const bool cadena = m_negocio.parametros.tamano == Tamano::Cadena;
        const double media = (cadena ? ritmo.ticketsDiaCadena : ritmo.ticketsDia) * tienda.escala;
        if (dia.detalle == Detalle::Muestra)
            return std::max(2,
                            static_cast<int>(media * m_negocio.calendario.actividad(dia.fecha) * ParteDeMuestra + m_azar.real()));
        const double suerte = 0.8 + 0.2 * (m_azar.real() + m_azar.real());
        const double parte = m_negocio.parametros.proporcion;
        return std::max(4, static_cast<int>(std::lround(media * m_negocio.calendario.actividad(dia.fecha) * suerte * parte)));
    }

    /// Who comes to each ticket; null for people unknown.
    [[nodiscard]] std::vector<Cliente*> concurrencia(const Tienda& tienda, const DiaNegocio& dia, int cuantos)
    {
        const int conocidos = (cuantos * m_negocio.sabor.ritmo.conCliente + m_azar.hasta(100)) / 100;
        std::vector<Cliente*> gente = m_negocio.clientela.visitantes(tienda.numero, dia, conocidos);
        invita(tienda, dia.fecha, gente);
        gente.resize(static_cast<std::size_t>(cuantos), nullptr);
        for (std::size_t i = gente.size(); i > 1; --i)
            std::swap(gente[i - 1], gente[static_cast<std::size_t>(m_azar.hasta(static_cast<int>(i)))]);
        return gente;
    }

    /// Today everything happens at least once, spread over the day: its reports show each kind of row.
    void animaHoy(Tienda& tienda, std::size_t ticket, std::size_t cuantos)
    {
        constexpr auto Sucedidos = static_cast<std::size_t>(Suceso::Cuantos);
        const std::size_t paso = std::max<std::size_t>(1, cuantos / (Sucedidos + 2));
        if (ticket % paso == 0 && ticket / paso < Sucedidos)
            tienda.sucesos.fuerza(static_cast<Suceso>(ticket / paso));
        if (ticket % (5 * paso) == 3)
            tienda.sucesos.fuerza(Suceso::Anulada);
        if (ticket % (7 * paso) == 5)
            tienda.sucesos.fuerza(Suceso::Devolucion);
    }

    /// Clients who spend today what they paid before: on the last day some of each kind, on others now and then one with a deposit.
    void invita(const Tienda& tienda, Fecha fecha, std::vector<Cliente*>& gente)
    {
        std::vector<Cliente*> invitados;
        if (fecha == m_negocio.calendario.hoy()) {
            for (const int codigo : m_bonos.titulares(tienda.nombre, fecha))
                invitados.push_back(&m_negocio.clientela.cliente(codigo));
        } else if (!m_azar.porMil(ConDeposito)) {
            return;
        }
        invitados.push_back(m_negocio.clientela.conDeposito(tienda.numero));
        for (Cliente* uno : invitados) {
            if (uno == nullptr || uno->ultimaVisita == fecha)
                continue;
            uno->ultimaVisita = fecha;
            gente.insert(gente.begin(), uno);
        }
    }

    void jornada(Tienda& tienda, const DiaNegocio& dia)
    {
        const Turno turno{tienda, dia, m_negocio.plantilla.deTurno(tienda.numero, dia.fecha),
                          dia.fecha == m_negocio.calendario.hoy()};
        m_negocio.plantilla.amanece(tienda.numero);
        m_agenda.abreDia(tienda.nombre, dia.fecha);
        const int cuantos = tickets(tienda, dia);
        const auto horas = m_negocio.calendario.horas(dia.fecha, cuantos, m_azar);
        const auto gente = concurrencia(tienda, dia, cuantos);
        Dinero efectivo;
        for (std::size_t i = 0; i < horas.size(); ++i) {
            if (dia.conRarezas && i == 0)
                tienda.sucesos.fuerza(static_cast<Suceso>(m_muestras++ % static_cast<int>(Suceso::Cuantos)));
            if (turno.esHoy)
                animaHoy(tienda, i, horas.size());
            efectivo += m_mostrador.atiende(turno, horas[i], gente[i]);
            devuelve(turno, horas[i], efectivo);
        }
        m_mostrador.dejaNotas(turno);
        efectivo += m_deudas.cobra(turno);
        m_caja.cierraDia(turno, efectivo);
        m_almacen.cierraDia(turno);
        m_agenda.cierraDia(turno, cuantos);
    }

    void devuelve(const Turno& turno, int minuto, Dinero& efectivo)
    {
        const Fecha hoy = turno.dia.fecha;
        const bool trasReyes = esComercio(m_negocio.sabor) && m_negocio.sabor.oficio != Oficio::Alimentacion && hoy.mes() == 1 &&
                               hoy.dia() >= 7 && hoy.dia() <= 18;
        if (!turno.tienda.sucesos.toca(Suceso::Devolucion, m_azar) && !(trasReyes && m_azar.porMil(VueltaDeReyes)))
            return;
        if (m_devoluciones.devuelve(turno, minuto, efectivo))
            m_almacen.devuelve(m_devoluciones.ventaDevuelta(), m_devoluciones.lineasDevueltas(), turno.dia.fecha);
        else
            turno.tienda.sucesos.aplaza(Suceso::Devolucion);
    }

    Negocio& m_negocio;
    Azar m_azar;
    int m_muestras = 0;
    Bonos m_bonos;
    Deudas m_deudas;
    Vales m_vales;
    Devoluciones m_devoluciones;
    Almacen m_almacen;
    Agenda m_agenda;
    Caja m_caja;
    Mostrador m_mostrador;
};

} // namespace

void generaTienda(const Parametros& parametros, Destino& destino, const std::function<void()>& trasCadaDia)
{
    const Sabor& datos = sabor(parametros.tipo);
    const Azar azar = Azar{parametros.semilla}.rama(static_cast<quint64>(parametros.tipo));
    const Calendario calendario{parametros, datos};
    const int tiendas = cuantasTiendas(parametros);
    Catalogo catalogo{datos, azar.rama(DeCatalogo)};
    Plantilla plantilla{datos, tiendas, parametros.hoy, azar.rama(DePlantilla)};
    Clientela clientela{parametros, catalogo, calendario, tiendas, azar.rama(DeClientela)};
    Negocio negocio{parametros, datos,     calendario, catalogo,
                    plantilla,  clientela, destino,    abreTiendas(datos, tiendas, azar.rama(DeTiendas)),
                    {}};
    Vida vida{negocio, azar};
    vida.transcurre(trasCadaDia);
    vida.cierra();
    std::vector<QString> nombres;
    std::ranges::transform(negocio.tiendas, std::back_inserter(nombres), &Tienda::nombre);
    clientela.escribe(destino, nombres);
    plantilla.escribe(destino);
    escribeMaestros(negocio, azar.rama(DeMaestros));
    escribeOpciones(negocio, azar.rama(DeOpciones));
}

} // namespace kestrane::demo
