#pragma once

#include "instalacion/demo/agenda.h"
#include "instalacion/demo/almacen.h"
#include "instalacion/demo/bonos.h"
#include "instalacion/demo/carrito.h"
#include "instalacion/demo/deudas.h"
#include "instalacion/demo/devoluciones.h"

namespace kestrane::demo {

/// Where tickets are made: what the client takes, how it is paid, and what follows from it in the other books.
class Mostrador
{
public:
    Mostrador(Negocio& negocio, Bonos& bonos, Deudas& deudas, Devoluciones& devoluciones, Vales& vales, Almacen& almacen,
              Agenda& agenda, Azar azar);

    /// One ticket; `cliente` may be null. Returns the cash that it left in the drawer.
    Dinero atiende(const Turno& turno, int segundos, Cliente* cliente);
    /// Delivery notes and parked tickets of the day, in the shops that sell goods.
    void dejaNotas(const Turno& turno);

private:
    /// True when this ticket must be a plain one: the client has come to use what was paid before.
    [[nodiscard]] bool vieneAGastar(const Turno& turno, const Cliente* cliente);
    [[nodiscard]] Venta abre(const Turno& turno, int segundos, const Cliente* cliente);
    [[nodiscard]] bool anula(const Turno& turno, Venta& venta, Cliente* cliente);
    void compone(const Turno& turno, Carrito& carrito, Cliente* cliente);
    [[nodiscard]] bool especial(const Turno& turno, Carrito& carrito, Cliente& cliente);
    [[nodiscard]] bool consume(Carrito& carrito, const Cliente& cliente);
    [[nodiscard]] bool vendeBono(const Turno& turno, Carrito& carrito, const Cliente& cliente);
    [[nodiscard]] bool vendePack(const Turno& turno, Carrito& carrito);
    [[nodiscard]] bool rara(const Turno& turno, Carrito& carrito, const Cliente* cliente);
    void corriente(Carrito& carrito, const Cliente* cliente);
    void servicios(Carrito& carrito, const Cliente* cliente, int cuantos);
    void articulos(Carrito& carrito, int cuantos);
    void arregla(Carrito& carrito, const Cliente* cliente);
    void remata(const Turno& turno, Carrito& carrito, const Cliente* cliente);
    void paga(const Turno& turno, Venta& venta, Cliente* cliente);
    void asienta(const Turno& turno, Venta& venta, Cliente* cliente);
    void observaCliente(const Turno& turno, const Cliente& cliente, int empleado);

    Negocio& m_negocio;
    Bonos& m_bonos;
    Deudas& m_deudas;
    Devoluciones& m_devoluciones;
    Vales& m_vales;
    Almacen& m_almacen;
    Agenda& m_agenda;
    Azar m_azar;
    Fisco m_fisco;
    Ruleta m_lineas;
    int m_anuladas = 0;
};

} // namespace kestrane::demo
