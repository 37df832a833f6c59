#include "instalacion/demo/mostrador.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

namespace {

/// What a repair is done to: a word of the repair, and words of the articles.
struct Prenda
{
    QStringView arreglo;
    std::array<QStringView, 5> articulos; // the empty ones are none
};

constexpr Prenda prendas[] = {{u"Pantalón", {u"Pantalón", u"Vaquero"}},
                              {u"Cintura", {u"Pantalón", u"Vaquero", u"Falda"}},
                              {u"Vestido", {u"Vestido"}},
                              {u"Mangas", {u"Camisa", u"Chaqueta", u"Americana", u"Abrigo", u"Traje"}},
                              {u"Coderas", {u"Jersey", u"Americana", u"Chaqueta"}},
                              {u"Cremallera de Bota", {u"Bota"}},
                              {u"Cremallera", {u"Pantalón", u"Vaquero", u"Vestido", u"Cazadora", u"Falda"}},
                              {u"Tapas", {u"Salón", u"Bota", u"Botín", u"Fiesta", u"Mocasín"}},
                              {u"Suelas", {u"Cordones Caballero", u"Mocasín", u"Bota", u"Botín", u"Salón"}},
                              {u"Ensanchar", {u"Salón", u"Mocasín", u"Cordones Caballero", u"Colegial", u"Bailarina"}},
                              {u"Teñir", {u"Salón", u"Fiesta", u"Bailarina", u"Mocasín"}}};

bool seArregla(const Articulo& articulo, QStringView arreglo)
{
    if (articulo.variantes.empty())
        return false;
    const auto es = [arreglo](const Prenda& una) { return arreglo.contains(una.arreglo); };
    const auto* const suya = std::ranges::find_if(prendas, es);
    const auto nombra = [&](QStringView palabra) { return !palabra.isEmpty() && articulo.nombre.contains(palabra); };
    return suya == std::end(prendas) || std::ranges::any_of(suya->articulos, nombra);
}

constexpr int DiasEnElTaller = 12;

} // namespace

/// The position of an article that such a repair is done to.
int Mostrador::prenda(QStringView arreglo, Fecha fecha)
{
    const auto& articulos = m_negocio.catalogo.articulos();
    constexpr int Intentos = 400;
    int posicion = m_negocio.catalogo.sorteaArticulo(fecha, m_azar);
    for (int i = 0; i < Intentos && !seArregla(articulos[static_cast<std::size_t>(posicion)], arreglo); ++i)
        posicion = m_azar.hasta(static_cast<int>(articulos.size()));
    return posicion;
}

/// Something is brought to be mended: a job for a workshop and the line that is paid for it.
void Mostrador::arregla(Carrito& carrito, const Cliente* cliente, int arreglo)
{
    Linea& linea = carrito.servicio(arreglo);
    linea.arreglo = m_negocio.numeros.arreglo++;
    const QString quien = cliente != nullptr ? juntos(cliente->nombreDePila(), cliente->apellidosJuntos())
                                             : juntos(m_azar.elige(nombresDeMujer()), m_azar.elige(apellidos()));
    const Fecha fecha = carrito.venta().fecha;
    const bool reciente = m_negocio.calendario.hoy().diaDeSerie() - fecha.diaDeSerie() < DiasEnElTaller;
    const bool recogido = !reciente || m_azar.porCien(30);
    m_negocio.destino.fila(tablas::ArreglosProductos, {{linea.arreglo, prenda(linea.texto, fecha) + 1, m_azar.entre(1, 3), quien,
                                                        telefonoMovil(m_azar), recogido}});
}

} // namespace kestrane::demo
