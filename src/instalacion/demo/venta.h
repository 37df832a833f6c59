#pragma once

#include "instalacion/demo/destino.h"
#include "instalacion/demo/dinero.h"

#include <QString>

#include <optional>
#include <vector>

namespace kestrane::demo {

enum class TipoLinea { S, B, CB, P, F, BF, CBF, PSPA, CPSPA, SF, CSF, SP };

/// The code as the tables hold it.
[[nodiscard]] const QString& texto(TipoLinea tipo);

enum FormaPago : qint16 { Efectivo = 1, Tarjeta = 2, Dividido = 3, Deposito = 4, Bizum = 5, Transferencia = 6 };

inline constexpr int EmpleadoCompartido = -1;

/// The share of one employee in a line.
struct Reparto
{
    int empleado = 0;
    Dinero importe;
};

struct Linea
{
    TipoLinea tipo = TipoLinea::S;
    int codigo = 0;
    QString texto;
    double unidades = 1;
    Dinero unitario;
    Dinero precio; // of the whole line, tax included
    Dinero descuento;
    Dinero impuesto;
    Dinero impuesto2;
    int iva = 21;
    int empleado = 0;
    QString nombreEmpleado;
    int articulo = -1;      // position in the catalogue
    int variante = -1;      // position in the article
    QString codigoVariante; // null: none
    int arreglo = 0;
    std::vector<Reparto> reparto; // not empty on a shared line
};

struct Venta
{
    int numero = 0;
    Fecha fecha;
    Fecha hora;                        // on the zero day
    std::optional<Fecha> fechaFactura; // date on the invoice; none in what older programs left
    QString tienda;                    // null: lost
    int numeroTienda = 0;
    int cliente = 0; // 0: unknown
    int empleado = 0;
    int gusto = -1; // of the client, as in Plantilla::atiende
    FormaPago pago = Efectivo;
    Dinero efectivo;
    Dinero tarjeta;
    int albaran = 0;
    bool esDevolucion = false;
    bool aCuenta = false; // taken away without paying
    bool impuestoIncluido = true;
    std::vector<Linea> lineas;

    [[nodiscard]] Dinero total() const;
    [[nodiscard]] Dinero descuento() const;
};

/// How a sale was taken out of the books.
enum class Anulacion {
    NumeroNegativo, // renumbered to 0 or less
    Marcada,        // keeps its number, marked as deleted
    SinFecha,       // the date of the sale is lost, and the kind of a line
    EnCurso         // neither: not an annulled sale yet
};

/// The tables of a live sale: header, lines, shares.
void escribeVenta(Destino& destino, const Venta& venta);
/// The same for a sale that was annulled on `fecha`.
void escribeAnulada(Destino& destino, const Venta& venta, Anulacion anulacion, Fecha fecha);
/// The same for a note, or for a parked ticket, which has no number of a note.
void escribeTemporal(Destino& destino, const Venta& venta);

} // namespace kestrane::demo
