#include "platform/report/recorrido.h"

namespace kestrane::report {

Paso Recorrido::primero() const
{
    Paso paso;
    normaliza(paso);
    return paso;
}

void Recorrido::avanza(Paso& paso) const
{
    if (paso.parte == Parte::AbreGrupos)
        aLaSiguienteParte(paso);
    else
        ++paso.banda;
    normaliza(paso);
}

/// Goes on until there is a band, or groups that begin, or the end.
void Recorrido::normaliza(Paso& paso) const
{
    while (paso.parte != Parte::Fin && paso.parte != Parte::AbreGrupos) {
        if (paso.banda < static_cast<int>(seccion(paso)->size()))
            return;
        aLaSiguienteParte(paso);
    }
}

const SeccionEnlazada* Recorrido::seccion(const Paso& paso) const
{
    switch (paso.parte) {
    case Parte::CabeceraInforme:
        return &m_informe.cabeceraInforme();
    case Parte::Encabezados:
        return &m_informe.cabeceraPagina();
    case Parte::CabeceraGrupo:
        return &m_informe.grupo(paso.nivel).cabecera;
    case Parte::Detalle:
        return &m_informe.detalle();
    case Parte::PieGrupo:
        return &m_informe.grupo(paso.nivel).pie;
    case Parte::PieInforme:
        return &m_informe.pieInforme();
    case Parte::AbreGrupos:
    case Parte::Fin:
        break;
    }
    return nullptr;
}

void Recorrido::aLaSiguienteParte(Paso& paso) const
{
    const qsizetype fila = paso.fila;
    switch (paso.parte) {
    case Parte::CabeceraInforme:
        if (m_informe.esSubinforme()) {
            paso = {Parte::Encabezados, 0, 0, fila};
            return;
        }
        [[fallthrough]];
    case Parte::Encabezados:
        return trasCabecera(paso);
    case Parte::AbreGrupos:
        paso = {Parte::CabeceraGrupo, static_cast<qint16>(primerNivelQueEmpieza(fila)), 0, fila};
        return;
    case Parte::CabeceraGrupo:
        if (paso.nivel < m_informe.niveles())
            paso = {Parte::CabeceraGrupo, static_cast<qint16>(paso.nivel + 1), 0, fila};
        else
            paso = {Parte::Detalle, 0, 0, fila};
        return;
    case Parte::Detalle:
        return trasDetalle(paso);
    case Parte::PieGrupo:
        return trasPieGrupo(paso);
    case Parte::PieInforme:
    case Parte::Fin:
        paso.parte = Parte::Fin;
    }
}

void Recorrido::trasCabecera(Paso& paso) const
{
    if (m_informe.filas().filas() == 0)
        paso = {Parte::PieInforme, 0, 0, 0};
    else
        paso = {m_informe.niveles() > 0 ? Parte::AbreGrupos : Parte::Detalle, 0, 0, 0};
}

void Recorrido::trasDetalle(Paso& paso) const
{
    if (esUltima(paso.fila))
        return cierra(paso, m_informe.niveles());
    const qsizetype siguiente = paso.fila + 1;
    if (m_informe.filas().gruposQueEmpiezan(siguiente) > 0)
        paso = {Parte::PieGrupo, static_cast<qint16>(m_informe.niveles()), 0, paso.fila};
    else
        paso = {Parte::Detalle, 0, 0, siguiente};
}

void Recorrido::trasPieGrupo(Paso& paso) const
{
    if (esUltima(paso.fila))
        return cierra(paso, paso.nivel - 1);
    if (paso.nivel > primerNivelQueEmpieza(paso.fila + 1))
        paso = {Parte::PieGrupo, static_cast<qint16>(paso.nivel - 1), 0, paso.fila};
    else
        paso = {Parte::AbreGrupos, 0, 0, paso.fila + 1};
}

/// Behind the last row all groups end, then the report.
void Recorrido::cierra(Paso& paso, int nivel) const
{
    const Parte parte = nivel > 0 ? Parte::PieGrupo : Parte::PieInforme;
    paso = {parte, static_cast<qint16>(nivel), 0, paso.fila};
}

bool Recorrido::empiezaPagina(qsizetype fila) const
{
    for (int nivel = primerNivelQueEmpieza(fila); fila > 0 && nivel <= m_informe.niveles(); ++nivel) {
        if (m_informe.grupo(nivel).grupo->saltoDePagina)
            return true;
    }
    return false;
}

int Recorrido::nivelesAbiertos(const Paso& paso) const
{
    switch (paso.parte) {
    case Parte::AbreGrupos:
        return paso.fila == 0 ? 0 : primerNivelQueEmpieza(paso.fila) - 1;
    case Parte::CabeceraGrupo:
        return paso.nivel - 1;
    case Parte::Detalle:
        return m_informe.niveles();
    case Parte::PieGrupo:
        return paso.nivel;
    default:
        return 0;
    }
}

} // namespace kestrane::report
