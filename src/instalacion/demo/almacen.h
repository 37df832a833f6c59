#pragma once

#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// The stock and its history: sales and returns as they happen, and what a shop does with its shelves beside selling.
class Almacen
{
public:
    Almacen(Negocio& negocio, Azar azar);

    void vende(const Venta& venta);
    void devuelve(const Venta& venta, const std::vector<Linea>& lineas, Fecha fecha);
    /// Orders, counts, corrections and internal use of one store's day.
    void cierraDia(const Turno& turno);

private:
    /// The meaning of a movement, as the history codes it.
    enum Movimiento : qint16 {
        Entrada = 1,
        VentaDeProducto = 2,
        Regularizacion = 3,
        Inventario = 4,
        AConsumoInterno = 5,
        DeConsumoInterno = 6,
        BajaDeConsumo = 7,
        AProveedor = 9,
        DevolucionDeVenta = 11
    };
    struct Apunte
    {
        Movimiento movimiento;
        double cantidad = 0;
        qint16 tipo = 1;
        int pedido = -1; // -1: Null
        int ticket = -1; // -1: Null
        int empleado = 0;
    };

    void apunta(const Articulo& articulo, const Apunte& apunte, Fecha fecha, const QString& tienda);
    void mueve(const Linea& linea, double cantidad);
    void repone(const Turno& turno);
    [[nodiscard]] double llegan(Articulo& articulo);
    void cuenta(const Turno& turno, Movimiento movimiento, int articulos);
    void usaDentro(const Turno& turno);
    void traspasa(Articulo& articulo, double unidades, const Turno& turno);
    void deLoBorrado(const Turno& turno);
    [[nodiscard]] Articulo& unoDe(ClaseProducto clase);

    Negocio& m_negocio;
    Azar m_azar;
};

} // namespace kestrane::demo
