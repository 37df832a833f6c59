// Details that stand side by side, as labels do.

#include "platform/report/hoja.h"

#include <algorithm>

namespace kestrane::report {

namespace {

/// A line that shows that others follow which have no room.
void ponPuntos(Renglon& renglon)
{
    QString& texto = renglon.texto;
    if (texto.size() > 1) {
        const bool dosMitades = texto.back().isLowSurrogate();
        texto.chop(dosMitades ? 2 : 1);
    }
    texto += u'…';
}

/// Leaves out of a band the lines that end below `alto`; the last one left ends with "…".
void recorta(BandaMedida& banda, double alto)
{
    for (TextoMedido& texto : banda.textos) {
        size_t caben = 0;
        while (caben < texto.renglones.size() && texto.arriba + static_cast<double>(caben + 1) * texto.altoRenglon <= alto)
            ++caben;
        if (caben == texto.renglones.size())
            continue;
        texto.renglones.resize(caben);
        if (caben > 0)
            ponPuntos(texto.renglones.back());
    }
    banda.alto = std::min(banda.alto, alto);
}

} // namespace

/// The details of a row as one box beside others. A box is never cut between pages: what no page has room for is left out.
bool Hoja::colocaCaja()
{
    Paso& paso = m_lugar.paso;
    const SeccionEnlazada& detalle = m_informe.detalle();
    const double alto = m_medidor.alto(m_informe, detalle, contexto(paso.fila));
    if (!m_vacia && !cabe(alto))
        return false;
    const double ancho = (m_formato.anchoUtil() - (m_formato.columnas - 1) * m_formato.separacion) / m_formato.columnas;
    const double x = m_formato.margenes.left() + m_columna * (ancho + m_formato.separacion);
    double y = m_y;
    bool seVe = false;
    for (const BandaEnlazada& banda : detalle) {
        auto medida = m_medidor.mide(m_informe, banda, contexto(paso.fila));
        if (!medida)
            continue;
        seVe = true;
        const double sitio = m_limite - y;
        const bool estaSola = y == m_y && !medida->esDivisible();
        if (estaSola || medida->alto <= sitio + Holgura) {
            pon(*medida, paso.fila, {{x, y}});
        } else if (medida->esDivisible() && sitio > 0) {
            recorta(*medida, sitio);
            pon(*medida, paso.fila, {{x, y}, 0, 0, sitio});
        }
        y += medida->alto;
    }
    m_altoCajas = std::max(m_altoCajas, y - m_y);
    if (seVe && ++m_columna == m_formato.columnas)
        cierraCajas();
    paso.banda = static_cast<int>(detalle.size()) - 1;
    m_recorrido.avanza(paso);
    return true;
}

void Hoja::cierraCajas()
{
    m_y += m_altoCajas;
    m_altoCajas = 0;
    m_columna = 0;
}

} // namespace kestrane::report
