#pragma once

#include "bench/alta_desnuda.h"
#include "bench/deudas_desnudas.h"
#include "bench/periodo_de_caja.h"
#include "bench/textos_de_caja.h"

#include <map>

namespace kestrane::bench {

/// The cash sheet of all stores of a shop that sells services, annulled sales included, as a program would write it that knows no
/// layers: each block of the sheet is one joined statement, and the rows go into the reports file by one prepared INSERT in one
/// transaction. It shares no code with the report.
template<class Tienda>
class CajaDiariaDesnuda
{
public:
    CajaDiariaDesnuda(const Tienda& tienda, sqlite3* listados, PeriodoDeCaja periodo)
        : m_tienda{tienda}
        , m_listados{listados}
        , m_periodo{std::move(periodo)}
        , m_alta{listados, "INSERT INTO informes (texto35,texto34,texto33,fecha1,fecha2,fecha3,numerico1,texto10,texto2,texto30,"
                           "texto3,texto7,texto4,texto23,numerico2,numerico3,texto22,texto21) "
                           "VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"}
    {
        m_alta.texto(Empresa_, Empresa.toUtf8());
        m_alta.texto(Direccion_, Direccion.toUtf8());
        m_alta.texto(Tienda_, "Tienda =  " + Cif.toUtf8());
        m_alta.texto(Desde, m_periodo.desde.toUtf8());
        m_alta.texto(Hasta, m_periodo.hasta.toUtf8());
    }

    void construye()
    {
        ejecutaDesnuda(m_listados, "BEGIN");
        ejecutaDesnuda(m_listados, "DELETE FROM informes");
        ejecutaDesnuda(m_listados, "DELETE FROM subinformes");
        if (m_periodo.esDeUnDia())
            cajaInicial();
        ventas(Vendidas);
        ventas(Anuladas);
        cobros();
        devoluciones();
        salidas("gastos", "motivo", "7", "Gastos del Dia", &m_gastos);
        if (m_periodo.esDeUnDia())
            salidas("retiradas", "'Retirada'", "8", "Retiradas del Dia", nullptr);
        totales();
        observaciones();
        ejecutaDesnuda(m_listados, "COMMIT");
    }

private:
    using Filas = typename Tienda::Filas;

    enum Columna {
        Empresa_ = 1,
        Direccion_,
        Tienda_,
        Desde,
        Hasta,
        Dia,
        Numero,
        NumeroTexto,
        Cliente,
        Nif,
        Texto,
        Empleado,
        FormaPago,
        Pago,
        Neto,
        Impuestos,
        Bloque,
        Titulo
    };
    enum Ventas { Vendidas, Anuladas };
    /// Where a sale's statement has what.
    enum Venta {
        VOrden,
        VNumero,
        VDia,
        VPago,
        VEmpleado,
        VForma,
        VCliente,
        VNombre,
        VApellidos,
        VNif,
        VLinea,
        VCodigo,
        VTipo,
        VProducto,
        VUnidades,
        VPrecio,
        VImpuesto,
        VImpuesto2,
        VNombreEmpleado,
        VCoste,
        VDiaDeVenta
    };

    void cajaInicial();
    void ventas(Ventas cuales);
    void leeCompartidas(const QString& cabeceras, const QString& condicion);
    void leeSesiones(const QString& cabeceras, const QString& condicion);
    void linea(Filas& fila, Ventas cuales);
    void clase(Filas& fila, QByteArrayView tipo);
    void suma(const Filas& fila, QByteArrayView tipo);
    void noCobrada(double importe);
    void cobros();
    void devoluciones();
    void resta(const Filas& fila, QByteArrayView tipo, double precio);
    void salidas(const char* tabla, const char* motivo, const char* bloque, const char* titulo, double* total);
    void totales();
    void observaciones();

    void ponNumero(int numero);
    void ponCliente(Filas& fila, int codigo);
    void ponPago(Filas& fila, int pago, int forma);
    void ponBloque(const char* clave, const char* titulo);
    [[nodiscard]] QString enPeriodo(const QString& sql) const;

    const Tienda& m_tienda;
    sqlite3* m_listados;
    PeriodoDeCaja m_periodo;
    AltaDesnuda m_alta;
    QByteArray m_nif;
    std::map<std::tuple<int, int, QByteArray>, QByteArray> m_compartidas;
    std::unordered_map<int, QByteArray> m_sesiones;
    double m_servicios = 0;
    double m_productos = 0;
    double m_packs = 0;
    double m_packsSpa = 0;
    double m_coste = 0;
    double m_cajaInicial = 0;
    double m_gastos = 0;
    double m_cobros = 0;
    int m_unidades = 0;
    int m_tickets = 0;
};

} // namespace kestrane::bench

#include "bench/caja_diaria_desnuda_pasos.h"
