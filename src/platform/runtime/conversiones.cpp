#include "platform/runtime/conversiones.h"

#include "platform/runtime/error_ejecucion.h"

#include <cmath>
#include <limits>

namespace kestrane {

using namespace Qt::StringLiterals;

// ---------------------------------------------------------------- numbers

namespace {

/// Half to even whatever rounding mode the processor is in.
double redondea(double numero)
{
    const double abajo = std::floor(numero);
    const double resto = numero - abajo;
    if (resto < 0.5)
        return abajo;
    if (resto > 0.5)
        return abajo + 1;
    return std::fmod(abajo, 2) == 0 ? abajo : abajo + 1;
}

template<class Entero>
Entero aEntero(double numero)
{
    const double redondo = redondea(numero);
    // Written so that what is no number fails too.
    if (!(redondo >= std::numeric_limits<Entero>::min() && redondo <= std::numeric_limits<Entero>::max()))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return static_cast<Entero>(redondo);
}

} // namespace

qint16 aEntero16(double numero)
{
    return aEntero<qint16>(numero);
}

qint32 aEntero32(double numero)
{
    return aEntero<qint32>(numero);
}

double divide(double dividendo, double divisor)
{
    if (divisor == 0)
        throw ErrorEjecucion{ErrorEjecucion::DivisionPorCero};
    const double cociente = dividendo / divisor;
    if (!std::isfinite(cociente))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return cociente;
}

Contador16& Contador16::operator+=(double sumando)
{
    m_valor = aEntero16(m_valor + sumando);
    return *this;
}

Contador16& Contador16::operator-=(double sustraendo)
{
    m_valor = aEntero16(m_valor - sustraendo);
    return *this;
}

// ---------------------------------------------------------------- values

namespace {

double serieDe(Fecha fecha)
{
    return fecha.diaDeSerie() + fecha.segundoDelDia() / static_cast<double>(Fecha::SegundosPorDia);
}

Fecha fechaDeSerie(double serie)
{
    if (!(serie >= Fecha::PrimerDiaDeSerie && serie < Fecha::UltimoDiaDeSerie + 1.0))
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    const double dia = std::floor(serie);
    const qint32 segundo = aEntero32((serie - dia) * Fecha::SegundosPorDia);
    if (segundo < Fecha::SegundosPorDia)
        return Fecha::deSerie(static_cast<qint32>(dia), segundo);
    if (dia >= Fecha::UltimoDiaDeSerie)
        throw ErrorEjecucion{ErrorEjecucion::Desbordamiento};
    return Fecha::deSerie(static_cast<qint32>(dia) + 1, 0);
}

bool esPalabra(const QString& texto, QLatin1StringView palabra)
{
    return QStringView{texto}.trimmed().compare(palabra, Qt::CaseInsensitive) == 0;
}

} // namespace

QString aTexto(const Valor& valor, const ConfiguracionRegional& regional)
{
    switch (valor.clase()) {
    case Valor::Clase::Nulo:
        return u""_s;
    case Valor::Clase::Logico:
        return aTexto(valor.logico(), regional);
    case Valor::Clase::Entero16:
    case Valor::Clase::Entero32:
        return aTexto(valor.entero32(), regional);
    case Valor::Clase::Doble:
        return aTexto(valor.doble(), regional);
    case Valor::Clase::Fecha:
        return aTexto(valor.fecha(), regional);
    case Valor::Clase::Texto:
        return valor.texto();
    }
    return {};
}

QString aTextoEstricto(const Valor& valor, const ConfiguracionRegional& regional)
{
    if (valor.esNulo())
        throw ErrorEjecucion{ErrorEjecucion::UsoNoValidoDeNull};
    return aTexto(valor, regional);
}

double aDoble(const Valor& valor, const ConfiguracionRegional& regional)
{
    if (valor.clase() == Valor::Clase::Texto)
        return aDoble(valor.texto(), regional);
    if (valor.clase() == Valor::Clase::Fecha)
        return serieDe(valor.fecha());
    return valor.doble();
}

qint16 aEntero16(const Valor& valor, const ConfiguracionRegional& regional)
{
    return aEntero16(aDoble(valor, regional));
}

qint32 aEntero32(const Valor& valor, const ConfiguracionRegional& regional)
{
    return aEntero32(aDoble(valor, regional));
}

bool aLogico(const Valor& valor, const ConfiguracionRegional& regional)
{
    if (valor.clase() != Valor::Clase::Texto)
        return aDoble(valor, regional) != 0;
    if (esPalabra(valor.texto(), "Verdadero"_L1))
        return true;
    return !esPalabra(valor.texto(), "Falso"_L1) && aDoble(valor.texto(), regional) != 0;
}

Fecha aFecha(const Valor& valor, const ConfiguracionRegional& regional)
{
    if (valor.clase() == Valor::Clase::Fecha)
        return valor.fecha();
    if (valor.clase() == Valor::Clase::Texto)
        return aFecha(valor.texto(), regional);
    return fechaDeSerie(valor.doble());
}

} // namespace kestrane
