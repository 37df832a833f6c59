#include "cash/dinero_en_caja.h"

#include "cash/vocabulary/deudas.h"
#include "cash/vocabulary/pagos.h"
#include "pipeline/fragmentos_sql.h"

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

/// Where a row holds what it was paid with and how much.
struct Reparto
{
    Pago entero;           ///< the code with which the whole amount counts
    QStringView formaPago; ///< the field of the code
    QStringView importe;   ///< the field of the whole amount
    QStringView parte;     ///< the field of this part of a split payment
};

constexpr Reparto EfectivoDeVenta{Pago::Contado, u"pago", u"total", u"efectivo"};
constexpr Reparto EfectivoDeCobro{Pago::Contado, u"FORMA_pago", u"importe", u"efectivo"};
constexpr Reparto TarjetaDeVenta{Pago::Tarjeta, u"pago", u"total", u"tarjeta"};
constexpr Reparto TarjetaDeCobro{Pago::Tarjeta, u"FORMA_pago", u"importe", u"tarjeta"};

double importeDe(Recordset& fila, const Reparto& reparto)
{
    const Valor forma = fila.Fields(reparto.formaPago);
    if (esPago(forma, reparto.entero))
        return fila.Fields(reparto.importe).doble();
    return esPago(forma, Pago::Partido) ? fila.Fields(reparto.parte).doble() : 0;
}

/// Unlike cash, the card looks at debts, and then not at the code.
double importeDeVentaConTarjeta(Listados& listados, Recordset& venta)
{
    const Valor numero = venta.Fields(u"Numero");
    if (TienePagoPendiente(listados, numero))
        return venta.Fields(u"total").doble() - ImportePendiente(listados, numero);
    return importeDe(venta, TarjetaDeVenta);
}

enum class Signo { Entra = 1, Sale = -1 };

/// A running value and the rows that feed it.
class Dinero
{
public:
    explicit Dinero(Listados& listados) : m_listados{listados} {}

    /// Adds what `importe` makes of each row of `cabeza` + period + store, or takes it off; `anuncia` sees the rows first.
    template<class Importe, class Anuncia>
    void recorre(const QString& cabeza, Signo signo, Importe importe, Anuncia anuncia);
    void recorre(const QString& cabeza, Signo signo, const Reparto& reparto)
    {
        recorre(
            cabeza, signo, [&](Recordset& fila) { return importeDe(fila, reparto); }, [](Recordset&) {});
    }
    [[nodiscard]] double total() const { return m_total; }

private:
    Listados& m_listados;
    double m_total = 0;
};

template<class Importe, class Anuncia>
void Dinero::recorre(const QString& cabeza, Signo signo, Importe importe, Anuncia anuncia)
{
    ContextoEjecucion& contexto = m_listados.contexto;
    Recordset filas;
    filas.Open(cabeza + entreFechas(contexto) + u" and tienda like "_s + patronTienda(contexto), contexto.ConexionTienda);
    if (filas.RecordCount() <= 0)
        return;
    anuncia(filas);
    for (Recordset& fila : filas) {
        m_total += static_cast<int>(signo) * importe(fila);
        m_listados.progreso.IncrementaBarra();
    }
}

void sumaVentasConTarjeta(Listados& listados, Dinero& dinero)
{
    dinero.recorre(
        u"Select * from cabecera_Factura where (pago = 2 or pago = 3) and fechaventa between "_s, Signo::Entra,
        [&](Recordset& venta) { return importeDeVentaConTarjeta(listados, venta); },
        [&](Recordset& ventas) { anunciaDeudas(listados.contexto, ventas); });
}

} // namespace

double efectivoDelPeriodo(Listados& listados)
{
    Dinero dinero{listados};
    dinero.recorre(u"Select * from cabecera_Factura where (pago = 1 or pago = 3) and fechaventa between "_s, Signo::Entra,
                   EfectivoDeVenta);
    dinero.recorre(u"Select * from detalle_pago where (forma_pago = 1 or forma_pago = 3) and fecha between "_s, Signo::Entra,
                   EfectivoDeCobro);
    dinero.recorre(u"Select * from cabecera_abono where (pago = 1 or pago = 3) and fechaventa between "_s, Signo::Sale,
                   EfectivoDeVenta);
    return dinero.total();
}

double tarjetaDelPeriodo(Listados& listados)
{
    Dinero dinero{listados};
    sumaVentasConTarjeta(listados, dinero);
    dinero.recorre(u"Select * from detalle_pago where (forma_pago = 2 or forma_pago = 3) and fecha between "_s, Signo::Entra,
                   TarjetaDeCobro);
    dinero.recorre(u"Select * from cabecera_abono where (pago = 2 or pago = 3) and fechaventa between "_s, Signo::Sale,
                   TarjetaDeVenta);
    return dinero.total();
}

} // namespace kestrane
