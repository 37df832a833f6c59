#include "instalacion/demo/carrito.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr Dinero Barato = Dinero::euros(3);
constexpr Dinero Compartible = Dinero::euros(8);
constexpr int Otro = 15; // percent of lines that another employee does

Dinero porUnidades(Dinero unitario, double unidades)
{
    return Dinero::euros(unitario.enEuros() * unidades);
}

/// A bono of sessions costs a seventh less than the sessions, in whole units of money.
Dinero precioDeBono(Dinero sesion, int sesiones)
{
    return Dinero{(sesion.cuartos * sesiones * 6 / 7 + 2) / 4 * 4};
}

} // namespace

Carrito::Carrito(const Negocio& negocio, const Turno& turno, Venta& venta, Azar& azar)
    : m_negocio{negocio}
    , m_turno{turno}
    , m_venta{venta}
    , m_azar{azar}
{
}

bool Carrito::tiene(TipoLinea tipo, int codigo) const
{
    return std::ranges::any_of(m_venta.lineas, [=](const Linea& linea) { return linea.tipo == tipo && linea.codigo == codigo; });
}

Linea& Carrito::anade(TipoLinea tipo, int codigo, const QString& texto, int iva, Dinero unitario, double unidades)
{
    Linea& linea = m_venta.lineas.emplace_back();
    linea.tipo = tipo;
    linea.codigo = codigo;
    linea.texto = texto;
    linea.iva = iva;
    linea.unitario = unitario;
    linea.unidades = unidades;
    linea.precio = porUnidades(unitario, unidades);
    const auto titular = std::ranges::find(m_turno.empleados, m_venta.empleado, &Empleado::codigo);
    const bool suya = titular != m_turno.empleados.end() && !m_azar.porCien(Otro);
    firma(linea, suya ? **titular : *m_azar.elige(m_turno.empleados));
    return linea;
}

void Carrito::firma(Linea& linea, const Empleado& quien)
{
    linea.empleado = quien.codigo;
    linea.nombreEmpleado = quien.enElTicket;
}

Linea& Carrito::servicio(int posicion, TipoLinea tipo, int sesiones)
{
    const Servicio& suyo = m_negocio.catalogo.servicios()[static_cast<std::size_t>(posicion)];
    Dinero precio;
    if (tipo == TipoLinea::S)
        precio = suyo.precio;
    if (tipo == TipoLinea::B)
        precio = precioDeBono(suyo.precio, sesiones);
    const bool gratis = tipo != TipoLinea::S && tipo != TipoLinea::B;
    Linea& linea = anade(tipo, suyo.codigo, suyo.nombre, gratis && m_venta.cliente % 2 == 0 ? 0 : suyo.datos->iva, precio, 1);
    if (tipo != TipoLinea::B) // which is sold, not worked
        firma(linea, m_negocio.plantilla.atiende(m_turno.empleados, suyo.datos->seccion, suyo.datos->minutos,
                                                 m_azar.porCien(Otro) ? -1 : m_venta.gusto, m_azar));
    return linea;
}

double Carrito::unidadesUsuales(int posicion)
{
    const Articulo& suyo = m_negocio.catalogo.articulos()[static_cast<std::size_t>(posicion)];
    if (suyo.porPeso())
        return (m_azar.entre(1, 4) + m_azar.entre(0, 3)) * 0.25;
    const int tirada = m_azar.hasta(100);
    if (suyo.precio > Barato)
        return tirada < 93 ? 1 : 2;
    return tirada < 62 ? 1 : tirada < 88 ? 2 : tirada < 96 ? 3 : 6;
}

Linea& Carrito::articulo(int posicion, double unidades)
{
    const Articulo& suyo = m_negocio.catalogo.articulos()[static_cast<std::size_t>(posicion)];
    Linea& linea = anade(TipoLinea::P, suyo.codigo, suyo.nombre, suyo.datos->iva, suyo.precio, unidades);
    linea.articulo = posicion;
    if (suyo.variantes.empty()) {
        linea.codigoVariante = m_azar.porCien(50) ? u"-1"_s : QString{};
        return linea;
    }
    const int cuantas = static_cast<int>(suyo.variantes.size());
    linea.variante = m_azar.hasta(cuantas);
    for (int i = 0; i < cuantas && suyo.variantes[static_cast<std::size_t>(linea.variante)].stock < unidades; ++i)
        linea.variante = (linea.variante + 1) % cuantas;
    linea.codigoVariante = suyo.variantes[static_cast<std::size_t>(linea.variante)].codigo;
    return linea;
}

void Carrito::pack(int posicion, TipoLinea tipo)
{
    const Pack& suyo = m_negocio.catalogo.packs()[static_cast<std::size_t>(posicion)];
    Dinero precio;
    if (tipo == TipoLinea::F)
        precio = suyo.precio;
    if (tipo == TipoLinea::BF)
        precio = precioDeBono(suyo.precio, suyo.datos->sesionesBono);
    anade(tipo, suyo.codigo, suyo.nombre, suyo.datos->iva, precio, 1);
    if (tipo == TipoLinea::BF)
        return;
    for (const int incluido : suyo.servicios)
        servicio(incluido, tipo == TipoLinea::F ? TipoLinea::SF : TipoLinea::CSF);
}

Linea& Carrito::packSpa(int posicion)
{
    const Pack& suyo = m_negocio.catalogo.packsSpa()[static_cast<std::size_t>(posicion)];
    return anade(TipoLinea::PSPA, suyo.codigo, suyo.nombre, suyo.datos->iva, suyo.precio, 1);
}

Linea& Carrito::deposito(Dinero importe)
{
    return anade(TipoLinea::S, CodigoIngresoDeposito, u"Ingreso en Depósito"_s, 0, importe, 1);
}

void Carrito::encargo(qsizetype desde, qsizetype hasta)
{
    const auto& articulos = m_negocio.catalogo.articulos();
    std::vector<int> pedidos;
    qsizetype largo = 0;
    for (int intentos = 0; largo < desde && intentos < 4000; ++intentos) {
        if (intentos % 80 == 79) { // a blind alley
            pedidos.clear();
            largo = 0;
        }
        const int posicion = m_negocio.catalogo.sorteaArticulo(m_venta.fecha, m_azar);
        const qsizetype otro = articulos[static_cast<std::size_t>(posicion)].nombre.size() + (pedidos.empty() ? 0 : 3);
        if (largo + otro > hasta || std::ranges::find(pedidos, posicion) != pedidos.end())
            continue;
        pedidos.push_back(posicion);
        largo += otro;
    }
    for (const int posicion : pedidos)
        articulo(posicion, 1);
}

void Carrito::limita(Dinero importe)
{
    while (m_venta.lineas.size() > 1 && m_venta.total() > importe)
        m_venta.lineas.pop_back();
}

void Carrito::descuenta()
{
    constexpr std::array deSiempre{5, 10, 10, 15, 20};
    constexpr std::array deRebajas{20, 20, 30, 40, 50};
    const auto& tantos = m_negocio.calendario.hayRebajas(m_venta.fecha) ? deRebajas : deSiempre;
    for (Linea& linea : m_venta.lineas) {
        if (linea.precio < Compartible || linea.codigo == CodigoIngresoDeposito)
            continue;
        linea.descuento = Dinero::euros(linea.precio.enEuros() * m_azar.elige(tantos) / 100);
        linea.precio -= linea.descuento;
        return;
    }
}

bool Carrito::comparte()
{
    if (m_turno.empleados.size() < 2)
        return false;
    for (Linea& linea : m_venta.lineas) {
        const bool apta = linea.tipo == TipoLinea::S || linea.tipo == TipoLinea::P || linea.tipo == TipoLinea::F;
        if (!apta || linea.precio < Compartible)
            continue;
        reparte(linea, m_turno.empleados.size() > 2 && m_azar.porCien(20) ? 3 : 2);
        return true;
    }
    return false;
}

void Carrito::reparte(Linea& linea, int entre)
{
    const auto turno = static_cast<int>(m_turno.empleados.size());
    const int primero = m_azar.hasta(turno);
    Dinero resto = linea.precio;
    for (int i = 0; i < entre; ++i) {
        const Dinero parte = i + 1 == entre ? resto : Dinero{linea.precio.cuartos / entre};
        linea.reparto.push_back({m_turno.empleados[static_cast<std::size_t>((primero + i) % turno)]->codigo, parte});
        resto -= parte;
    }
    linea.empleado = EmpleadoCompartido;
    linea.nombreEmpleado = u""_s;
}

void Carrito::grava(Fisco& fisco, bool profesional)
{
    m_venta.impuestoIncluido = !profesional;
    for (Linea& linea : m_venta.lineas) {
        const bool recargo = profesional && linea.tipo == TipoLinea::P;
        const bool entera = linea.reparto.empty() && linea.unidades == static_cast<int>(linea.unidades);
        if (profesional && entera && linea.iva > 0)
            fisco.gravaAparte(linea, recargo);
        else
            fisco.grava(linea, recargo);
    }
}

} // namespace kestrane::demo
