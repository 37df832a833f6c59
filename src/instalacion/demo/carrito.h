#pragma once

#include "instalacion/demo/fisco.h"
#include "instalacion/demo/negocio.h"

namespace kestrane::demo {

/// Rings up the lines of one sale.
class Carrito
{
public:
    Carrito(const Negocio& negocio, const Turno& turno, Venta& venta, Azar& azar);

    [[nodiscard]] Venta& venta() { return m_venta; }
    [[nodiscard]] bool tiene(TipoLinea tipo, int codigo) const;

    /// A service by its position, of kind S, or B with the price of so many sessions, or one of the kinds that cost nothing.
    Linea& servicio(int posicion, TipoLinea tipo = TipoLinea::S, int sesiones = 1);
    /// An article by its position; of those in sizes some variant is taken, one in stock when there is any.
    Linea& articulo(int posicion, double unidades);
    /// As many units as people buy of such a thing.
    [[nodiscard]] double unidadesUsuales(int posicion);
    /// A pack of services with the services that are delivered in it (F), or a bono of it (BF), or a use of that (CBF).
    void pack(int posicion, TipoLinea tipo);
    Linea& packSpa(int posicion);
    Linea& deposito(Dinero importe);

    /// A large order: articles until their names, joined by " / ", are from `desde` to `hasta` characters long.
    void encargo(qsizetype desde, qsizetype hasta);

    /// Leaves out the last lines until the sale costs no more than `importe`, but for the first.
    void limita(Dinero importe);
    /// Takes something off one line, more in the sales.
    void descuenta();
    /// Gives one line to two or three employees; false when no line or no staff is fit for it.
    bool comparte();
    /// Works out the taxes. The last thing to be done.
    void grava(Fisco& fisco, bool profesional);

private:
    Linea& anade(TipoLinea tipo, int codigo, const QString& texto, int iva, Dinero unitario, double unidades);
    void firma(Linea& linea, const Empleado& quien);
    void reparte(Linea& linea, int entre);

    const Negocio& m_negocio;
    const Turno& m_turno;
    Venta& m_venta;
    Azar& m_azar;
};

} // namespace kestrane::demo
