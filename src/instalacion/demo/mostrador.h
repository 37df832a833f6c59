#pragma once

#include "instalacion/demo/agenda.h"
#include "instalacion/demo/almacen.h"
#include "instalacion/demo/bonos.h"
#include "instalacion/demo/carrito.h"
#include "instalacion/demo/deudas.h"
#include "instalacion/demo/devoluciones.h"

namespace kestrane::demo {

/// What is in a sale that is annulled later.
enum class CasoAnulado {
    Corriente,
    Servicio,
    Producto,
    Bono,
    ConsumoDeBono,
    BonoDePack,
    ConsumoDePack,
    Pack,
    PackSpa,
    ConsumoSpa,
    IngresoEnDeposito,
    DelDeposito,
    Profesional,
    Debida,
    Compartida,
    Arreglo,
    Cuantos
};

/// What is in a note, or in a parked ticket.
enum class CasoNota { Corriente, Compartida, Aparcada, PackAntiguo, DelDeposito, Pack, Bono, ConsumoDeBono, Cuantos };

/// The books in which a ticket is followed up.
struct Libros
{
    Bonos& bonos;
    Deudas& deudas;
    Devoluciones& devoluciones;
    Vales& vales;
    Almacen& almacen;
    Agenda& agenda;
};

/// Where tickets are made: what the client takes, how it is paid, and what follows from it in the other books.
class Mostrador
{
public:
    Mostrador(Negocio& negocio, const Libros& libros, Azar azar);

    /// One ticket; `cliente` may be null. Returns the cash that it left in the drawer.
    Dinero atiende(const Turno& turno, int segundos, Cliente* cliente);
    /// Delivery notes and parked tickets of the day; in salons hardly any.
    void dejaNotas(const Turno& turno);

private:
    /// True when this ticket must be a plain one: the client has come to use what was paid before.
    [[nodiscard]] bool vieneAGastar(const Turno& turno, const Cliente* cliente);
    [[nodiscard]] Venta abre(const Turno& turno, int segundos, const Cliente* cliente);
    [[nodiscard]] bool anula(const Turno& turno, Venta& venta, Cliente* cliente);
    [[nodiscard]] bool ocurre(CasoAnulado caso) const;
    void componeAnulada(Carrito& carrito, Cliente& cliente, CasoAnulado caso);
    void componeCompartida(Carrito& carrito, const Cliente& cliente);
    void packAnulado(Carrito& carrito, CasoAnulado caso);
    void bonoAnulado(Carrito& carrito, CasoAnulado caso);
    [[nodiscard]] bool ocurre(CasoNota caso) const;
    void deja(const Turno& turno, int orden, CasoNota caso);
    void componeNota(Carrito& carrito, const Cliente& cliente, CasoNota caso);
    void pierdeDatos(const Turno& turno, Venta& venta, const Cliente* cliente);
    void encarga(Carrito& carrito);
    void compone(const Turno& turno, Carrito& carrito, Cliente* cliente);
    [[nodiscard]] bool especial(const Turno& turno, Carrito& carrito, Cliente& cliente);
    [[nodiscard]] bool consume(Carrito& carrito, const Cliente& cliente);
    [[nodiscard]] bool vendeBono(const Turno& turno, Carrito& carrito, const Cliente& cliente);
    [[nodiscard]] bool vendePack(const Turno& turno, Carrito& carrito, const Cliente& cliente);
    [[nodiscard]] std::vector<int> paraEl(const std::vector<Pack>& packs, const Cliente& cliente) const;
    [[nodiscard]] bool rara(const Turno& turno, Carrito& carrito, const Cliente* cliente);
    void gastaDeposito(Carrito& carrito, const Cliente& cliente);
    void corriente(Carrito& carrito, const Cliente* cliente);
    void servicios(Carrito& carrito, const Cliente* cliente, int cuantos);
    void articulos(Carrito& carrito, int cuantos);
    void arregla(Carrito& carrito, const Cliente* cliente, int arreglo);
    [[nodiscard]] int prenda(QStringView arreglo, Fecha fecha);
    void remata(const Turno& turno, Carrito& carrito, const Cliente* cliente);
    void paga(const Turno& turno, Venta& venta, Cliente* cliente);
    static void pagaCon(FormaPago forma, Venta& venta);
    [[nodiscard]] bool debe(const Turno& turno, const Venta& venta, const Cliente* cliente);
    void fechaFactura(Venta& venta, const Cliente* cliente);
    void asienta(const Turno& turno, Venta& venta, Cliente* cliente);
    void observaCliente(const Turno& turno, const Cliente& cliente, int empleado);

    Negocio& m_negocio;
    Libros m_libros;
    Azar m_azar;
    Fisco m_fisco;
    Ruleta m_lineas;
    int m_anuladas = 0;
    std::vector<CasoAnulado> m_casosAnulados;
    std::size_t m_casoAnulado = 0;
    int m_encargos = 0;
    int m_comoVentas = 0;
    int m_observaciones = 0;
};

} // namespace kestrane::demo
