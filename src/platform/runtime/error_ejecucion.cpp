#include "platform/runtime/error_ejecucion.h"

#include <utility>

namespace kestrane {

using namespace Qt::StringLiterals;

namespace {

QString descripcionPropia(ErrorEjecucion::Numero numero)
{
    switch (numero) {
    case ErrorEjecucion::Desbordamiento:
        return u"Desbordamiento."_s;
    case ErrorEjecucion::IndiceFueraDeIntervalo:
        return u"El subíndice está fuera del intervalo."_s;
    case ErrorEjecucion::DivisionPorCero:
        return u"División por cero."_s;
    case ErrorEjecucion::TiposNoCoinciden:
        return u"No coinciden los tipos."_s;
    case ErrorEjecucion::UsoNoValidoDeNull:
        return u"Uso no válido de Null."_s;
    case ErrorEjecucion::SinRegistroActual:
        return u"No hay ningún registro actual."_s;
    case ErrorEjecucion::CampoInexistente:
        return u"No se encuentra el elemento en la colección."_s;
    case ErrorEjecucion::ConexionImposible:
        return u"No se puede abrir la conexión con la base de datos."_s;
    case ErrorEjecucion::LayoutIncorrecto:
        return u"El diseño del informe no es correcto."_s;
    case ErrorEjecucion::SentenciaRechazada:
        return u"La base de datos ha rechazado la sentencia."_s;
    }
    return u"Error de ejecución."_s;
}

} // namespace

ErrorEjecucion::ErrorEjecucion(Numero numero) : ErrorEjecucion{numero, descripcionPropia(numero)} {}

ErrorEjecucion::ErrorEjecucion(Numero numero, QString descripcion)
    : m_numero{numero}
    , m_descripcion{std::move(descripcion)}
    , m_enUtf8{"ERROR " + QByteArray::number(m_numero) + ": " + m_descripcion.toUtf8()}
{
}

ErrorEjecucion ErrorEjecucion::conContexto(const QString& contexto) const
{
    return ErrorEjecucion{static_cast<Numero>(m_numero), m_descripcion + u'\n' + contexto};
}

} // namespace kestrane
