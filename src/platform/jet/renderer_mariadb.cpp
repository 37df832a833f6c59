#include "platform/jet/renderer_mariadb.h"

#include "platform/jet/formato_fecha.h"

namespace kestrane::jet {

using namespace enlazado;

namespace {

constexpr FormatoDeFecha Formato{.anio = "%Y", .mes = "%m", .dia = "%d", .hora = "%k:%i:%s"};
constexpr Envoltura Real{"CAST(", " AS DOUBLE)"};
/// A whole number of 32 bits, rounded half to even; the product of any other one leaves 64 bits, which is an error.
constexpr Envoltura Entero{"(CAST(ROUND(CAST(", " AS DOUBLE)) AS SIGNED) * 4294967296 DIV 4294967296)"};
constexpr Envoltura Llano{"", ""};

} // namespace

/// The format is that of a double with 15 significant digits; the addition turns -0 into 0.
void RendererMariadb::comoTexto(const Expresion& valor)
{
    if (valor.tipo == TipoColumna::FechaHora)
        return fechaComoTexto(valor);
    if (esEntero(valor.tipo))
        return envuelto({"CAST(", " AS CHAR)"}, valor);
    envuelto({"REPLACE(SFORMAT('{:.15G}', CAST(", " AS DOUBLE) + 0e0), '.', '"}, valor);
    pon(QString(m_regional.marcaDecimal).toUtf8().constData());
    pon("')");
}

void RendererMariadb::fechaComoTexto(const Expresion& valor)
{
    const QByteArray dia = formatoDeDia(Formato, m_regional);
    envuelto({"DATE_FORMAT(", ", CASE WHEN DATE("}, valor);
    envuelto({"", ") = '1899-12-30' THEN '"}, valor);
    pon(Formato.hora);
    envuelto({"' WHEN TIME(", ") = '00:00:00' THEN '"}, valor);
    pon(dia.constData());
    pon("' ELSE '");
    pon(dia.constData());
    pon(" ");
    pon(Formato.hora);
    pon("' END)");
}

/// LIKE has an escape character whatever the session says, and an empty one is refused: one that no text holds does no harm.
void RendererMariadb::parecido(const Parecido& parecido)
{
    cotejado(*parecido.valor);
    pon(parecido.sentido == ast::Sentido::Negado ? " NOT LIKE " : " LIKE ");
    expresion(*parecido.patron, PrecedenciaSql::Suma);
    pon(" ESCAPE CHAR(1)");
}

void RendererMariadb::aritmetica(const Aritmetica& cuenta)
{
    using enum OperadorAritmetico;
    const Expresion& izquierda = *cuenta.izquierda;
    const Expresion& derecha = *cuenta.derecha;
    switch (cuenta.operador) {
    case Suma:
        return infija(izquierda, " + ", derecha, PrecedenciaSql::Suma);
    case Resta:
        return infija(izquierda, " - ", derecha, PrecedenciaSql::Suma);
    case Producto:
        return infija(izquierda, " * ", derecha, PrecedenciaSql::Producto);
    case Division:
        return divisionQueFalla(cuenta, " / ", Real);
    case DivisionEntera:
        return divisionQueFalla(cuenta, " DIV ", Entero);
    case Resto:
        return divisionQueFalla(cuenta, " MOD ", Entero);
    }
}

/// A power of zero below nought is out of range, which is an error where a division by zero would be a Null. LEAST does not look
/// behind a Null, which divided by zero is one; what else it looks at there is no less than any dividend.
void RendererMariadb::divisionQueFalla(const Aritmetica& cuenta, const char* operador, const Envoltura& clase)
{
    pon("LEAST(");
    operando(*cuenta.izquierda, clase);
    pon(", IF(");
    operando(*cuenta.derecha, clase);
    pon(&clase == &Entero ? " = 0, CAST(POW(0, -1) AS SIGNED), 2147483647))" : " = 0, POW(0, -1), 1.7976931348623157E308))");
    pon(operador);
    operando(*cuenta.derecha, clase);
}

/// What has 32 bits already stands as it is.
void RendererMariadb::operando(const Expresion& valor, const Envoltura& clase)
{
    const bool entero = esEntero(valor.tipo) && (std::holds_alternative<enlazado::Columna>(valor.dato) || valor.esParametro());
    envuelto(&clase == &Entero && entero ? Llano : clase, valor);
}

void RendererMariadb::subconsulta(const Consulta& una)
{
    if (!una.limite)
        return consulta(una);
    pon("SELECT * FROM (");
    consulta(una);
    pon(") AS limitada");
}

} // namespace kestrane::jet
