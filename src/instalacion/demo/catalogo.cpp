#include "instalacion/demo/catalogo.h"

#include "instalacion/demo/nombres.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

constexpr DatosTalla tallas[] = {{u"Extra pequeña", u"XS"}, {u"Pequeña", u"S"},     {u"Mediana", u"M"},    {u"Grande", u"L"},
                                 {u"Extra grande", u"XL"},  {u"Doble XL", u"XXL"},  {u"Talla 36", u"36"},  {u"Talla 38", u"38"},
                                 {u"Talla 40", u"40"},      {u"Talla 42", u"42"},   {u"Talla 44", u"44"},  {u"Talla 46", u"46"},
                                 {u"Número 24", u"24"},     {u"Número 26", u"26"},  {u"Número 28", u"28"}, {u"Número 30", u"30"},
                                 {u"Número 32", u"32"},     {u"Número 34", u"34"},  {u"Número 35", u"35"}, {u"Número 36", u"36"},
                                 {u"Número 37", u"37"},     {u"Número 38", u"38"},  {u"Número 39", u"39"}, {u"Número 40", u"40"},
                                 {u"Número 41", u"41"},     {u"Número 42", u"42"},  {u"Número 43", u"43"}, {u"Número 44", u"44"},
                                 {u"Número 45", u"45"},     {u"Talla única", u"U"}, {u"4 años", u"4A"},    {u"6 años", u"6A"},
                                 {u"8 años", u"8A"},        {u"10 años", u"10A"},   {u"12 años", u"12A"},  {u"14 años", u"14A"}};

constexpr QStringView colores[] = {u"Negro", u"Blanco", u"Azul Marino", u"Rojo",    u"Marrón", u"Beige",
                                   u"Gris",  u"Verde",  u"Rosa Palo",   u"Burdeos", u"Camel",  u"Estampado"};

constexpr int MasEnReyes = 60; // times

/// First and last size code of a range.
struct Intervalo
{
    int primera;
    int ultima;
};

Intervalo intervalo(Tallaje tallaje)
{
    switch (tallaje) {
    case Tallaje::Ropa:
        return {1, 6};
    case Tallaje::Pantalon:
        return {7, 12};
    case Tallaje::RopaNino:
        return {31, 36};
    case Tallaje::ZapatoNino:
        return {13, 18};
    case Tallaje::ZapatoMujer:
        return {19, 24};
    case Tallaje::ZapatoHombre:
        return {23, 29};
    case Tallaje::Ninguno:
        break;
    }
    return {0, -1};
}

/// Weight of a season in a month, in tenths.
int decimos(Temporada temporada, int mes)
{
    constexpr std::array<std::array<int, 12>, 7> tabla{{{10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10},
                                                        {1, 1, 3, 7, 16, 22, 24, 20, 10, 4, 1, 1},
                                                        {20, 18, 10, 6, 2, 1, 1, 2, 8, 16, 22, 24},
                                                        {20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 6, 60},
                                                        {0, 0, 0, 0, 0, 0, 0, 0, 0, 20, 30, 0},
                                                        {0, 8, 30, 30, 0, 0, 0, 0, 0, 0, 0, 0},
                                                        {0, 2, 20, 40, 40, 6, 0, 0, 0, 0, 0, 0}}};
    return tabla[static_cast<std::size_t>(temporada)][static_cast<std::size_t>(mes - 1)];
}

std::vector<Pack> cargaPacks(std::span<const DatosPack> datos)
{
    std::vector<Pack> packs;
    for (const DatosPack& uno : datos) {
        Pack pack{static_cast<int>(packs.size()) + 1, &uno, uno.nombre.toString(), Dinero::euros(uno.precio), {}};
        for (const int servicio : uno.servicios) {
            if (servicio >= 0)
                pack.servicios.push_back(servicio);
        }
        packs.push_back(std::move(pack));
    }
    return packs;
}

} // namespace

std::span<const DatosTalla> tallasDemo()
{
    return tallas;
}

std::span<const QStringView> coloresDemo()
{
    return colores;
}

Catalogo::Catalogo(const Sabor& datos, Azar azar)
    : m_sabor{datos}
    , m_packs{cargaPacks(datos.packs)}
    , m_packsSpa{cargaPacks(datos.packsSpa)}
{
    cargaServicios();
    cargaArticulos(azar);
    for (std::size_t i = 0; i < m_packs.size(); ++i) {
        if (m_packs[i].datos->sesionesBono > 0)
            m_packsConBono.push_back(static_cast<int>(i));
    }
}

void Catalogo::cargaServicios()
{
    std::vector<int> mujer;
    std::vector<int> hombre;
    int codigo = 1;
    for (const DatosServicio& datos : m_sabor.servicios) {
        if (datos.sesionesBono > 0)
            m_serviciosConBono.push_back(static_cast<int>(m_servicios.size()));
        m_servicios.push_back({codigo, &datos, datos.nombre.toString(), Dinero::euros(datos.precio)});
        mujer.push_back(datos.publico == Publico::Hombre ? 0 : datos.peso);
        hombre.push_back(datos.publico == Publico::Mujer ? 0 : datos.peso);
        codigo += codigo + 1 == CodigoIngresoDeposito ? 2 : 1;
    }
    m_ruletaMujer = Ruleta{mujer};
    m_ruletaHombre = Ruleta{hombre};
}

void Catalogo::cargaArticulos(Azar& azar)
{
    for (const DatosProducto& datos : m_sabor.productos) {
        Articulo articulo;
        articulo.codigo = static_cast<int>(m_articulos.size()) + 1;
        articulo.datos = &datos;
        articulo.nombre = datos.nombre.toString();
        articulo.precio = Dinero::euros(datos.precio);
        articulo.coste = Dinero::euros(datos.coste);
        const int masPorVenderse = datos.peso / 4;
        articulo.minimo = azar.entre(2, 8) + masPorVenderse;
        articulo.stock = articulo.minimo + azar.entre(5, 40);
        articulo.consumoInterno = datos.clase == ClaseProducto::Venta ? 0 : azar.entre(2, 15);
        cargaVariantes(articulo, azar);
        m_articulos.push_back(std::move(articulo));
    }
    for (int mes = 1; mes <= 12; ++mes) {
        std::vector<int> pesos;
        pesos.reserve(m_articulos.size());
        for (const Articulo& articulo : m_articulos)
            pesos.push_back(articulo.seVende() ? articulo.datos->peso * decimos(articulo.datos->temporada, mes) : 0);
        m_ruletaArticulos[static_cast<std::size_t>(mes - 1)] = Ruleta{pesos};
    }
    std::vector<int> deReyes;
    deReyes.reserve(m_articulos.size());
    for (const Articulo& articulo : m_articulos)
        deReyes.push_back((articulo.seVende() ? articulo.datos->peso * decimos(articulo.datos->temporada, 1) : 0) *
                          (articulo.datos->temporada == Temporada::Navidad ? MasEnReyes : 1));
    m_ruletaReyes = Ruleta{deReyes};
}

void Catalogo::cargaVariantes(Articulo& articulo, Azar& azar) const
{
    const Intervalo suyas = intervalo(articulo.datos->tallaje);
    if (suyas.primera > suyas.ultima)
        return;
    const int primerColor = azar.hasta(static_cast<int>(std::size(colores)));
    const int cuantos = azar.entre(2, 3);
    articulo.stock = 0;
    for (int talla = suyas.primera; talla <= suyas.ultima; ++talla) {
        for (int i = 0; i < cuantos; ++i) {
            Variante variante;
            variante.codigo = QString::number(articulo.variantes.size() + 1);
            variante.talla = talla;
            variante.color = (primerColor + i * 5) % static_cast<int>(std::size(colores)) + 1;
            if (!azar.porCien(15))
                variante.barras = codigoDeBarras(articulo.codigo * 100 + static_cast<int>(articulo.variantes.size()) + 500000);
            variante.stock = azar.entre(0, 5);
            articulo.stock += variante.stock;
            articulo.variantes.push_back(std::move(variante));
        }
    }
}

int Catalogo::minutosDe(int codigo) const
{
    const auto cual = std::ranges::find(m_servicios, codigo, &Servicio::codigo);
    return cual == m_servicios.end() ? 0 : cual->datos->minutos;
}

bool Catalogo::esPara(Publico publico, int posicion) const
{
    const Publico suyo = m_servicios[static_cast<std::size_t>(posicion)].datos->publico;
    return suyo == Publico::Todos || suyo == publico;
}

bool Catalogo::esPara(Publico publico, const Pack& pack) const
{
    return std::ranges::all_of(pack.servicios, [=, this](int servicio) { return esPara(publico, servicio); });
}

int Catalogo::sorteaArticulo(Fecha fecha, Azar& azar) const
{
    if (fecha.mes() == 1 && fecha.dia() >= 3 && fecha.dia() <= 6)
        return m_ruletaReyes.gira(azar);
    return m_ruletaArticulos[static_cast<std::size_t>(fecha.mes() - 1)].gira(azar);
}

int Catalogo::sorteaServicio(Publico publico, Azar& azar) const
{
    return (publico == Publico::Hombre ? m_ruletaHombre : m_ruletaMujer).gira(azar);
}

} // namespace kestrane::demo
