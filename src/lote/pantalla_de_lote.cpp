#include "lote/pantalla_de_lote.h"

namespace kestrane::lote {

using namespace Qt::StringLiterals;

void MensajesDeLote::Informa(const QString& texto, const QString&)
{
    m_avisos.di(texto);
}

void MensajesDeLote::Critico(const QString& texto, const QString& titulo)
{
    m_avisos.di(u"error %1: %2"_s.arg(titulo, texto));
}

void ProgresoDeLote::Muestra()
{
    m_avisos.empieza(u"Generando Reporte"_s);
}

} // namespace kestrane::lote
