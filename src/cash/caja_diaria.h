#pragma once

#include "cash/filas_de_caja.h"
#include "cash/vocabulary/totales_ventas.h"

namespace kestrane::cash {

/// Builds the daily cash sheet once; made for one call of the builder.
class CajaDiaria
{
public:
    explicit CajaDiaria(Listados& listados);
    void construye();

private:
    void cajaInicial();
    void ventas();
    void ventasRegularizadas();
    void cobrosDeDeudas();
    void devoluciones();
    void gastos();
    void retiradas();
    void totales();
    void observaciones();
    void vales();

    // Of the sales and the annulled sales.
    void lineasDeVenta(Recordset& cabecera);
    void lineaDeVenta(Recordset& cabecera, Recordset& linea);
    void ponClaseDeVenta(Recordset& cabecera, Recordset& linea);
    void lineasRegularizadas(Recordset& cabecera);
    void lineaRegularizada(Recordset& cabecera, Recordset& linea);
    void ventaNoCobrada(Recordset& cabecera);
    void anunciaVentas(Recordset& cabeceras, const QString& lineas, const QString& cola) const;

    void lineasDevueltas(Recordset& abono);
    void lineaDevuelta(Recordset& abono, Recordset& linea);
    void salidaDeCaja(Recordset& fila, const Valor& motivo, const Bloque& bloque);
    void vale(Recordset& fila);

    // Steps of a row that is being added.
    void nuevaFila();
    void ponNumero(const Valor& numero);
    void ponCliente(const Valor& codigo);

    [[nodiscard]] QString texto(const Valor& valor) const { return m_listados.texto(valor); }
    /// "  and tienda like '%Centro'"
    [[nodiscard]] QString deLaTienda() const;

    Listados& m_listados;
    ContextoEjecucion& m_contexto;
    InformeNuevo m_informe;
    QString m_nif; ///< of the client found last: a client that is not found shows it too
    TotalesVentas m_totales;
    double m_cajaInicial = 0;
    double m_totalGastos = 0;
    double m_totalCobros = 0;
    double m_totalRetiradas = 0; ///< added up, shown nowhere
};

} // namespace kestrane::cash
