// Documents from layout files.

#include "platform/report/interior_documento.h"
#include "platform/report/layout/lector_layout.h"

namespace kestrane::report {

Documento::Documento(const QString& rutaLayout, database::EntornoDatos& entorno) : Documento{leeLayout(rutaLayout), entorno}
{
    m_ruta = rutaLayout; // NOLINT(cppcoreguidelines-prefer-member-initializer): a constructor that delegates has none
}

void Documento::actualiza()
{
    actualiza(m_ruta.isEmpty() ? layout() : leeLayout(m_ruta));
}

} // namespace kestrane::report
