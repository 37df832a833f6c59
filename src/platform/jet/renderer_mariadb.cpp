#include "platform/jet/renderer_mariadb.h"

#include "platform/jet/formato_fecha.h"

namespace kestrane::jet {

using namespace enlazado;

namespace {

constexpr FormatoDeFecha Formato{.anio = "%Y", .mes = "%m", .dia = "%d", .hora = "%k:%i:%s"};
constexpr Envoltura Real{"CAST(", " AS DOUBLE)"};
constexpr Envoltura Redondeado{"CAST(ROUND(", ") AS SIGNED)"};

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
        return divisionQueFalla(cuenta, " DIV ", Redondeado);
    case Resto:
        return divisionQueFalla(cuenta, " MOD ", Redondeado);
    }
}

/// A power of zero below nought is out of range, which is an error where a division by zero would be a Null.
void RendererMariadb::divisionQueFalla(const Aritmetica& cuenta, const char* operador, const Envoltura& operando)
{
    envuelto({"IF(", " = 0, POW(0, -1), "}, *cuenta.derecha, PrecedenciaSql::Suma);
    envuelto(operando, *cuenta.izquierda);
    pon(operador);
    envuelto(operando, *cuenta.derecha);
    pon(")");
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
