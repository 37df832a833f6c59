#pragma once

#include "pipeline/puesto_de_prueba.h"

namespace kestrane::prueba {

/// What a builder needs to work on `tienda`, its engines behind others.
struct PuestoEnvuelto
{
    PuestoEnvuelto(TiendaDePrueba& tienda, const Envoltura& envoltura) : entorno{tienda.opciones(envoltura)}
    {
        contexto.ConexionTienda.Open(QStringLiteral("dsn=TiendaKestrane"));
        contexto.ConexionListados.Open(QStringLiteral("dsn=ListKestrane"));
    }

    EntornoDatos entorno;
    ContextoEjecucion contexto{entorno};
    ProgresoContado progreso;
    RelojFijo reloj{*Fecha::deCalendario(2024, 3, 15, 12)};
    Listados listados{contexto, progreso, reloj};
};

} // namespace kestrane::prueba
