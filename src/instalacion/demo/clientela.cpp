#include "instalacion/demo/clientela.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

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
    return (mujer ? nombresDeMujer() : nombresDeHombre())[static_cast<std::size_t>(nombre)].toString();
}

QString Cliente::apellidosJuntos() const
{
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
    cliente.intervalo = std::max(2, datos.ritmo.intervalo * azar.entre(45, 170) / 100);
    cliente.diaPreferido = azar.entre(1, 6);
    std::ranges::generate(cliente.habituales, [&] { return m_catalogo.sorteaServicio(cliente.publico(), azar); });
    const Fecha primero = m_calendario.dias().front().fecha;
    const bool nuevo = azar.porCien(24);
    cliente.ingreso = nuevo ? primero.masDias(azar.hasta(m_calendario.longitud())) : primero.masDias(-azar.entre(30, 2600));
    cliente.hasta = Fecha::deSerie(NuncaSeVa, 0);
    if (!nuevo && azar.porCien(18))
        cliente.hasta = primero.masDias(azar.hasta(m_calendario.longitud() * 4 / 5 + 1) - m_calendario.longitud() / 6);
    programa(cliente, nuevo ? cliente.ingreso : primero.masDias(azar.hasta(cliente.intervalo)));
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
    std::vector<Cliente*> llegan;
    if (dia.detalle == Detalle::Entero) {
        auto& esperados = m_esperados[static_cast<std::size_t>(tienda)][static_cast<std::size_t>(m_calendario.indice(dia.fecha))];
        for (const int codigo : esperados) {
            Cliente& suyo = cliente(codigo);
            const bool cabe = static_cast<int>(llegan.size()) < maximo && suyo.ultimaVisita != dia.fecha;
            const int espera = cabe ? suyo.intervalo * m_azar.entre(70, 135) / 100 : m_azar.entre(1, 9);
            programa(suyo, dia.fecha.masDias(std::max(1, espera)));
            if (cabe) {
                suyo.ultimaVisita = dia.fecha;
                llegan.push_back(&suyo);
            }
        }
        esperados = {};
    }
    completa(llegan, tienda, dia.fecha, (maximo * 9 + 9) / 10);
    return llegan;
}

void Clientela::completa(std::vector<Cliente*>& llegan, int tienda, Fecha fecha, int maximo)
{
    for (int intentos = 0; static_cast<int>(llegan.size()) < maximo && intentos < 2 * maximo; ++intentos) {
        Cliente* uno = cualquiera(tienda, fecha);
        if (uno->ultimaVisita == fecha || uno->ingreso > fecha || uno->hasta < fecha)
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

Cliente* Clientela::ausente(int tienda, Fecha fecha)
{
    Cliente* uno = cualquiera(tienda, fecha);
    for (int intentos = 0; intentos < 20 && uno->ultimaVisita == fecha; ++intentos)
        uno = cualquiera(tienda, fecha);
    return uno;
}

} // namespace kestrane::demo
