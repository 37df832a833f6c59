#include "instalacion/demo/maestros_productos.h"

#include "instalacion/demo/nombres.h"
#include "instalacion/demo/tablas.h"

#include <algorithm>

namespace kestrane::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr int SinProveedor = 0;
constexpr qint16 EnCaja = -1;

/// Codes as people at the counter know them: a barcode, a short number of the shop's own, or none.
Valor codigoVisible(const Articulo& articulo)
{
    if (articulo.codigo % 17 == 0)
        return Nulo{};
    if (articulo.codigo % 4 == 0)
        return QString::number(articulo.codigo).rightJustified(4, u'0');
    return codigoDeBarras(articulo.codigo);
}

/// The first of the articles for internal use has not been given a price.
bool sinPrecio(const Negocio& negocio, const Articulo& articulo)
{
    const auto interno = [](const Articulo& uno) { return !uno.seVende(); };
    return &articulo == &*std::ranges::find_if(negocio.catalogo.articulos(), interno);
}

void escribeArticulo(const Negocio& negocio, const Articulo& articulo, Azar& azar)
{
    const DatosProducto& datos = *articulo.datos;
    const bool bajoMinimo = articulo.codigo % 11 == 3;
    const double minimo = bajoMinimo ? std::max(articulo.minimo, articulo.stock + 2) : articulo.minimo;
    const bool ultimo = &articulo == &negocio.catalogo.articulos().back();
    negocio.destino.fila(
        tablas::Productos,
        {{articulo.codigo, codigoVisible(articulo), articulo.nombre, articulo.coste.enEuros(),
          sinPrecio(negocio, articulo) ? Valor{} : Valor{articulo.precio.enEuros()}, articulo.stock, minimo,
          articulo.consumoInterno, datos.seccion, ultimo ? SinProveedor : datos.proveedor, static_cast<qint16>(datos.clase),
          articulo.porPeso() ? qint16{1} : qint16{0}, articulo.seVende() && !azar.porCien(5) ? EnCaja : qint16{0}, false,
          azar.elige(negocio.tiendas).nombre}});
}

void escribeVariantes(Destino& destino, const Articulo& articulo)
{
    for (const Variante& variante : articulo.variantes) {
        const Valor barras = !variante.barras.isNull() ? Valor{variante.barras} : variante.talla % 2 == 0 ? Valor{u""_s} : Valor{};
        const double impuesto = Dinero::euros(articulo.precio.enEuros() * 21 / 121).enEuros();
        destino.fila(tablas::Productostextil,
                     {{articulo.codigo, variante.codigo, barras, variante.talla, variante.color, articulo.coste.enEuros(),
                       variante.talla == 29 ? Valor{} : Valor{articulo.precio.enEuros()}, impuesto, variante.stock}});
    }
}

/// Further barcodes; one of them stands on two products, as it happens in shops.
void escribeCodigosExtra(Destino& destino, const std::vector<Articulo>& articulos)
{
    for (const Articulo& articulo : articulos) {
        if (articulo.codigo % 6 != 5 && articulo.codigo % 17 != 0)
            continue;
        for (int i = 0; i < articulo.codigo % 3 + 1; ++i)
            destino.fila(tablas::ProductosCodigosextra, {{articulo.codigo, codigoDeBarras(900000 + articulo.codigo * 10 + i)}});
    }
    for (const int codigo : {1, 2})
        destino.fila(tablas::ProductosCodigosextra, {{codigo, codigoDeBarras(999999)}});
}

/// Tariff 1 for members, a tenth off; tariff 2 for the trade, a quarter off and not for everything.
void escribeTarifas(Destino& destino, const std::vector<Articulo>& articulos)
{
    for (const Articulo& articulo : articulos) {
        if (articulo.seVende())
            destino.fila(tablas::DetallePrecio, {{1, articulo.codigo, Dinero::euros(articulo.precio.enEuros() * 0.9).enEuros()}});
        if (articulo.seVende() && articulo.codigo % 2 == 0)
            destino.fila(tablas::DetallePrecio, {{2, articulo.codigo, Dinero::euros(articulo.precio.enEuros() * 0.75).enEuros()}});
    }
}

void escribeRetirado(const Negocio& negocio)
{
    const int codigo = static_cast<int>(negocio.catalogo.articulos().size()) + 1;
    negocio.destino.fila(tablas::Productos, {{codigo, codigoDeBarras(codigo), u"Artículo descatalogado"_s, 4.0, 9.5, 0.0, 0.0, 0.0,
                                              1, 1, qint16{0}, qint16{0}, EnCaja, true, negocio.tiendas.front().nombre}});
}

void escribeTallasYColores(Destino& destino)
{
    int codigo = 1;
    for (const DatosTalla& talla : tallasDemo())
        destino.fila(tablas::Tallas, {{codigo++, talla.nombre, talla.corta, false}});
    destino.fila(tablas::Tallas, {{codigo, u"Talla 48"_s, u"48"_s, true}});
    codigo = 1;
    for (const QStringView color : coloresDemo())
        destino.fila(tablas::Colorestextil, {{codigo++, color, false}});
    destino.fila(tablas::Colorestextil, {{codigo, u"Fucsia"_s, true}});
}

} // namespace

void escribeProductos(const Negocio& negocio, Azar& azar)
{
    const auto& articulos = negocio.catalogo.articulos();
    for (const Articulo& articulo : articulos) {
        escribeArticulo(negocio, articulo, azar);
        escribeVariantes(negocio.destino, articulo);
    }
    escribeRetirado(negocio);
    escribeCodigosExtra(negocio.destino, articulos);
    escribeTarifas(negocio.destino, articulos);
    if (negocio.sabor.oficio == Oficio::TallaColor)
        escribeTallasYColores(negocio.destino);
    int codigo = 1;
    for (const QStringView marca : negocio.sabor.marcas)
        negocio.destino.fila(tablas::Marcas, {{codigo++, marca, false}});
    negocio.destino.fila(tablas::Marcas, {{codigo, u"Marca retirada"_s, true}});
}

} // namespace kestrane::demo
