#include "platform/runtime/valor.h"

#include "platform/runtime/conversiones.h"
#include "platform/runtime/error_ejecucion.h"

namespace kestrane {

namespace {

[[noreturn]] void noEs(const Valor& valor)
{
    throw ErrorEjecucion{valor.esNulo() ? ErrorEjecucion::UsoNoValidoDeNull : ErrorEjecucion::TiposNoCoinciden};
}

} // namespace

bool Valor::logico() const
{
    if (const bool* propio = std::get_if<bool>(&m_dato))
        return *propio;
    return doble() != 0;
}

qint16 Valor::entero16() const
{
    if (const qint16* propio = std::get_if<qint16>(&m_dato))
        return *propio;
    return aEntero16(doble());
}

qint32 Valor::entero32() const
{
    if (const qint32* propio = std::get_if<qint32>(&m_dato))
        return *propio;
    return aEntero32(doble());
}

double Valor::doble() const
{
    switch (clase()) {
    case Clase::Doble:
        return std::get<double>(m_dato);
    case Clase::Entero32:
        return std::get<qint32>(m_dato);
    case Clase::Entero16:
        return std::get<qint16>(m_dato);
    case Clase::Logico:
        return std::get<bool>(m_dato) ? -1 : 0;
    case Clase::Nulo:
    case Clase::Fecha:
    case Clase::Texto:
        break;
    }
    noEs(*this);
}

Fecha Valor::fecha() const
{
    if (const kestrane::Fecha* propia = std::get_if<kestrane::Fecha>(&m_dato))
        return *propia;
    noEs(*this);
}

const QString& Valor::texto() const
{
    if (const QString* propio = std::get_if<QString>(&m_dato))
        return *propio;
    noEs(*this);
}

} // namespace kestrane
