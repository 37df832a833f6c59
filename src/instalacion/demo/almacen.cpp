#include "instalacion/demo/almacen.h"

#include "instalacion/demo/tablas.h"

#include <algorithm>
#include <cmath>

namespace kestrane::demo {

namespace {

constexpr int Martes = 2;
constexpr int Jueves = 4;
constexpr double Paquete = 4; // units that are taken out for internal use at a time
constexpr double PocoDentro = 1;
constexpr double MuchoDentro = 6;
constexpr qint16 OtroTipo = 2; // the other side of a movement, which no report of movements reads

Valor numeroONulo(int numero)
{
    return numero < 0 ? Valor{} : Valor{numero};
}

} // namespace

Almacen::Almacen(Negocio& negocio, Azar azar) : m_negocio{negocio}, m_azar{azar} {}

void Almacen::apunta(const Articulo& articulo, const Apunte& apunte, Fecha fecha, const QString& tienda)
{
    m_negocio.destino.fila(tablas::Historicostock,
                           {{articulo.codigo, articulo.nombre, apunte.cantidad, articulo.coste.enEuros(), apunte.tipo,
                             qint16{apunte.movimiento}, fecha, numeroONulo(apunte.pedido), numeroONulo(apunte.ticket),
                             apunte.empleado, tienda.isNull() ? Valor{} : Valor{tienda}}});
}

void Almacen::mueve(const Linea& linea, double cantidad)
{
    Articulo& articulo = m_negocio.catalogo.articulos()[static_cast<std::size_t>(linea.articulo)];
    articulo.stock += cantidad;
    if (linea.variante >= 0)
        articulo.variantes[static_cast<std::size_t>(linea.variante)].stock += cantidad;
}

void Almacen::vende(const Venta& venta)
{
    for (const Linea& linea : venta.lineas) {
        if (linea.articulo < 0)
            continue;
        mueve(linea, -linea.unidades);
        const Articulo& articulo = m_negocio.catalogo.articulos()[static_cast<std::size_t>(linea.articulo)];
        apunta(articulo,
               {.movimiento = VentaDeProducto, .cantidad = -linea.unidades, .ticket = venta.numero, .empleado = venta.empleado},
               venta.fecha, venta.tienda);
    }
}

void Almacen::devuelve(const Venta& venta, const std::vector<Linea>& lineas, Fecha fecha)
{
    for (const Linea& linea : lineas) {
        if (linea.articulo < 0)
            continue;
        mueve(linea, linea.unidades);
        const Articulo& articulo = m_negocio.catalogo.articulos()[static_cast<std::size_t>(linea.articulo)];
        apunta(articulo,
               {.movimiento = DevolucionDeVenta, .cantidad = linea.unidades, .ticket = venta.numero, .empleado = venta.empleado},
               fecha, venta.tienda);
    }
}

void Almacen::cierraDia(const Turno& turno)
{
    const int dia = diaSemana(turno.dia.fecha);
    if (turno.esHoy || dia == Martes || dia == Jueves || turno.dia.detalle == Detalle::Muestra)
        repone(turno);
    if (turno.esHoy || m_azar.porMil(60))
        cuenta(turno, Regularizacion, 2);
    if (turno.esHoy || m_azar.porMil(35))
        cuenta(turno, AProveedor, 2);
    if (turno.esHoy || m_azar.porMil(25))
        cuenta(turno, Inventario, 12);
    if (turno.esHoy || m_azar.porMil(280))
        usaDentro(turno);
    if (turno.esHoy || m_azar.porMil(12))
        deLoBorrado(turno);
}

/// The last of an article whose card is gone.
void Almacen::deLoBorrado(const Turno& turno)
{
    Articulo borrado;
    borrado.codigo = static_cast<int>(m_negocio.catalogo.articulos().size()) + 2;
    borrado.nombre = QStringLiteral("Artículo sin ficha");
    borrado.coste = Dinero::euros(3);
    for (const Movimiento movimiento : {Regularizacion, AProveedor})
        apunta(borrado, {.movimiento = movimiento, .cantidad = -1, .empleado = turno.empleados.front()->codigo}, turno.dia.fecha,
               turno.tienda.nombre);
}

/// What is short comes in; on a day when nothing is, a small box of something now and then.
void Almacen::repone(const Turno& turno)
{
    const bool conPedido = m_azar.porCien(70);
    Apunte entrada{.movimiento = Entrada, .empleado = turno.empleados.front()->codigo};
    entrada.pedido = conPedido ? m_negocio.numeros.pedido++ : m_azar.porCien(50) ? 0 : -1;
    bool alguno = false;
    for (Articulo& articulo : m_negocio.catalogo.articulos()) {
        if (articulo.stock > articulo.minimo + 2)
            continue;
        entrada.cantidad = llegan(articulo);
        if (entrada.cantidad == 0)
            continue; // every size is there
        articulo.stock += entrada.cantidad;
        apunta(articulo, entrada, turno.dia.fecha, turno.tienda.nombre);
        alguno = true;
    }
    if (alguno || (!turno.esHoy && !m_azar.porCien(10)))
        return;
    Articulo& articulo = unoDe(ClaseProducto::Ambos);
    entrada.cantidad = 6;
    articulo.stock += entrada.cantidad;
    apunta(articulo, entrada, turno.dia.fecha, turno.tienda.nombre);
}

/// How many units come of an article that is short: each variant that is sold out, or boxes of six.
double Almacen::llegan(Articulo& articulo)
{
    double llega = 0;
    for (Variante& variante : articulo.variantes) {
        const double repuesto = variante.stock < 1 ? m_azar.entre(1, 4) - std::min(variante.stock, 0.0) : 0.0;
        variante.stock += repuesto;
        llega += repuesto;
    }
    const double falta = std::max(0.0, articulo.minimo - articulo.stock);
    return articulo.variantes.empty() ? 6.0 * m_azar.entre(1, 4) + 12.0 * std::ceil(falta / 6.0) : llega;
}

void Almacen::cuenta(const Turno& turno, Movimiento movimiento, int articulos)
{
    for (int i = 0; i < articulos; ++i) {
        auto& todos = m_negocio.catalogo.articulos();
        Articulo& articulo = todos[static_cast<std::size_t>(m_azar.hasta(static_cast<int>(todos.size())))];
        Apunte apunte{.movimiento = movimiento, .empleado = turno.empleados.front()->codigo};
        if (movimiento == Inventario) {
            apunte.cantidad = std::max(0.0, articulo.stock);
            apunte.tipo = m_azar.porCien(50) ? qint16{1} : OtroTipo;
        } else {
            apunte.cantidad = movimiento == AProveedor ? -m_azar.entre(1, 3) : m_azar.porCien(60) ? -1 : 1;
            if (articulo.variantes.empty())
                articulo.stock += apunte.cantidad;
        }
        apunta(articulo, apunte, turno.dia.fecha, turno.tienda.nombre);
    }
}

Articulo& Almacen::unoDe(ClaseProducto clase)
{
    auto& todos = m_negocio.catalogo.articulos();
    auto lugar = static_cast<std::size_t>(m_azar.hasta(static_cast<int>(todos.size())));
    while (todos[lugar].datos->clase != clase)
        lugar = (lugar + 1) % todos.size();
    return todos[lugar];
}

/// Material that the house uses up: a package goes from the shelves to the work room when little is left there.
void Almacen::usaDentro(const Turno& turno)
{
    Articulo& gastado = unoDe(m_azar.porCien(75) ? ClaseProducto::ConsumoInterno : ClaseProducto::Ambos);
    const double cuanto = m_azar.entre(1, 2);
    if (turno.esHoy || gastado.consumoInterno < cuanto + PocoDentro)
        traspasa(gastado, Paquete, turno);
    gastado.consumoInterno = std::max(0.0, gastado.consumoInterno - cuanto);
    const int quien = m_azar.elige(turno.empleados)->codigo;
    apunta(gastado, {.movimiento = BajaDeConsumo, .cantidad = -cuanto, .empleado = quien}, turno.dia.fecha, turno.tienda.nombre);
    Articulo& ambos = unoDe(ClaseProducto::Ambos);
    const bool sobra = ambos.consumoInterno > MuchoDentro && m_azar.porCien(50);
    if (turno.esHoy && ambos.consumoInterno < 2)
        traspasa(ambos, Paquete, turno);
    if (turno.esHoy || sobra)
        traspasa(ambos, -1, turno);
}

/// Units that go from the shelves to internal use, or back when there are fewer than none.
void Almacen::traspasa(Articulo& articulo, double unidades, const Turno& turno)
{
    const Movimiento movimiento = unidades > 0 ? AConsumoInterno : DeConsumoInterno;
    const int quien = m_azar.elige(turno.empleados)->codigo;
    const QString& tienda = turno.tienda.nombre;
    const Fecha fecha = turno.dia.fecha;
    apunta(articulo, {.movimiento = movimiento, .cantidad = -unidades, .empleado = quien}, fecha, tienda);
    if (unidades > 0)
        apunta(articulo, {.movimiento = movimiento, .cantidad = unidades, .tipo = OtroTipo, .empleado = quien}, fecha, tienda);
    articulo.stock -= unidades;
    articulo.consumoInterno += unidades;
}

} // namespace kestrane::demo
