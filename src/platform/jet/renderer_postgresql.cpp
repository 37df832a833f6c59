#include "platform/jet/renderer_postgresql.h"

#include "platform/jet/formato_fecha.h"

namespace kestrane::jet {

using namespace enlazado;

namespace {

constexpr const char* Entero64 = "bigint";
constexpr const char* Real = "double precision";
constexpr FormatoDeFecha Formato{.anio = "YYYY", .mes = "MM", .dia = "DD", .hora = "FMHH24:MI:SS"};

/// A collation that LIKE accepts: it knows the alphabet and minds accents; ILIKE leaves case out.
constexpr const char* CotejoDeParecido = " COLLATE \"es-x-icu\"";

} // namespace

/// Through "numeric" a double has 15 significant digits; below 0.0001 and from 1E+15 on they are written with an exponent.
void RendererPostgresql::comoTexto(const Expresion& valor)
{
    if (valor.tipo == TipoColumna::FechaHora)
        return fechaComoTexto(valor);
    if (esEntero(valor.tipo))
        return envuelto({"CAST(", " AS text)"}, valor);
    envuelto({"REPLACE(CASE WHEN CAST(", " AS numeric) = 0"}, valor);
    envuelto({" OR ABS(CAST(", " AS numeric)) BETWEEN 0.0001 AND 999999999999999"}, valor);
    envuelto({" THEN CAST(TRIM_SCALE(CAST(", " AS numeric)) AS text)"}, valor);
    envuelto({" ELSE REGEXP_REPLACE(TRIM(TO_CHAR(CAST(", " AS numeric), '9.99999999999999EEEE')), '[.]{0,1}0*e', 'E') END, '.', '"},
             valor);
    pon(QString(m_regional.marcaDecimal).toUtf8().constData());
    pon("')");
}

void RendererPostgresql::fechaComoTexto(const Expresion& valor)
{
    const QByteArray dia = formatoDeDia(Formato, m_regional);
    envuelto({"CASE WHEN CAST(", " AS date) = DATE '1899-12-30'"}, valor);
    envuelto({" THEN TO_CHAR(", ", '"}, valor);
    pon(Formato.hora);
    envuelto({"') WHEN CAST(", " AS time) = TIME '00:00:00'"}, valor);
    envuelto({" THEN TO_CHAR(", ", '"}, valor);
    pon(dia.constData());
    envuelto({"') ELSE TO_CHAR(", ", '"}, valor);
    pon(dia.constData());
    pon(" ");
    pon(Formato.hora);
    pon("') END");
}

void RendererPostgresql::parecido(const Parecido& parecido)
{
    expresion(*parecido.valor, PrecedenciaSql::Primaria);
    pon(CotejoDeParecido);
    pon(parecido.sentido == ast::Sentido::Negado ? " NOT ILIKE " : " ILIKE ");
    expresion(*parecido.patron, PrecedenciaSql::Primaria);
    pon(CotejoDeParecido);
    pon(" ESCAPE ''");
}

void RendererPostgresql::aritmetica(const Aritmetica& cuenta)
{
    using enum OperadorAritmetico;
    const bool enteros = esEntero(cuenta.izquierda->tipo) && esEntero(cuenta.derecha->tipo);
    const char* tipo = enteros ? Entero64 : Real;
    switch (cuenta.operador) {
    case Suma:
        return cuentaCon(cuenta, " + ", tipo, PrecedenciaSql::Suma);
    case Resta:
        return cuentaCon(cuenta, " - ", tipo, PrecedenciaSql::Suma);
    case Producto:
        return cuentaCon(cuenta, " * ", tipo, PrecedenciaSql::Producto);
    case Division:
        return cuentaCon(cuenta, " / ", Real, PrecedenciaSql::Producto);
    case DivisionEntera:
        return divisionEntera(cuenta, " / ");
    case Resto:
        return divisionEntera(cuenta, " % ");
    }
}

/// Operands are rounded half to even to 32 bits, and what does not fit is an error; the quotient may need one bit more.
void RendererPostgresql::divisionEntera(const Aritmetica& cuenta, const char* operador)
{
    de32Bits(*cuenta.izquierda);
    pon(operador);
    de32Bits(*cuenta.derecha);
}

void RendererPostgresql::de32Bits(const Expresion& valor)
{
    const bool loEs = esEntero(valor.tipo) && (std::holds_alternative<enlazado::Columna>(valor.dato) || valor.esParametro());
    if (loEs)
        return operando(valor, Entero64, PrecedenciaSql::Primaria);
    envuelto({"CAST(CAST(", " AS integer) AS bigint)"}, valor);
}

void RendererPostgresql::cuentaCon(const Aritmetica& cuenta, const char* operador, const char* tipo, PrecedenciaSql precedencia)
{
    operando(*cuenta.izquierda, tipo, precedencia);
    pon(operador);
    operando(*cuenta.derecha, tipo, static_cast<PrecedenciaSql>(static_cast<int>(precedencia) + 1));
}

void RendererPostgresql::operando(const Expresion& valor, const char* tipo, PrecedenciaSql minima)
{
    if (const auto* parametro = std::get_if<enlazado::Parametro>(&valor.dato); parametro && tipo == Real)
        return marca(*parametro, TipoColumna::Doble, {"CAST(", " AS double precision)"});
    if (const auto* parametro = std::get_if<enlazado::Parametro>(&valor.dato); parametro && esEntero(valor.tipo))
        return marca(*parametro, TipoColumna::Entero32, {"CAST(", " AS bigint)"});
    const bool cuentaEntera = std::holds_alternative<Aritmetica>(valor.dato) && esEntero(valor.tipo);
    if ((tipo == Real && valor.tipo == TipoColumna::Doble) || (tipo == Entero64 && cuentaEntera))
        return expresion(valor, minima);
    envuelto({"CAST(", " AS "}, valor);
    pon(tipo);
    pon(")");
}

} // namespace kestrane::jet
