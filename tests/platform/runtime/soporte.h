#pragma once

#include "platform/runtime/configuracion_regional.h"
#include "platform/runtime/error_ejecucion.h"
#include "platform/runtime/fecha.h"

#include <QString>

#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <stdexcept>

inline void PrintTo(const QString& texto, std::ostream* salida)
{
    *salida << '"' << texto.toStdString() << '"';
}

namespace kestrane {

inline void PrintTo(const Fecha& fecha, std::ostream* salida)
{
    *salida << fecha.anio() << '-' << fecha.mes() << '-' << fecha.dia() << ' ' << fecha.hora() << ':' << fecha.minuto() << ':'
            << fecha.segundo();
}

namespace prueba {

/// The number of the run-time error that `accion` raises, 0 when it raises none.
template<class Accion>
int numeroDeError(Accion accion)
{
    try {
        static_cast<void>(accion());
    } catch (const ErrorEjecucion& error) {
        return error.numero();
    }
    return 0;
}

/// What is known to be there.
template<class T>
T existente(const std::optional<T>& hallado)
{
    if (!hallado)
        throw std::logic_error{"the test names something that does not exist"};
    return *hallado;
}

inline ConfiguracionRegional regionalDe(const QString& nombre)
{
    return existente(ConfiguracionRegional::deNombre(nombre));
}

/// A day that is known to exist.
inline Fecha dia(int anio, int mes, int dia, int hora = 0, int minuto = 0, int segundo = 0)
{
    return existente(Fecha::deCalendario(anio, mes, dia, hora, minuto, segundo));
}

inline Fecha horaSola(int hora, int minuto, int segundo)
{
    return Fecha::deSerie(0, (hora * 60 + minuto) * 60 + segundo);
}

inline const ConfiguracionRegional& es()
{
    static const ConfiguracionRegional regional = ConfiguracionRegional::espania();
    return regional;
}

inline const ConfiguracionRegional& enUs()
{
    static const ConfiguracionRegional regional = regionalDe(QStringLiteral("en_US"));
    return regional;
}

inline const ConfiguracionRegional& enGb()
{
    static const ConfiguracionRegional regional = regionalDe(QStringLiteral("en_GB"));
    return regional;
}

} // namespace prueba
} // namespace kestrane
