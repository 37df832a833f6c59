#include "platform/database/ligador.h"

#include "platform/database/conversion_columna.h"
#include "platform/database/error_motor.h"
#include "platform/runtime/conversiones.h"

using namespace Qt::StringLiterals;

namespace kestrane::database {

using jet::Literal;
using jet::Parametro;
using jet::TipoColumna;

namespace {

[[noreturn]] void noConvertible(const Parametro& marca, const QString& texto, const QString& en)
{
    const QString donde = marca.columna.isEmpty() ? QString{} : u" para la columna \"%1\""_s.arg(marca.columna);
    throw ErrorMotor(ErrorMotor::Categoria::Restriccion, ErrorEjecucion::SentenciaRechazada,
                     u"No se puede convertir \"%1\" en %2%3."_s.arg(texto, en, donde));
}

} // namespace

std::span<const Ligado> Ligador::liga(std::span<const Parametro> marcas, std::span<const Literal> literales)
{
    m_ligados.clear();
    m_textos.clear();
    for (const Parametro& marca : marcas)
        m_ligados.push_back(convierte(marca, literales[static_cast<size_t>(marca.literal)]));
    return m_ligados;
}

Ligado Ligador::convierte(const Parametro& marca, const Literal& literal)
{
    switch (marca.tipo) {
    case TipoColumna::Texto:
    case TipoColumna::Memo:
        return comoTexto(marca, literal);
    case TipoColumna::FechaHora:
        return comoFecha(marca, literal);
    default:
        return comoNumero(marca, literal);
    }
}

QStringView Ligador::guarda(QString texto)
{
    return m_textos.emplace_back(std::move(texto));
}

Ligado Ligador::comoTexto(const Parametro& marca, const Literal& literal)
{
    QStringView texto = literal.texto;
    if (literal.clase == Literal::Clase::Fecha)
        texto = guarda(aTexto(literal.fecha, m_regional));
    else if (literal.clase != Literal::Clase::Texto)
        texto = guarda(aTexto(marca.negado ? -literal.numero : literal.numero, m_regional));
    exigeEscribible(texto, marca.columna);
    exigeAncho(texto, marca.ancho, marca.columna);
    return texto;
}

double Ligador::numeroDe(const Parametro& marca, const Literal& literal) const
{
    switch (literal.clase) {
    case Literal::Clase::Entero:
    case Literal::Clase::Doble:
        return literal.numero;
    case Literal::Clase::Fecha:
        return aDoble(Valor{literal.fecha}, m_regional);
    case Literal::Clase::Texto:
        break;
    }
    try {
        return aDoble(literal.texto, m_regional);
    } catch (const ErrorEjecucion&) {
        noConvertible(marca, literal.texto.toString(), u"un número"_s);
    }
}

Ligado Ligador::comoNumero(const Parametro& marca, const Literal& literal) const
{
    const double numero = marca.negado ? -numeroDe(marca, literal) : numeroDe(marca, literal);
    switch (marca.tipo) {
    case TipoColumna::Entero32:
    case TipoColumna::Entero16:
        return comoEntero(marca, numero);
    case TipoColumna::SiNo:
        // Written, a flag is -1 or 0; compared, a number stays itself: a stored 1 is not a stored -1.
        return marca.columna.isEmpty() ? Ligado{numero} : Ligado{numero != 0 ? -1 : 0};
    default:
        return numero == 0 ? 0.0 : numero; // no -0
    }
}

Ligado Ligador::comoEntero(const Parametro& marca, double numero) const
{
    try {
        return marca.tipo == TipoColumna::Entero32 ? aEntero32(numero) : qint32{aEntero16(numero)};
    } catch (const ErrorEjecucion&) {
        const QString entero = marca.tipo == TipoColumna::Entero32 ? u"un entero de 32 bits"_s : u"un entero de 16 bits"_s;
        noConvertible(marca, aTexto(numero, m_regional), entero);
    }
}

Ligado Ligador::comoFecha(const Parametro& marca, const Literal& literal) const
{
    if (literal.clase == Literal::Clase::Fecha)
        return literal.fecha;
    try {
        if (literal.clase != Literal::Clase::Texto)
            return aFecha(Valor{marca.negado ? -literal.numero : literal.numero}, m_regional);
        return aFecha(literal.texto, m_regional);
    } catch (const ErrorEjecucion&) {
        const bool esTexto = literal.clase == Literal::Clase::Texto;
        noConvertible(marca, esTexto ? literal.texto.toString() : aTexto(literal.numero, m_regional), u"una fecha"_s);
    }
}

} // namespace kestrane::database
