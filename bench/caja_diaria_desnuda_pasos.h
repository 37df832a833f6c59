#pragma once

// The steps of CajaDiariaDesnuda, in the order of the sheet's rows.

#include "bench/caja_diaria_desnuda.h"

namespace kestrane::bench {

/// Fills in the words that start with @: the period, and what the engines spell in their own way.
template<class Tienda>
QString CajaDiariaDesnuda<Tienda>::enPeriodo(const QString& sql) const
{
    QString texto = sql;
    texto.replace(QStringLiteral("@entre"), m_periodo.entre()).replace(QStringLiteral("@orden"), Tienda::orden());
    texto.replace(QStringLiteral("@clientes"), QStringLiteral("clientes k ON k.codigo = @ "));
    return texto;
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::ponNumero(int numero)
{
    m_alta.entero(Numero, numero);
    m_alta.texto(NumeroTexto, QByteArray::number(numero));
}

/// The columns from `codigo` on: code, name, family name, tax number. A client that is not there keeps the last one's number.
template<class Tienda>
void CajaDiariaDesnuda<Tienda>::ponCliente(Filas& fila, int codigo)
{
    if (fila.nulo(codigo)) {
        m_alta.prestado(Cliente, "Cliente Generico");
    } else {
        m_nif = fila.texto(codigo + 3).toByteArray();
        m_alta.texto(Cliente, junta(fila.texto(codigo + 1), " ", fila.texto(codigo + 2)));
    }
    m_alta.texto(Nif, m_nif);
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::ponPago(Filas& fila, int pago, int forma)
{
    m_alta.texto(FormaPago, fila.texto(forma));
    m_alta.texto(Pago, QByteArray::number(fila.entero(pago)));
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::ponBloque(const char* clave, const char* titulo)
{
    m_alta.prestado(Bloque, clave);
    m_alta.prestado(Titulo, titulo);
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::cajaInicial()
{
    auto fila =
        m_tienda.lee(enPeriodo(QStringLiteral("SELECT i.importe, e.nombre, e.apellidos FROM caja_inicial i LEFT JOIN empleados e "
                                              "ON e.codigo = i.empleado WHERE i.fecha @entre AND i.tienda IS NOT NULL ORDER BY "
                                              "i.@orden")));
    if (!fila.siguiente())
        return;
    m_alta.texto(Dia, Hoy.toUtf8());
    ponNumero(0);
    for (const int vacia : {Cliente, Nif, FormaPago, Pago})
        m_alta.prestado(vacia, "");
    m_alta.prestado(Texto, "Caja Inicial");
    m_alta.texto(Empleado, junta(fila.texto(1), " ", inicial(fila.texto(2))));
    m_cajaInicial = fila.doble(0);
    m_alta.numero(Neto, m_cajaInicial);
    m_alta.numero(Impuestos, 0);
    ponBloque("1", "Caja Inicial");
    m_alta.escribe();
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::leeCompartidas(const QString& cabeceras, const QString& condicion)
{
    m_compartidas.clear();
    auto fila =
        m_tienda.lee(enPeriodo(QStringLiteral("SELECT DISTINCT v.num_factura, v.cod_detalle, v.tipo_venta, e.nombre, e.apellidos, "
                                              "v.cod_empleado, v.@orden, e.@orden FROM %1 c JOIN ventas_compartidas v ON "
                                              "v.num_factura = c.numero JOIN empleados e ON e.codigo = v.cod_empleado WHERE %2 "
                                              "ORDER BY v.cod_empleado, v.@orden, e.@orden")
                                   .arg(cabeceras, condicion)));
    while (fila.siguiente()) {
        QByteArray& nombres = m_compartidas[{fila.entero(0), fila.entero(1), fila.texto(2).toByteArray()}];
        nombres.append(junta(",", fila.texto(3), " ", inicial(fila.texto(4))));
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::leeSesiones(const QString& cabeceras, const QString& condicion)
{
    m_sesiones.clear();
    auto fila = m_tienda.lee(enPeriodo(QStringLiteral("SELECT b.num_factura, b.num_sesiones FROM %1 c JOIN cabecera_bonos b ON "
                                                      "b.num_factura = c.numero WHERE %2 ORDER BY b.@orden")
                                           .arg(cabeceras, condicion)));
    while (fila.siguiente())
        m_sesiones.try_emplace(fila.entero(0), fila.nulo(1) ? QByteArray{} : QByteArray::number(fila.entero(1)));
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::ventas(Ventas cuales)
{
    const bool vendidas = cuales == Vendidas;
    const QString cabeceras = vendidas ? QStringLiteral("cabecera_factura") : QStringLiteral("cabecera_factura_anulaciones");
    const QString lineas = vendidas ? QStringLiteral("detalle_factura") : QStringLiteral("detalle_factura_anulaciones");
    const QString condicion =
        enPeriodo(vendidas ? QStringLiteral("c.fechaventa @entre AND c.tienda IS NOT NULL")
                           : QStringLiteral("(c.numero <= 0 OR c.borrar = -1) AND (c.fechaventa @entre OR c.fecha @entre) AND "
                                            "c.tienda IS NOT NULL"));
    const DeudasDesnudas<Tienda> deudas{m_tienda, cabeceras, condicion};
    leeCompartidas(cabeceras, condicion);
    if (vendidas)
        leeSesiones(cabeceras, condicion);
    QString sql = QStringLiteral(
        "SELECT c.@orden, c.numero, @dia, c.pago, c.empleado, f.nombre, k.codigo, k.nombre, k.apellidos, k.nif, l.@orden, "
        "l.codigo, "
        "l.tipo_venta, l.producto, l.unidades, l.precio, l.impuesto, l.impuesto_2, l.nombreempleado, p.coste, @venta "
        "FROM %1 c LEFT JOIN formapago f ON f.codigo = c.pago LEFT JOIN @clientes "
        "LEFT JOIN %2 l ON l.num_factura = c.numero %3 LEFT JOIN productos p ON l.tipo_venta = 'P' AND p.codigo = l.codigo "
        "WHERE %4 ORDER BY c.numero, c.@orden, l.@orden");
    sql = enPeriodo(sql.arg(cabeceras, lineas, vendidas ? QStringLiteral("AND l.tienda IS NOT NULL") : QString{}, condicion));
    sql.replace(QStringLiteral("k.codigo = @ "), QStringLiteral("k.codigo = c.cliente "));
    sql.replace(QStringLiteral("@venta"), Tienda::dia(QStringLiteral("c.fechaventa")));
    sql.replace(QStringLiteral("@dia"),
                Tienda::dia(vendidas ? QStringLiteral("c.fechaventa") : QStringLiteral("coalesce(c.fechaventa,c.fecha)")));
    auto fila = m_tienda.lee(sql);
    double cabecera = -1;
    std::optional<double> pendiente;
    bool mas = fila.siguiente();
    while (mas) {
        if (fila.doble(VOrden) != cabecera) {
            cabecera = fila.doble(VOrden);
            pendiente = deudas.de(fila.entero(VNumero));
            ++m_tickets;
            m_alta.texto(Dia, fila.texto(VDia));
            ponNumero(fila.entero(VNumero));
            if (pendiente || !fila.nulo(VLinea))
                ponCliente(fila, VCliente);
            ponPago(fila, VPago, VForma);
        }
        if (!fila.nulo(VLinea))
            linea(fila, cuales);
        QByteArray empleado;
        QByteArray dia;
        if (pendiente) {
            empleado = QByteArray::number(fila.entero(VEmpleado));
            dia = fila.texto(VDiaDeVenta).toByteArray();
        }
        mas = fila.siguiente();
        if (pendiente && (!mas || fila.doble(VOrden) != cabecera)) {
            m_alta.texto(Empleado, empleado);
            dia.isEmpty() ? m_alta.nulo(Dia) : m_alta.texto(Dia, dia);
            noCobrada(*pendiente);
        }
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::linea(Filas& fila, Ventas cuales)
{
    const QByteArray tipo = fila.texto(VTipo).toByteArray();
    const double impuestos = fila.doble(VImpuesto) + fila.doble(VImpuesto2);
    m_alta.texto(Texto, junta(numeroEnTexto(fila.doble(VUnidades)), " X ", fila.texto(VProducto)));
    const QByteArrayView nombre = fila.texto(VNombreEmpleado);
    if (nombre.isEmpty()) {
        const QByteArray como = cuales == Anuladas && fila.nulo(VTipo) ? QByteArray{"S"} : tipo;
        m_alta.texto(Empleado, "ompartida" + m_compartidas[{fila.entero(VNumero), fila.entero(VCodigo), como}]);
    } else {
        m_alta.texto(Empleado, cuales == Vendidas ? dosPalabras(nombre) : nombre);
    }
    m_alta.numero(Neto, fila.doble(VPrecio) - impuestos);
    m_alta.numero(Impuestos, impuestos);
    suma(fila, tipo);
    m_alta.nulo(Bloque);
    m_alta.nulo(Titulo);
    if (cuales == Anuladas)
        ponBloque("9", "Ventas Regularizadas");
    else
        clase(fila, tipo);
    m_alta.escribe();
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::clase(Filas& fila, QByteArrayView tipo)
{
    const QByteArrayView producto = fila.texto(VProducto);
    const QByteArray unidades = numeroEnTexto(fila.doble(VUnidades)) + " X ";
    if (tipo == "P" || tipo == "F" || tipo == "S" || tipo == "CB" || tipo == "CBF" || tipo == "CPSPA" || tipo == "PSPA" ||
        tipo == "CSF" || tipo == "SF")
        ponBloque("2", "Ventas Generales");
    if (tipo == "CB" || tipo == "CBF")
        m_alta.texto(Texto, junta(unidades, "Cons.Bono: ", producto));
    if (tipo == "CPSPA")
        m_alta.texto(Texto, junta(unidades, "Cons.Pack Spa: ", producto));
    if (tipo == "PSPA")
        m_alta.texto(Texto, junta("Pack Spa - ", producto));
    if (tipo == "CSF")
        m_alta.texto(Texto, junta("Cons.Pack Servicios: ", producto));
    if (tipo == "B" || tipo == "BF") {
        ponBloque("3", "Ventas de Bonos");
        m_alta.texto(Texto, junta(m_sesiones[fila.entero(VNumero)], " de - ", producto));
    }
    if (fila.entero(VPago) == 4) {
        m_alta.texto(Texto, junta("Cons.Deposito: ", producto));
        m_alta.numero(Neto, 0);
        m_alta.numero(Impuestos, 0);
    }
    if (tipo == "SF")
        m_alta.texto(Texto, junta("Servicio de Pack: ", producto));
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::suma(const Filas& fila, QByteArrayView tipo)
{
    const bool deDeposito = fila.entero(VPago) == 4;
    const double precio = deDeposito ? 0 : fila.doble(VPrecio);
    if (tipo == "S" || tipo == "B" || tipo == "CB") {
        if (tipo == "S" && fila.entero(VCodigo) == 2)
            return;
        m_servicios += precio;
        m_unidades += tipo == "B" ? 1 : static_cast<int>(fila.doble(VUnidades));
    } else if (tipo == "P") {
        m_productos += precio;
        m_coste += fila.doble(VCoste) * fila.doble(VUnidades);
    } else if (tipo == "F" || tipo == "BF" || tipo == "CBF") {
        m_packs += precio;
    } else if (tipo == "PSPA") {
        m_packsSpa += precio;
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::noCobrada(double importe)
{
    m_alta.prestado(Texto, "Venta no Cobrada");
    m_alta.numero(Neto, -importe);
    m_alta.numero(Impuestos, 0);
    ponBloque("5", "Ventas no Cobradas");
    m_alta.escribe();
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::cobros()
{
    QString sql =
        enPeriodo(QStringLiteral("SELECT d.num_pago, @dia, d.forma_pago, f.nombre, d.importe, p.num_factura, k.codigo, k.nombre, "
                                 "k.apellidos, k.nif, e.nombre, e.apellidos FROM detalle_pago d "
                                 "LEFT JOIN formapago f ON f.codigo = d.forma_pago LEFT JOIN cabecera_pago p ON p.num_pago = "
                                 "d.num_pago LEFT JOIN @clientes LEFT JOIN empleados e ON e.codigo = d.empleado "
                                 "WHERE d.fecha @entre AND d.tienda IS NOT NULL ORDER BY d.@orden"));
    sql.replace(QStringLiteral("k.codigo = @ "), QStringLiteral("k.codigo = coalesce(p.cliente,0) "));
    auto fila = m_tienda.lee(sql.replace(QStringLiteral("@dia"), Tienda::dia(QStringLiteral("d.fecha"))));
    while (fila.siguiente()) {
        m_alta.texto(Dia, fila.texto(1));
        ponNumero(fila.entero(0));
        ponCliente(fila, 6);
        m_alta.texto(Texto, "Pago Pendiente de Factura: " + QByteArray::number(fila.entero(5)));
        ponPago(fila, 2, 3);
        m_alta.texto(Empleado, fila.nulo(10) ? QByteArray{} : junta(fila.texto(10), " ", inicial(fila.texto(11))));
        m_alta.numero(Neto, fila.doble(4));
        m_alta.numero(Impuestos, 0);
        ponBloque("4", "Cobros de Deudas Pendientes");
        m_alta.escribe();
        m_cobros += fila.doble(4);
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::devoluciones()
{
    QString sql = enPeriodo(QStringLiteral(
        "SELECT a.numero, @dia, a.pago, f.nombre, a.num_factura, k.codigo, k.nombre, k.apellidos, k.nif, l.tipo_venta, l.producto, "
        "l.unidades, l.precio, l.impuesto, l.impuesto_2, l.nombreempleado, p.coste FROM cabecera_abono a "
        "JOIN detalle_abono l ON l.num_abono = a.numero AND l.tienda IS NOT NULL LEFT JOIN formapago f ON f.codigo = a.pago "
        "LEFT JOIN @clientes LEFT JOIN productos p ON l.tipo_venta = 'P' AND p.codigo = l.codigo "
        "WHERE a.fechaventa @entre AND a.tienda IS NOT NULL ORDER BY a.numero, a.@orden, l.@orden"));
    sql.replace(QStringLiteral("k.codigo = @ "), QStringLiteral("k.codigo = a.cliente "));
    auto fila = m_tienda.lee(sql.replace(QStringLiteral("@dia"), Tienda::dia(QStringLiteral("a.fechaventa"))));
    while (fila.siguiente()) {
        const QByteArray tipo = fila.texto(9).toByteArray();
        const double impuestos = fila.doble(13) + fila.doble(14);
        m_alta.texto(Dia, fila.texto(1));
        m_alta.entero(Numero, fila.entero(0));
        m_alta.texto(NumeroTexto, junta(QByteArray::number(fila.entero(0)), " / ", QByteArray::number(fila.entero(4))));
        ponCliente(fila, 5);
        m_alta.texto(Texto, junta(tipo == "SF" ? "Servicio de Pack: " : "Abono: ", fila.texto(10)));
        m_alta.texto(Empleado, fila.texto(15));
        ponPago(fila, 2, 3);
        m_alta.numero(Neto, -(fila.doble(12) + impuestos));
        m_alta.numero(Impuestos, -impuestos);
        resta(fila, tipo, fila.doble(12));
        ponBloque("6", "Devoluciones de venta");
        m_alta.escribe();
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::resta(const Filas& fila, QByteArrayView tipo, double precio)
{
    if (tipo == "S" || tipo == "B" || tipo == "CB") {
        m_servicios -= precio;
        m_unidades -= static_cast<int>(fila.doble(11));
    } else if (tipo == "P") {
        m_productos -= precio;
        m_coste -= fila.doble(16) * fila.doble(11);
    } else if (tipo == "F" || tipo == "BF" || tipo == "CBF") {
        m_packs -= precio;
    } else if (tipo == "PSPA") {
        m_packsSpa -= precio;
    }
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::salidas(const char* tabla, const char* motivo, const char* bloque, const char* titulo,
                                        double* total)
{
    const QString sql =
        QStringLiteral("SELECT %1, %2, g.importe, e.nombre, e.apellidos FROM %3 g LEFT JOIN empleados e ON e.codigo = "
                       "g.empleado WHERE g.fecha @entre AND g.tienda IS NOT NULL ORDER BY g.@orden");
    auto fila = m_tienda.lee(
        enPeriodo(sql.arg(Tienda::dia(QStringLiteral("g.fecha")), QString::fromLatin1(motivo), QString::fromLatin1(tabla))));
    while (fila.siguiente()) {
        m_alta.texto(Dia, fila.texto(0));
        ponNumero(0);
        for (const int vacia : {Cliente, FormaPago, Pago})
            m_alta.prestado(vacia, "");
        m_alta.nulo(Nif);
        m_alta.texto(Texto, fila.texto(1));
        m_alta.texto(Empleado, fila.nulo(3) ? QByteArray{} : junta(fila.texto(3), " ", inicial(fila.texto(4))));
        m_alta.numero(Neto, -fila.doble(2));
        m_alta.numero(Impuestos, 0);
        ponBloque(bloque, titulo);
        m_alta.escribe();
        if (total)
            *total += fila.doble(2);
    }
}

/// One statement for all.
template<class Tienda>
void CajaDiariaDesnuda<Tienda>::totales()
{
    AltaDesnuda totales{m_listados,
                        "UPDATE informes SET numerico13=?,numerico14=?,numerico9=?,numerico8=?,numerico10=?,numerico17=?,"
                        "numerico16=?,numerico18=?"};
    int columna = 0;
    for (const double total : {m_servicios + m_packs + m_packsSpa, m_productos, m_coste, double(m_unidades), m_cajaInicial,
                               double(m_tickets), m_gastos, m_cobros})
        totales.numero(++columna, total);
    totales.escribe();
}

template<class Tienda>
void CajaDiariaDesnuda<Tienda>::observaciones()
{
    AltaDesnuda alta{m_listados, "INSERT INTO subinformes (fecha1,fecha2,texto1,texto2) VALUES (?,?,?,?)"};
    const QString sql =
        QStringLiteral("SELECT %1, %2, e.nombre, e.apellidos, o.observacion FROM observacioncaja o LEFT JOIN empleados e "
                       "ON e.codigo = o.empleado WHERE o.fecha @entre AND o.tienda IS NOT NULL ORDER BY o.@orden");
    auto fila = m_tienda.lee(enPeriodo(sql.arg(Tienda::dia(QStringLiteral("o.fecha")), Tienda::momento(QStringLiteral("o.hora")))));
    while (fila.siguiente()) {
        alta.texto(1, fila.texto(0));
        alta.texto(2, fila.texto(1));
        alta.texto(3, fila.nulo(2) ? QByteArray{} : junta(fila.texto(2), " ", inicial(fila.texto(3))));
        alta.texto(4, fila.texto(4));
        alta.escribe();
    }
}

} // namespace kestrane::bench
