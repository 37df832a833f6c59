#pragma once

#include "pipeline/matriz_grafico.h"
#include "pipeline/pantalla.h"
#include "platform/runtime/conversiones.h"
#include "platform/runtime/reloj.h"
#include "run_context/contexto_ejecucion.h"

namespace kestrane {

/// What a report builder works with. A builder takes its input from the run context, clears and fills the staging tables, and shows
/// its progress; it knows no window.
struct Listados
{
    ContextoEjecucion& contexto;
    Progreso& progreso;
    const Reloj& reloj;

    [[nodiscard]] const ConfiguracionRegional& regional() const { return contexto.ConexionListados.entorno().regional(); }
    /// A value as it is joined into a text: Null gives "".
    [[nodiscard]] QString texto(const Valor& valor) const { return aTexto(valor, regional()); }
};

/// A report builder: leaves `informes` and `subinformes` ready for the layout. Every failure is an ErrorEjecucion; rows written
/// before it stay.
using Constructor = void (*)(Listados&);

/// A builder that serves several buttons and is told which of them by a number.
using ConstructorConNumero = void (*)(Listados&, qint16);

/// The collector of a chart: reads the shop and gives back the chart's matrix, without the staging tables. It fails as a builder
/// does.
using Recolector = MatrizGrafico (*)(Listados&);

} // namespace kestrane
