#pragma once

#include "cash/filas_de_caja.h"
#include "cash/vocabulary/pagos.h"
#include "cash/vocabulary/totales_ventas.h"

namespace kestrane::cash {

/// Builds the report of sales by payment form once.
class FormasPagoVentas
{
public:
    explicit FormasPagoVentas(Listados& listados);
    void construye();

private:
    void ventas();
    void ventasRegularizadas();
    void cobrosDeDeudas();
    void devoluciones();
    void movimientos();
    void totales();
    void resumen();

    /// What a row tells of the sale or the debt that it belongs to.
    struct Operacion
    {
        Valor fecha;
        Valor numero;
        QString cliente;
        Valor empleado; ///< code
        Valor efectivo;
        Valor tarjeta;
    };
    [[nodiscard]] Operacion operacion(Recordset& cabecera);

    /// The lines of a sale and, for a split one, its money; `bloque` over the block of each row where it is given.
    void venta(Recordset& cabecera, const QString& lineas, const QString& cola, const Bloque* bloque);
    void lineaVendida(Recordset& cabecera, const Operacion& operacion, Recordset& linea, const Bloque* bloque);
    void ponClaseDeVenta(const Valor& numero, Recordset& linea);
    void pagoPartido(const Operacion& operacion, const Bloque& bloque);
    void dineroPartido(const Operacion& operacion, Pago pago, const Bloque& bloque);
    void cobroDeDeuda(Recordset& cobro);
    void lineaDevuelta(Recordset& abono, const Operacion& operacion, Recordset& linea);

    void nuevaFila(const Operacion& operacion);

    [[nodiscard]] QString texto(const Valor& valor) const { return m_listados.texto(valor); }
    /// " and tienda like '%Centro'"
    [[nodiscard]] QString deLaTienda() const;

    Listados& m_listados;
    ContextoEjecucion& m_contexto;
    InformeNuevo m_informe;
    TotalesVentas m_totales; ///< TotalPacksSpa is that of the kind SP here
    double m_ingresoDeposito = 0;
    double m_cajaInicial = 0;
    double m_totalNoCobrado = 0;
    double m_totalCobros = 0;
    double m_totalGastos = 0;
    double m_totalRetiradas = 0;
};

} // namespace kestrane::cash
