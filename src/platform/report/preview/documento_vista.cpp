#include "platform/report/preview/documento_vista.h"

namespace kestrane::report {

QString DocumentoVista::titulo() const
{
    const Layout& layout = m_documento->layout();
    return layout.titulo.isEmpty() ? layout.fichero : layout.titulo;
}

QSizeF DocumentoVista::tamano(int pagina)
{
    // A roll is as long as what stands on it; to ask a sheet would compose it.
    const Pagina& papel = m_documento->layout().pagina;
    return papel.esRollo() ? m_documento->pagina(pagina).tamano : papel.tamano;
}

void DocumentoVista::pinta(QPainter& pintor, const PaginaCompuesta& pagina, double porMilimetro)
{
    m_pintor.pinta(pintor, pagina, porMilimetro);
}

} // namespace kestrane::report
