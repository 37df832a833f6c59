#pragma once

#include "bench/alta_desnuda.h"
#include "bench/deudas_desnudas.h"
#include "bench/periodo_de_caja.h"
#include "bench/textos_de_caja.h"

#include <map>

namespace kestrane::bench {

/// The cash of all stores ticket by ticket, annulled tickets included, as a program would write it that knows no layers: tickets
/// and money by one pass, the tax by one joined statement, the rows by one prepared INSERT in one transaction. It shares no code
/// with the report.
template<class Tienda>
class CajaTicketsDesnuda
{
public:
    CajaTicketsDesnuda(const Tienda& tienda, sqlite3* listados, PeriodoDeCaja periodo)
        : m_tienda{tienda}
        , m_listados{listados}
        , m_periodo{std::move(periodo)}
        , m_alta{listados, "INSERT INTO informes (texto35,texto34,texto33,fecha1,fecha2,numerico2,numerico1,numerico22,numerico17,"
                           "texto30,texto2) VALUES (?,?,?,?,?,?,?,?,?,?,?)"}
    {
        m_alta.texto(Empresa_, Empresa.toUtf8());
        m_alta.texto(Direccion_, Direccion.toUtf8());
        m_alta.texto(Tienda_, "Tienda = ");
        m_alta.texto(Desde, m_periodo.desde.toUtf8());
        m_alta.texto(Hasta, m_periodo.hasta.toUtf8());
    }

    void construye()
    {
        ejecutaDesnuda(m_listados, "BEGIN");
        ejecutaDesnuda(m_listados, "DELETE FROM informes");
        ejecutaDesnuda(m_listados, "DELETE FROM subinformes");
        tickets();
        anulados();
        const sqlite3_int64 ultima = sqlite3_last_insert_rowid(m_listados);
        abonos();
        cajaInicial();
        cobros();
        totales(ultima);
        impuestos();
        ejecutaDesnuda(m_listados, "COMMIT");
    }

private:
    using Filas = typename Tienda::Filas;

    enum Columna { Empresa_ = 1, Direccion_, Tienda_, Desde, Hasta, Numero, Importe, Entrado, Pago, FormaPago, Marca };

    [[nodiscard]] Filas lee(const char* sql) const
    {
        QString texto = QString::fromLatin1(sql);
        texto.replace(QStringLiteral("@entre"), m_periodo.entre()).replace(QStringLiteral("@orden"), Tienda::orden());
        return m_tienda.lee(texto.replace(QStringLiteral("@dia"), Tienda::dia(QStringLiteral("o.fecha"))));
    }

    void marca(const QByteArray& texto) { texto.isNull() ? m_alta.nulo(Marca) : m_alta.texto(Marca, texto); }

    /// Of the columns numero, pago and nombre, which come first.
    void fila(Filas& fila, double importe, double entrado)
    {
        m_alta.entero(Numero, fila.entero(0));
        m_alta.entero(Pago, fila.entero(1));
        m_alta.texto(FormaPago, fila.texto(2));
        m_alta.numero(Importe, importe);
        m_alta.numero(Entrado, entrado);
        m_alta.escribe();
    }

    void tickets()
    {
        const DeudasDesnudas<Tienda> deudas{m_tienda, QStringLiteral("cabecera_factura"),
                                            QStringLiteral("c.fechaventa ") + m_periodo.entre()};
        auto venta = lee("SELECT c.numero, c.pago, f.nombre, c.total, c.efectivo, c.tarjeta, c.caracteristicaventa, c.num_albaran "
                         "FROM cabecera_factura c LEFT JOIN formapago f ON f.codigo = c.pago "
                         "WHERE c.fechaventa @entre AND c.tienda IS NOT NULL ORDER BY c.numero, c.@orden");
        while (venta.siguiente()) {
            const auto deuda = deudas.de(venta.entero(0));
            m_pendiente += deuda.value_or(0);
            marca(venta.doble(7) > 0 ? "Albaran" : venta.texto(6) == "DV" ? "Abono" : QByteArray{});
            const double importe = venta.entero(1) == 4 ? 0 : venta.doble(3);
            fila(venta, importe, importe - deuda.value_or(0));
            dinero(venta, deuda, 1);
        }
    }

    /// Cash and card of a sale or a return: pago, total, efectivo and tarjeta are the columns 1, 3, 4 and 5.
    void dinero(const Filas& fila, std::optional<double> deuda, int signo)
    {
        const int pago = fila.entero(1);
        if (pago == 1)
            m_efectivo += signo * fila.doble(3);
        if (pago == 3)
            m_efectivo += signo * fila.doble(4);
        if (pago != 2 && pago != 3)
            return;
        const double conTarjeta = pago == 2 ? fila.doble(3) : fila.doble(5);
        m_tarjeta += signo * (deuda ? fila.doble(3) - *deuda : conTarjeta);
    }

    void anulados()
    {
        const DeudasDesnudas<Tienda> deudas{m_tienda, QStringLiteral("cabecera_factura_anulaciones"),
                                            QStringLiteral("c.fechaventa ") + m_periodo.entre()};
        auto venta =
            lee("SELECT c.numero, c.pago, f.nombre, c.total FROM cabecera_factura_anulaciones c LEFT JOIN formapago f ON "
                "f.codigo = c.pago WHERE (c.numero <= 0 OR c.borrar = -1) AND c.fechaventa @entre AND c.tienda IS NOT NULL "
                "ORDER BY c.numero, c.@orden");
        marca(" Eliminado");
        while (venta.siguiente()) {
            m_pendiente += deudas.de(venta.entero(0)).value_or(0);
            const double importe = venta.entero(1) == 4 ? 0 : venta.doble(3);
            fila(venta, importe, importe);
        }
    }

    void abonos()
    {
        auto abono = lee("SELECT a.numero, a.pago, f.nombre, a.total, a.efectivo, a.tarjeta, a.num_factura FROM cabecera_abono a "
                         "LEFT JOIN formapago f ON f.codigo = a.pago WHERE a.fechaventa @entre AND a.tienda IS NOT NULL "
                         "ORDER BY a.numero, a.@orden");
        while (abono.siguiente()) {
            marca(junta(" / ", QByteArray::number(abono.entero(6)), " Abono"));
            fila(abono, -abono.doble(3), -abono.doble(3));
            dinero(abono, std::nullopt, -1);
        }
    }

    void cajaInicial()
    {
        if (!m_periodo.esDeUnDia())
            return;
        auto caja = lee("SELECT i.importe FROM caja_inicial i WHERE i.fecha @entre AND i.tienda IS NOT NULL ORDER BY i.@orden");
        if (!caja.siguiente())
            return;
        for (const int nula : {Tienda_, Pago, FormaPago, Entrado})
            m_alta.nulo(nula);
        marca("Caja Inicial");
        m_alta.numero(Numero, 0);
        m_alta.numero(Importe, caja.doble(0));
        m_alta.escribe();
        m_efectivo += caja.doble(0);
    }

    void cobros()
    {
        auto cobro =
            lee("SELECT d.importe, d.forma_pago, d.efectivo, d.tarjeta FROM detalle_pago d WHERE d.fecha @entre AND d.tienda "
                "IS NOT NULL ORDER BY d.@orden");
        while (cobro.siguiente()) {
            const int forma = cobro.entero(1);
            m_cobros += cobro.doble(0);
            m_efectivo += forma == 1 ? cobro.doble(0) : forma == 3 ? cobro.doble(2) : 0;
            m_tarjeta += forma == 2 ? cobro.doble(0) : forma == 3 ? cobro.doble(3) : 0;
        }
    }

    /// The remarks and the expenses, whose sum is taken on the way.
    [[nodiscard]] QByteArray notas(double& gastos) const
    {
        QByteArray texto = "Observaciones de Caja: ";
        auto observacion =
            lee("SELECT @dia, o.observacion FROM observacioncaja o WHERE o.fecha @entre AND o.tienda IS NOT NULL ORDER BY "
                "o.@orden");
        while (observacion.siguiente()) {
            const QByteArrayView dia = observacion.texto(0);
            texto += junta(dia.sliced(8, 2), "/", dia.sliced(5, 2), "/", dia.first(4), " - ");
            texto += junta(observacion.texto(1), "\r");
        }
        texto += "\r\n";
        auto gasto =
            lee("SELECT g.importe, g.motivo FROM gastos g WHERE g.fecha @entre AND g.tienda IS NOT NULL ORDER BY g.@orden");
        for (int numero = 1; gasto.siguiente(); ++numero) {
            gastos += gasto.doble(0);
            texto += junta("Gastos: ", QByteArray::number(numero), " ", gasto.texto(1), "\r\n");
        }
        return QString::fromUtf8(texto).left(254).toUtf8();
    }

    [[nodiscard]] double retiradas() const
    {
        if (!m_periodo.esDeUnDia())
            return 0;
        auto suma = lee("SELECT sum(r.importe) FROM retiradas r WHERE r.fecha @entre AND r.tienda IS NOT NULL");
        return suma.siguiente() ? suma.doble(0) : 0;
    }

    /// One statement for all; what was left unpaid stands in the rows up to `ultima` alone.
    void totales(sqlite3_int64 ultima)
    {
        double gastos = 0;
        const QByteArray texto = notas(gastos);
        AltaDesnuda totales{m_listados,
                            "UPDATE informes SET numerico10=?,numerico11=?,numerico3=?,numerico20=?,numerico12=?,texto1=?,"
                            "numerico13=CASE WHEN rowid <= ? THEN ? END"};
        totales.numero(1, m_efectivo);
        totales.numero(2, m_tarjeta);
        totales.numero(3, -gastos);
        totales.numero(4, -retiradas());
        totales.numero(5, m_cobros);
        totales.texto(6, texto);
        totales.numero(7, static_cast<double>(ultima));
        totales.numero(8, -m_pendiente);
        totales.escribe();
    }

    /// By rate; that of 0 always has a row.
    void impuestos()
    {
        auto linea =
            lee("SELECT l.tipoimpuesto, l.precio FROM cabecera_factura c JOIN detalle_factura l ON l.num_factura = c.numero "
                "WHERE c.fechaventa @entre AND NOT (coalesce(l.tipo_venta,'') = 'S' AND l.codigo = 2) AND NOT EXISTS "
                "(SELECT 1 FROM detalle_abono a WHERE a.num_factura = l.num_factura AND a.codigo = l.codigo)");
        std::map<double, double> porTipo{{0.0, 0.0}};
        while (linea.siguiente())
            porTipo[linea.doble(0)] += linea.doble(1);
        AltaDesnuda alta{m_listados, "INSERT INTO subinformes (texto3,numerico5,numerico4) VALUES (?,?,?)"};
        for (const auto& [tipo, precio] : porTipo) {
            alta.texto(1, " al " + numeroEnTexto(tipo) + "% ");
            alta.numero(2, precio);
            alta.numero(3, precio - precio / (1 + tipo / 100));
            alta.escribe();
        }
    }

    const Tienda& m_tienda;
    sqlite3* m_listados;
    PeriodoDeCaja m_periodo;
    AltaDesnuda m_alta;
    double m_pendiente = 0;
    double m_efectivo = 0;
    double m_tarjeta = 0;
    double m_cobros = 0;
};

} // namespace kestrane::bench
