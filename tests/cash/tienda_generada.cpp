#include "cash/tienda_generada.h"

#include <array>
#include <random>

namespace kestrane::prueba {

using namespace Qt::StringLiterals;

namespace {

class Generador
{
public:
    explicit Generador(quint32 semilla) : m_azar{semilla} {}

    QStringList genera()
    {
        maestros();
        for (int numero = 101; numero <= 109; ++numero)
            venta(u"cabecera_factura"_s, u"detalle_factura"_s, numero);
        for (const int numero : {-2, 0, 120, 121})
            venta(u"cabecera_factura_anulaciones"_s, u"detalle_factura_anulaciones"_s, numero);
        for (int numero = 1; numero <= 3; ++numero)
            abono(numero);
        for (int numero = 1; numero <= 3; ++numero)
            albaran(numero);
        deudas();
        caja();
        vales();
        return m_sentencias;
    }

private:
    int hasta(int tope) { return static_cast<int>(m_azar() % static_cast<unsigned>(tope)); }
    bool unoDeCada(int veces) { return hasta(veces) == 0; }
    template<size_t N>
    QString uno(const std::array<const char16_t*, N>& opciones)
    {
        return QString::fromUtf16(opciones.at(static_cast<size_t>(hasta(static_cast<int>(N)))));
    }

    QString importe(int cuartos) { return QString::number((hasta(cuartos) + 1) * 0.25); }
    QString dia() { return uno(std::array{u"#03/13/2024#", u"#03/14/2024#", u"#03/15/2024#", u"#03/15/2024#", u"#03/16/2024#"}); }
    QString tienda() { return uno(std::array{u"'Centro'", u"'Centro'", u"'Gran Centro'", u"'Centro Sur'", u"null"}); }
    QString pago() { return uno(std::array{u"1", u"1", u"2", u"2", u"3", u"4", u"9"}); }
    QString tipo()
    {
        return uno(std::array{u"'S'", u"'S'", u"'P'", u"'P'", u"'B'", u"'CB'", u"'F'", u"'BF'", u"'CBF'", u"'PSPA'", u"'CPSPA'",
                              u"'SF'", u"'CSF'", u"'SP'"});
    }

    void alta(const QString& tabla, const QString& columnas, const QStringList& valores)
    {
        m_sentencias += u"insert into %1 (%2) values (%3)"_s.arg(tabla, columnas, valores.join(u", "_s));
    }

    void maestros()
    {
        for (int codigo = 1; codigo <= 4; ++codigo) {
            alta(u"formapago"_s, u"codigo, nombre"_s, {QString::number(codigo), u"'Forma %1'"_s.arg(codigo)});
            alta(u"empleados"_s, u"codigo, nombre, apellidos"_s,
                 {QString::number(codigo), u"'Empleado %1'"_s.arg(codigo), uno(std::array{u"'Ñíguez'", u"'Paz'", u"null"})});
            alta(u"clientes"_s, u"codigo, nombre, apellidos, nif, tienda"_s,
                 {QString::number(codigo), u"'Cliente %1'"_s.arg(codigo), u"'Á%1'"_s.arg(codigo),
                  uno(std::array{u"'11A'", u"'22B'", u"null"}), tienda()});
            alta(u"productos"_s, u"codigo, coste"_s, {QString::number(codigo), importe(40)});
            alta(u"productostextil"_s, u"codigopadre, codigohijo, coste"_s,
                 {QString::number(codigo), u"'%1'"_s.arg(codigo * 10), importe(40)});
        }
    }

    void venta(const QString& cabecera, const QString& detalle, int numero)
    {
        QString columnas =
            u"numero, fechaventa, tienda, cliente, empleado, pago, total, efectivo, tarjeta, num_albaran, caracteristicaventa"_s;
        QStringList valores{QString::number(numero),
                            dia(),
                            tienda(),
                            QString::number(hasta(6)),
                            QString::number(1 + hasta(4)),
                            pago(),
                            importe(400),
                            importe(200),
                            importe(200),
                            uno(std::array{u"null", u"0", u"7"}),
                            uno(std::array{u"null", u"'DV'", u"''"})};
        if (cabecera.endsWith(u"anulaciones")) {
            columnas += u", fecha, borrar"_s;
            valores += {dia(), uno(std::array{u"-1", u"0"})};
            if (unoDeCada(4))
                valores[1] = u"null"_s;
        }
        alta(cabecera, columnas, valores);
        lineas(detalle, u"num_factura"_s, QString::number(numero));
    }

    void lineas(const QString& tabla, const QString& columnasDelNumero, const QString& numeros)
    {
        const int cuantas = hasta(4);
        for (int i = 0; i < cuantas; ++i)
            linea(tabla, columnasDelNumero, numeros);
    }

    void linea(const QString& tabla, const QString& columnasDelNumero, const QString& numeros)
    {
        const bool compartida = unoDeCada(4);
        const QString codigo = QString::number(1 + hasta(5));
        const QString suTipo = tabla.endsWith(u"anulaciones") && unoDeCada(8) ? u"null"_s : tipo();
        const QString tasa = tabla == u"detalle_abono" ? QString{} : u", tipoimpuesto"_s;
        QStringList valores{numeros,
                            codigo,
                            suTipo,
                            u"'Línea %1'"_s.arg(hasta(100)),
                            uno(std::array{u"1", u"2", u"10", u"0.5", u"1.5"}),
                            importe(400),
                            importe(80),
                            tabla == u"detalle_abono" && unoDeCada(2) ? u"null"_s : importe(8),
                            importe(200),
                            compartida ? u"''"_s : uno(std::array{u"'Ana'", u"'Ana Paz'", u"'Ana  Paz Gil'"}),
                            compartida ? u"-1"_s : QString::number(1 + hasta(4)),
                            uno(std::array{u"null", u"'-1'", u"'10'", u"'20'"}),
                            tienda()};
        if (!tasa.isEmpty())
            valores += uno(std::array{u"0", u"4", u"10", u"21"});
        alta(tabla,
             columnasDelNumero +
                 u", codigo, tipo_venta, producto, unidades, precio, impuesto, impuesto_2, precio_unit, NombreEmpleado, "
                 "codEmpleado, codproductotextil, tienda"_s +
                 tasa,
             valores);
        if (compartida && columnasDelNumero == u"num_factura")
            reparte(numeros, codigo, suTipo == u"null" ? u"'S'"_s : suTipo);
    }

    void reparte(const QString& numero, const QString& codigo, const QString& suTipo)
    {
        const int cuantos = 1 + hasta(3);
        for (int i = 0; i < cuantos; ++i)
            alta(u"ventas_compartidas"_s, u"num_factura, cod_detalle, tipo_venta, cod_empleado, importe, tienda"_s,
                 {numero, codigo, suTipo, QString::number(1 + hasta(4)), importe(100), tienda()});
    }

    void abono(int numero)
    {
        const QString factura = QString::number(100 + hasta(10));
        alta(u"cabecera_abono"_s, u"numero, num_factura, fechaventa, tienda, cliente, pago, total, efectivo, tarjeta"_s,
             {QString::number(numero), factura, dia(), tienda(), QString::number(hasta(6)), pago(), importe(200), importe(100),
              importe(100)});
        lineas(u"detalle_abono"_s, u"num_abono, num_factura"_s,
               u"%1, %2"_s.arg(QString::number(numero), unoDeCada(2) ? factura : u"1"_s));
    }

    void albaran(int numero)
    {
        alta(u"cabecera_factura_temp"_s, u"numero, fecha, num_albaran, cliente, empleado, pago"_s,
             {QString::number(numero), dia(), uno(std::array{u"null", u"0", u"7", u"8"}), QString::number(hasta(6)), u"1"_s,
              pago()});
        lineas(u"detalle_factura_temp"_s, u"num_factura"_s, QString::number(numero));
    }

    void deudas()
    {
        for (int numero = 1; numero <= 3; ++numero) {
            alta(u"cabecera_pago"_s, u"num_pago, num_factura, importe, cliente, empleado, fecha, estado, tienda"_s,
                 {QString::number(numero), QString::number(101 + hasta(9)), importe(100), QString::number(hasta(6)), u"2"_s, dia(),
                  u"0"_s, tienda()});
            alta(u"detalle_pago"_s, u"num_pago, fecha, importe, forma_pago, empleado, efectivo, tarjeta, tienda"_s,
                 {QString::number(1 + hasta(4)), dia(), importe(40), pago(), QString::number(1 + hasta(5)), importe(20),
                  importe(20), tienda()});
        }
    }

    void caja()
    {
        for (const QString& tabla : {u"caja_inicial"_s, u"retiradas"_s, u"gastos"_s, u"gastos"_s}) {
            const bool gasto = tabla == u"gastos";
            QStringList valores{dia(), tienda(), importe(400), QString::number(1 + hasta(4))};
            if (gasto)
                valores += uno(std::array{u"'Luz'", u"'Ñoquis & té'", u"null"});
            alta(tabla, u"fecha, tienda, importe, empleado"_s + (gasto ? u", motivo"_s : QString{}), valores);
        }
        alta(u"observacioncaja"_s, u"fecha, hora, empleado, observacion, tienda"_s,
             {dia(), u"'9:30:00'"_s, u"1"_s, uno(std::array{u"'Falta cambio'", u"'Sin luz'", u"null"}), tienda()});
    }

    void vales()
    {
        for (int i = 0; i < 3; ++i)
            alta(
                u"vales_descuento"_s, u"desde, num_factura, descuento, num_factura_aplicado"_s,
                {dia(), QString::number(100 + hasta(10)), importe(60), unoDeCada(2) ? u"null"_s : QString::number(101 + hasta(9))});
    }

    std::mt19937 m_azar;
    QStringList m_sentencias;
};

} // namespace

QStringList tiendaGenerada(quint32 semilla)
{
    return Generador{semilla}.genera();
}

} // namespace kestrane::prueba
