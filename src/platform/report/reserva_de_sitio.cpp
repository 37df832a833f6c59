#include "platform/report/reserva_de_sitio.h"

namespace kestrane::report {

double ReservaDeSitio::para(const Paso& paso, double altoDeCuerpo) const
{
    switch (paso.parte) {
    case Parte::Fin:
        return 0;
    case Parte::AbreGrupos:
        return paraGrupos(m_recorrido.primerNivelQueEmpieza(paso.fila), paso.fila, altoDeCuerpo);
    case Parte::CabeceraGrupo:
        return paraGrupos(paso.nivel, paso.fila, altoDeCuerpo);
    case Parte::Detalle:
        return paraFila(paso.fila, altoDeCuerpo);
    default:
        return minimo(m_recorrido.banda(paso), paso.fila, altoDeCuerpo);
    }
}

double ReservaDeSitio::paraGrupos(int nivel, qsizetype fila, double altoDeCuerpo) const
{
    const GrupoEnlazado& grupo = m_informe.grupo(nivel);
    const double alto = m_medidor.alto(m_informe, grupo.cabecera, contexto(fila));
    if (!grupo.grupo->juntoALaPrimera)
        return alto;
    const bool esElUltimo = nivel == m_informe.niveles();
    return alto + (esElUltimo ? paraFila(fila, altoDeCuerpo) : paraGrupos(nivel + 1, fila, altoDeCuerpo));
}

double ReservaDeSitio::bloqueAlPie(const Paso& paso) const
{
    const SeccionEnlazada& seccion = *m_recorrido.seccion(paso);
    double alto = 0;
    for (auto i = static_cast<size_t>(paso.banda); i < seccion.size() && seccion[i].banda->alPieDePagina; ++i) {
        const auto medida = m_medidor.mide(m_informe, seccion[i], contexto(paso.fila));
        alto += medida ? medida->alto : 0;
    }
    return alto;
}

double ReservaDeSitio::paraFila(qsizetype fila, double altoDeCuerpo) const
{
    double alto = 0;
    for (const BandaEnlazada& banda : m_informe.detalle()) {
        const double suyo = minimo(banda, fila, altoDeCuerpo);
        if (banda.banda->saltoAntes && alto > 0 && suyo > 0)
            break;
        alto += suyo;
    }
    return alto;
}

/// What of a band must stand with what is above it: all, unless it goes on on the next page in any case.
double ReservaDeSitio::minimo(const BandaEnlazada& banda, qsizetype fila, double altoDeCuerpo) const
{
    const auto medida = m_medidor.mide(m_informe, banda, contexto(fila));
    if (!medida)
        return 0;
    const bool seParte = medida->esDivisible() && (medida->fluye() || medida->alto > altoDeCuerpo);
    return seParte ? banda.banda->alto : medida->alto;
}

} // namespace kestrane::report
