#pragma once

#include "platform/report/documento.h"
#include "platform/report/maquetado.h"

namespace kestrane::report {

/// What a document holds: the copies of its rows, and its pages by the layout of now.
class Documento::Interior
{
public:
    Interior(Layout layout, database::EntornoDatos& entorno);

    [[nodiscard]] Maquetado& maquetado() { return *m_maquetado; }
    [[nodiscard]] const ConfiguracionRegional& regional() const { return m_regional; }
    /// Lays out the rows that are there anew. Nothing changes when the layout does not fit.
    void cambia(Layout layout);

private:
    ConfiguracionRegional m_regional;
    CopiasDeInforme m_copias;
    std::unique_ptr<Maquetado> m_maquetado;
};

} // namespace kestrane::report
