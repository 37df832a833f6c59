#pragma once

#include "cash/prueba_caja.h"

namespace kestrane::prueba {

/// Sales, returns and debts of the store Centro on 15 March 2024, amounts as they stand in a statement.
class PruebaVentas : public PruebaCaja
{
protected:
    PruebaVentas()
    {
        const char* const formas[] = {"Contado", "Tarjeta", "Mixto", "Deposito"};
        for (int codigo = 1; codigo <= 4; ++codigo)
            alta(QStringLiteral("formapago"), QStringLiteral("codigo, Nombre"),
                 QStringLiteral("%1, '%2'").arg(codigo).arg(QString::fromLatin1(formas[codigo - 1])));
    }

    void venta(int numero, int pago, const QString& total, const QString& efectivo = QStringLiteral("null"),
               const QString& tarjeta = QStringLiteral("null"))
    {
        alta(QStringLiteral("cabecera_factura"), Cabecera, cabecera(numero, pago, total, efectivo, tarjeta));
    }
    void anulada(int numero, int pago, const QString& total, int borrar)
    {
        alta(QStringLiteral("cabecera_factura_anulaciones"), Cabecera + QStringLiteral(", borrar"),
             cabecera(numero, pago, total, QStringLiteral("null"), QStringLiteral("null")) + QStringLiteral(", %1").arg(borrar));
    }
    void abono(int numero, int venta, int pago, const QString& total, const QString& efectivo = QStringLiteral("null"),
               const QString& tarjeta = QStringLiteral("null"))
    {
        alta(QStringLiteral("cabecera_abono"), Cabecera + QStringLiteral(", num_factura"),
             cabecera(numero, pago, total, efectivo, tarjeta) + QStringLiteral(", %1").arg(venta));
    }
    void deuda(int numero, int venta, const QString& importe)
    {
        alta(QStringLiteral("cabecera_pago"), QStringLiteral("num_pago, num_factura, importe, tienda"),
             QStringLiteral("%1, %2, %3, 'Centro'").arg(numero).arg(venta).arg(importe));
    }
    void cobro(int formaPago, const QString& importe, const QString& efectivo = QStringLiteral("null"),
               const QString& tarjeta = QStringLiteral("null"))
    {
        alta(QStringLiteral("detalle_pago"), QStringLiteral("num_pago, fecha, FORMA_pago, importe, efectivo, tarjeta, tienda"),
             QStringLiteral("1, #03/15/2024#, %1, %2, %3, %4, 'Centro'").arg(formaPago).arg(importe, efectivo, tarjeta));
    }
    /// In `gastos`, `retiradas` or `caja_inicial`.
    void movimiento(const QString& tabla, const QString& importe, const QString& fecha = QStringLiteral("#03/15/2024#"))
    {
        alta(tabla, QStringLiteral("fecha, tienda, importe"), QStringLiteral("%1, 'Centro', %2").arg(fecha, importe));
    }

private:
    inline static const QString Cabecera = QStringLiteral("Numero, fechaventa, tienda, pago, total, efectivo, tarjeta");

    static QString cabecera(int numero, int pago, const QString& total, const QString& efectivo, const QString& tarjeta)
    {
        return QStringLiteral("%1, #03/15/2024#, 'Centro', %2, %3, %4, %5").arg(numero).arg(pago).arg(total, efectivo, tarjeta);
    }
};

} // namespace kestrane::prueba
