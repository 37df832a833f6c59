#pragma once

#include "instalacion/demo/calendario.h"
#include "instalacion/demo/catalogo.h"
#include "instalacion/demo/clientela.h"
#include "instalacion/demo/plantilla.h"
#include "instalacion/demo/sucesos.h"
#include "instalacion/demo/venta.h"

namespace kestrane::demo {

struct Tienda
{
    int numero = 0;      // from 0
    QString nombre;      // empty in a shop that is alone
    double escala = 1.0; // of the average store
    int siguienteTicket = 1;
    Sucesos sucesos;
    bool fiadoHoy = false; // someone who paid today with cash and card owes a part
};

/// The next number of each book that all stores share.
struct Numeradores
{
    int pago = 1;
    int bono = 1;
    int cita = 1;
    int pedido = 1;
    int albaran = 1;
    int arreglo = 1;
    int temporal = 90'000'001;
    int anulada = 0; // falls
};

/// What everybody in the shop knows: the data of the trade, the calendar, the people, the shelves, the books.
struct Negocio
{
    const Parametros& parametros;
    const Sabor& sabor;
    const Calendario& calendario;
    Catalogo& catalogo;
    Plantilla& plantilla;
    Clientela& clientela;
    Destino& destino;
    std::vector<Tienda> tiendas;
    Numeradores numeros;
};

/// One day of one store.
struct Turno
{
    Tienda& tienda;
    DiaNegocio dia;
    Turnantes empleados;
    bool esHoy = false;
};

/// A time of day, in seconds since midnight.
[[nodiscard]] inline Fecha horaDe(int segundos)
{
    return Fecha::deSerie(0, segundos);
}

/// The same time without its odd minutes and seconds, as people make appointments.
[[nodiscard]] inline int enCuartosDeHora(int segundos)
{
    return segundos / 900 * 900;
}

} // namespace kestrane::demo
