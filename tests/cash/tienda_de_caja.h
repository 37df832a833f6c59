#pragma once

#include "pipeline/puesto_de_prueba.h"
#include "platform/runtime/error_ejecucion.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace kestrane::prueba {

/// A header of a sale, an annulled sale or a return, as SQL literals where a test may want a Null. Days are month/day/year.
struct Cabecera
{
    int numero = 1;
    QString dia = QStringLiteral("#03/15/2024#");
    QString tienda = QStringLiteral("'Centro'");
    int cliente = 0;
    int empleado = 1;
    QString pago = QStringLiteral("1");
    double total = 0;
    double efectivo = 0;
    double tarjeta = 0;
    int venta = 0;                            ///< that a return gives back
    QString anulada = QStringLiteral("null"); ///< `fecha`: the day of the annulment
    int borrar = -1;
};

/// A line: 12.10 with 2.10 of tax unless a test says otherwise.
struct Linea
{
    int codigo = 10;
    QString tipo = QStringLiteral("'S'");
    QString producto = QStringLiteral("Corte");
    double unidades = 1;
    QString precio = QStringLiteral("12.1");
    QString impuesto = QStringLiteral("2.1");
    QString impuesto2 = QStringLiteral("0");
    QString empleado = QStringLiteral("'Ana Paz'");
    QString hijo = QStringLiteral("null");
    QString tienda = QStringLiteral("'Centro'");
    double unitario = 12.1;
};

/// The till of a shop of 15 March 2024, on a single day unless a test widens the period: names of payments 1 to 4, the employees
/// Ana Paz (1) and Luis Polo (2), the client Eva Ruiz with the tax number 11A (5).
class TiendaDeCaja : public PuestoDePrueba
{
public:
    TiendaDeCaja()
    {
        contexto.TipoPrograma = QStringLiteral("PELUQUERIA");
        contexto.CifEmpresa = QStringLiteral("B12");
        periodo(15, 15);
        tienda.ejecuta({QStringLiteral("insert into formapago (codigo, nombre) values (1, 'Contado')"),
                        QStringLiteral("insert into formapago (codigo, nombre) values (2, 'Tarjeta')"),
                        QStringLiteral("insert into formapago (codigo, nombre) values (3, 'Partido')"),
                        QStringLiteral("insert into formapago (codigo, nombre) values (4, 'Deposito')"),
                        QStringLiteral("insert into empleados (codigo, nombre, apellidos) values (1, 'Ana', 'Paz')"),
                        QStringLiteral("insert into empleados (codigo, nombre, apellidos) values (2, 'Luis', 'Polo')"),
                        QStringLiteral("insert into clientes (codigo, nombre, apellidos, nif) values (5, 'Eva', 'Ruiz', '11A')")});
    }

    /// Days of March 2024.
    void periodo(int desde, int hasta)
    {
        contexto.FechaDesde = *Fecha::deCalendario(2024, 3, desde);
        contexto.FechaHasta = *Fecha::deCalendario(2024, 3, hasta);
    }

    void vende(const Cabecera& venta, std::initializer_list<Linea> lineas = {{}})
    {
        tienda.ejecuta(QStringLiteral("insert into cabecera_factura (numero, fechaventa, tienda, cliente, empleado, pago, total, "
                                      "efectivo, tarjeta) values ") +
                       valores(venta) + QStringLiteral(")"));
        ponLineas(QStringLiteral("detalle_factura (num_factura"), venta.numero, lineas);
    }
    void anula(const Cabecera& venta, std::initializer_list<Linea> lineas = {{}})
    {
        tienda.ejecuta(QStringLiteral("insert into cabecera_factura_anulaciones (numero, fechaventa, tienda, cliente, empleado, "
                                      "pago, total, efectivo, tarjeta, fecha, borrar) values ") +
                       valores(venta) + QStringLiteral(", %1, %2)").arg(venta.anulada).arg(venta.borrar));
        ponLineas(QStringLiteral("detalle_factura_anulaciones (num_factura"), venta.numero, lineas);
    }
    void devuelve(const Cabecera& abono, std::initializer_list<Linea> lineas = {{}})
    {
        tienda.ejecuta(QStringLiteral("insert into cabecera_abono (numero, fechaventa, tienda, cliente, pago, total, efectivo, "
                                      "tarjeta, num_factura) values (%1, %2, %3, %4, %5, %6, %7, %8, %9)")
                           .arg(abono.numero)
                           .arg(abono.dia, abono.tienda)
                           .arg(abono.cliente)
                           .arg(abono.pago)
                           .arg(abono.total)
                           .arg(abono.efectivo)
                           .arg(abono.tarjeta)
                           .arg(abono.venta));
        ponDevueltas(abono, lineas);
    }
    /// The debt `pago` over the sale `venta`.
    void debe(int pago, int venta, double importe, int cliente = 0, const QString& dia = QStringLiteral("#03/15/2024#"))
    {
        tienda.ejecuta(
            QStringLiteral("insert into cabecera_pago (num_pago, num_factura, importe, cliente, empleado, fecha, estado, "
                           "tienda) values (%1, %2, %3, %4, 2, %5, 0, 'Centro')")
                .arg(pago)
                .arg(venta)
                .arg(importe)
                .arg(cliente)
                .arg(dia));
    }
    void paga(int pago, double importe, int forma = 1, const QString& dia = QStringLiteral("#03/15/2024#"), double efectivo = 0,
              double tarjeta = 0)
    {
        tienda.ejecuta(QStringLiteral("insert into detalle_pago (num_pago, fecha, importe, forma_pago, empleado, tienda, efectivo, "
                                      "tarjeta) values (%1, %2, %3, %4, 1, 'Centro', %5, %6)")
                           .arg(pago)
                           .arg(dia)
                           .arg(importe)
                           .arg(forma)
                           .arg(efectivo)
                           .arg(tarjeta));
    }
    /// A row of gastos, retiradas or caja_inicial.
    void mueve(const QString& tabla, double importe, const QString& dia = QStringLiteral("#03/15/2024#"))
    {
        const bool gasto = tabla == QStringLiteral("gastos");
        tienda.ejecuta(QStringLiteral("insert into %1 (fecha, tienda, importe, empleado%2) values (%3, 'Centro', %4, 1%5)")
                           .arg(tabla, gasto ? QStringLiteral(", motivo") : QString{}, dia)
                           .arg(importe)
                           .arg(gasto ? QStringLiteral(", 'Luz'") : QString{}));
    }
    void comparte(int venta, int codigo, const QString& tipo, std::initializer_list<int> empleados)
    {
        for (const int empleado : empleados)
            tienda.ejecuta(QStringLiteral("insert into ventas_compartidas (num_factura, cod_detalle, tipo_venta, cod_empleado, "
                                          "importe) values (%1, %2, '%3', %4, 5)")
                               .arg(venta)
                               .arg(codigo)
                               .arg(tipo)
                               .arg(empleado));
    }
    void vale(int venta, double descuento, const QString& aplicado = QStringLiteral("null"))
    {
        tienda.ejecuta(QStringLiteral("insert into vales_descuento (desde, num_factura, descuento, num_factura_aplicado) values "
                                      "(#03/15/2024#, %1, %2, %3)")
                           .arg(venta)
                           .arg(descuento)
                           .arg(aplicado));
    }

    /// Lines of any table; `principio` is the table and the column of the sale's number: "detalle_factura (num_factura".
    void ponLineas(const QString& principio, int numero, std::initializer_list<Linea> lineas)
    {
        for (const Linea& linea : lineas)
            tienda.ejecuta(QStringLiteral("insert into ") + principio + columnasDeLinea().arg(numero) + valores(linea));
    }

    /// The number of the error that `constructor` ends in, 0 when it does not.
    int error(Constructor constructor)
    {
        try {
            constructor(listados);
            return 0;
        } catch (const ErrorEjecucion& fallo) {
            return fallo.numero();
        }
    }

private:
    static QString valores(const Cabecera& venta)
    {
        return QStringLiteral("(%1, %2, %3, %4, %5, %6, %7, %8, %9")
            .arg(venta.numero)
            .arg(venta.dia, venta.tienda)
            .arg(venta.cliente)
            .arg(venta.empleado)
            .arg(venta.pago)
            .arg(venta.total)
            .arg(venta.efectivo)
            .arg(venta.tarjeta);
    }
    static QString columnasDeLinea()
    {
        return QStringLiteral(", codigo, tipo_venta, producto, unidades, precio, precio_unit, impuesto, impuesto_2, "
                              "NombreEmpleado, codproductotextil, tienda) values (%1");
    }
    static QString valores(const Linea& linea)
    {
        return QStringLiteral(", %1, %2, '%3', %4, %5, %6, %7, %8, %9, ")
                   .arg(linea.codigo)
                   .arg(linea.tipo, linea.producto)
                   .arg(linea.unidades)
                   .arg(linea.precio)
                   .arg(linea.unitario)
                   .arg(linea.impuesto, linea.impuesto2, linea.empleado) +
               linea.hijo + QStringLiteral(", ") + linea.tienda + u')';
    }
    void ponDevueltas(const Cabecera& abono, std::initializer_list<Linea> lineas)
    {
        for (const Linea& linea : lineas)
            tienda.ejecuta(QStringLiteral("insert into detalle_abono (num_abono, num_factura") +
                           columnasDeLinea().arg(QStringLiteral("%1, %2").arg(abono.numero).arg(abono.venta)) + valores(linea));
    }
};

/// A report of the till on such a shop.
template<Constructor Construye>
class PruebaDeInforme : public testing::Test
{
protected:
    /// Builds the report and reads columns of its rows.
    QStringList filas(const QString& columnas)
    {
        Construye(m_tienda.listados);
        return m_tienda.filas(columnas);
    }

    TiendaDeCaja m_tienda;
};

} // namespace kestrane::prueba
