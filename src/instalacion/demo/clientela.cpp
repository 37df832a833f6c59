#include "instalacion/demo/clientela.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int Gustos = 5040;              // divides evenly among up to ten employees
constexpr int PorCientoDelIntervalo = 60; // before it nobody drops in
constexpr qint32 NuncaSeVa = 1000000;
constexpr double DiasAbiertos = 0.78; // share of days open, with some slack

int clientesPorTienda(const Parametros& parametros, const Ritmo& ritmo)
{
    const int tickets = parametros.tamano == Tamano::Cadena ? ritmo.ticketsDiaCadena : ritmo.ticketsDia;
    const double parte = parametros.tamano == Tamano::Dia ? 0.3 : parametros.proporcion;
    return std::max(40, static_cast<int>(tickets * ritmo.conCliente * 0.01 * ritmo.intervalo * DiasAbiertos * parte));
}

} // namespace

QString Cliente::nombreDePila() const
{
    if (esEmpresa())
        return juntos(u"Comercial", apellidos()[static_cast<std::size_t>(apellido1)]);
    return (mujer ? nombresDeMujer() : nombresDeHombre())[static_cast<std::size_t>(nombre)].toString();
}

QString Cliente::apellidosJuntos() const
{
    if (esEmpresa())
        return u"S.L."_s;
    return juntos(apellidos()[static_cast<std::size_t>(apellido1)], apellidos()[static_cast<std::size_t>(apellido2)]);
}

Clientela::Clientela(const Parametros& parametros, const Catalogo& catalogo, const Calendario& calendario, int tiendas, Azar azar)
    : m_catalogo{catalogo}
    , m_calendario{calendario}
    , m_azar{azar.rama(1)}
    , m_azarFichas{azar.rama(2)}
    , m_porTienda(static_cast<std::size_t>(tiendas))
    , m_esperados(static_cast<std::size_t>(tiendas), std::vector<std::vector<int>>(static_cast<std::size_t>(calendario.longitud())))
{
    const int cuantos = clientesPorTienda(parametros, catalogo.sabor().ritmo);
    m_clientes.reserve(static_cast<std::size_t>(cuantos) * static_cast<std::size_t>(tiendas));
    for (int i = 0; i < cuantos; ++i) {
        for (int tienda = 0; tienda < tiendas; ++tienda)
            alta(tienda, azar);
    }
}

/// Nobody is in the habit of what is asked for once in a lifetime: of some services the most usual.
int Clientela::habito(Publico publico, Azar& azar) const
{
    const auto peso = [this](int posicion) { return m_catalogo.servicios()[static_cast<std::size_t>(posicion)].datos->peso; };
    std::array<int, 3> sorteados{};
    std::ranges::generate(sorteados, [&] { return m_catalogo.sorteaServicio(publico, azar); });
    return std::ranges::max(sorteados, {}, peso);
}

void Clientela::alta(int tienda, Azar& azar)
{
    const Sabor& datos = m_catalogo.sabor();
    Cliente cliente;
    cliente.codigo = static_cast<int>(m_clientes.size()) + 1;
    cliente.tienda = tienda;
    cliente.mujer = azar.porCien(datos.oficio == Oficio::Salon ? 72 : 60);
    cliente.profesional = azar.porMil(esComercio(datos) ? 30 : 6);
    cliente.nombre =
        static_cast<qint16>(azar.hasta(static_cast<int>((cliente.mujer ? nombresDeMujer() : nombresDeHombre()).size())));
    cliente.apellido1 = static_cast<qint16>(azar.hasta(static_cast<int>(apellidos().size())));
    cliente.apellido2 = static_cast<qint16>(azar.hasta(static_cast<int>(apellidos().size())));
    cliente.gusto = static_cast<qint16>(azar.hasta(Gustos));
    cliente.intervalo = std::max(2, datos.ritmo.intervalo * azar.entre(45, 170) / 100);
    cliente.diaPreferido = azar.entre(1, 6);
    std::ranges::generate(cliente.habituales, [&] { return habito(cliente.publico(), azar); });
    const Fecha primero = m_calendario.dias().front().fecha;
    const bool nuevo = azar.porCien(24);
    cliente.ingreso = m_calendario.proximoAbierto(
        nuevo ? primero.masDias(azar.hasta(m_calendario.longitud())) : primero.masDias(-azar.entre(30, 2600)), tienda);
    cliente.hasta = Fecha::deSerie(NuncaSeVa, 0);
    if (!nuevo && azar.porCien(18))
        cliente.hasta = primero.masDias(azar.hasta(m_calendario.longitud() * 4 / 5 + 1) - m_calendario.longitud() / 6);
    const Fecha entero = m_calendario.primerEntero();
    programa(cliente, cliente.ingreso > entero ? cliente.ingreso : entero.masDias(azar.hasta(cliente.intervalo)));
    m_porTienda[static_cast<std::size_t>(tienda)].push_back(cliente.codigo);
    m_clientes.push_back(cliente);
}

void Clientela::programa(const Cliente& cliente, Fecha desde)
{
    Fecha visita = desde;
    if (cliente.intervalo >= 14)
        visita = visita.masDias((cliente.diaPreferido - diaSemana(visita) + 7) % 7);
    visita = m_calendario.proximoAbierto(visita, cliente.tienda);
    if (visita <= m_calendario.hoy() && visita <= cliente.hasta)
        m_esperados[static_cast<std::size_t>(cliente.tienda)][static_cast<std::size_t>(m_calendario.indice(visita))].push_back(
            cliente.codigo);
}

std::vector<Cliente*> Clientela::visitantes(int tienda, const DiaNegocio& dia, int maximo)
{
    const bool entero = dia.detalle == Detalle::Entero;
    std::vector<Cliente*> llegan;
    if (entero)
        llegan = atiendeEsperados(tienda, dia.fecha, maximo);
    completa(llegan, tienda, dia.fecha, (maximo * (entero ? 8 : 10) + 9) / 10);
    return llegan;
}

/// Those of whom it is the turn and who find a place; all get their next turn.
std::vector<Cliente*> Clientela::atiendeEsperados(int tienda, Fecha fecha, int maximo)
{
    std::vector<Cliente*> llegan;
    auto& esperados = m_esperados[static_cast<std::size_t>(tienda)][static_cast<std::size_t>(m_calendario.indice(fecha))];
    for (const int codigo : esperados) {
        Cliente& suyo = cliente(codigo);
        const bool cabe = static_cast<int>(llegan.size()) < maximo && suyo.ultimaVisita != fecha;
        const int espera = cabe ? suyo.intervalo * m_azar.entre(70, 135) / 100 : m_azar.entre(1, 9);
        programa(suyo, fecha.masDias(std::max(1, espera)));
        if (cabe) {
            suyo.ultimaVisita = fecha;
            llegan.push_back(&suyo);
        }
    }
    esperados = {};
    return llegan;
}

void Clientela::completa(std::vector<Cliente*>& llegan, int tienda, Fecha fecha, int maximo)
{
    for (int intentos = 0; static_cast<int>(llegan.size()) < maximo && intentos < 3 * maximo; ++intentos) {
        Cliente* uno = cualquiera(tienda, fecha);
        const bool haPoco = fecha < uno->ultimaVisita.masDias(uno->intervalo * PorCientoDelIntervalo / 100);
        if (uno->ultimaVisita == fecha || uno->ingreso > fecha || uno->hasta < fecha || (haPoco && intentos < 2 * maximo))
            continue;
        uno->ultimaVisita = fecha;
        llegan.push_back(uno);
    }
}

Cliente* Clientela::cualquiera(int tienda, Fecha fecha)
{
    Cliente* uno = nullptr;
    for (int intentos = 0; intentos < 20; ++intentos) {
        uno = &cliente(m_azar.elige(m_porTienda[static_cast<std::size_t>(tienda)]));
        if (uno->ingreso <= fecha && fecha <= uno->hasta)
            break;
    }
    return uno;
}

Cliente* Clientela::conDeposito(int tienda)
{
    Cliente* rico = nullptr;
    for (const int codigo : m_porTienda[static_cast<std::size_t>(tienda)]) {
        Cliente& uno = cliente(codigo);
        if (uno.deposito > (rico == nullptr ? Dinero{} : rico->deposito))
            rico = &uno;
    }
    return rico;
}

int Clientela::codigoSinFicha()
{
    return static_cast<int>(m_clientes.size()) + m_azar.entre(1, 9);
}

Cliente* Clientela::ausente(int tienda, Fecha fecha)
{
    Cliente* uno = cualquiera(tienda, fecha);
    for (int intentos = 0; intentos < 20 && uno->ultimaVisita == fecha; ++intentos)
        uno = cualquiera(tienda, fecha);
    return uno;
}

} // namespace kestrane::demo
