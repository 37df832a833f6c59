#include "pipeline/filtros/decision_historico_clientes.h"

#include "pipeline/filtros/paneles.h"
#include "pipeline/sabores.h"

namespace kestrane {

void DecisionHistoricoClientes::carga()
{
    contexto().filtros.seccion = CodigoDeTodos;
    eligeFormato(false);
    sale();
}

bool DecisionHistoricoClientes::preguntaVentas() const
{
    return !esDeAlimentacionYPerfume(contexto().TipoPrograma);
}

void DecisionHistoricoClientes::eligeSeccion(qint32 codigo)
{
    contexto().filtros.todasLasSecciones = false;
    contexto().filtros.seccion = codigo;
}

void DecisionHistoricoClientes::todasLasSecciones(bool marcada)
{
    contexto().filtros.todasLasSecciones = marcada;
}

Aceptacion DecisionHistoricoClientes::acepta(Fecha desde, Fecha hasta, Ventas ventas)
{
    Aceptacion aceptacion = aceptaPeriodo(contexto(), desde, hasta);
    if (aceptacion.paso != Aceptacion::Paso::Aceptada)
        return aceptacion;
    Filtros& filtros = contexto().filtros;
    if (filtros.seccion == CodigoDeTodos)
        filtros.todasLasSecciones = true;
    const Ventas suyas = preguntaVentas() ? ventas : Ventas::Productos;
    filtros.soloProductos = suyas == Ventas::Productos;
    filtros.soloServicios = suyas == Ventas::Servicios;
    return aceptacion;
}

} // namespace kestrane
