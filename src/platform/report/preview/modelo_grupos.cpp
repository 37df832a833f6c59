#include "platform/report/preview/modelo_grupos.h"

#include <algorithm>

namespace kestrane::report {

using namespace Qt::StringLiterals;

void ModeloGrupos::crece(const std::vector<EntradaIndice>& indice)
{
    m_indice = &indice;
    while (m_nudos.size() < indice.size())
        anadeHermanas();
}

void ModeloGrupos::vacia()
{
    beginResetModel();
    m_indice = nullptr;
    m_raiz = {};
    m_nudos = {};
    m_porFondo = {};
    m_rama.clear();
    endResetModel();
}

void ModeloGrupos::anadeHermanas()
{
    const auto primera = m_indice->begin() + qsizetype(m_nudos.size());
    const auto fin =
        std::find_if(primera, m_indice->end(), [&](const EntradaIndice& otra) { return otra.nivel != primera->nivel; });
    // A group whose outer one has no title hangs from the next one out that has.
    while (!m_rama.empty() && (*m_indice)[m_rama.back()].nivel >= primera->nivel)
        m_rama.pop_back();
    const int padre = m_rama.empty() ? Raiz : m_rama.back();
    const int fila = nudo(padre).hijas;
    beginInsertRows(lugar(padre), fila, fila + int(fin - primera) - 1);
    for (auto nueva = primera; nueva != fin; ++nueva)
        anade(padre);
    m_rama.push_back(int(m_nudos.size()) - 1);
    endInsertRows();
}

void ModeloGrupos::anade(int padre)
{
    const int fondo = nudo(padre).fondo + 1;
    m_porFondo.resize(std::max(m_porFondo.size(), std::size_t(fondo) + 1));
    std::vector<int>& delFondo = m_porFondo[fondo];
    if (nudo(padre).hijas == 0)
        nudo(padre).primera = int(delFondo.size());
    delFondo.push_back(int(m_nudos.size()));
    m_nudos.push_back({.padre = padre, .fila = nudo(padre).hijas++, .fondo = fondo});
}

const EntradaIndice* ModeloGrupos::entrada(const QModelIndex& lugar) const
{
    return lugar.isValid() ? &(*m_indice)[numero(lugar)] : nullptr;
}

QModelIndex ModeloGrupos::lugar(int entrada) const
{
    return entrada == Raiz ? QModelIndex{} : createIndex(m_nudos[entrada].fila, 0, quintptr(entrada));
}

QModelIndex ModeloGrupos::index(int fila, int columna, const QModelIndex& padre) const
{
    const Nudo& de = nudo(numero(padre));
    if (columna != 0 || fila < 0 || fila >= de.hijas)
        return {};
    return createIndex(fila, 0, quintptr(m_porFondo[de.fondo + 1][de.primera + fila]));
}

QModelIndex ModeloGrupos::parent(const QModelIndex& lugar) const
{
    return lugar.isValid() ? this->lugar(m_nudos[numero(lugar)].padre) : QModelIndex{};
}

int ModeloGrupos::rowCount(const QModelIndex& padre) const
{
    return nudo(numero(padre)).hijas;
}

QVariant ModeloGrupos::data(const QModelIndex& lugar, int papel) const
{
    const EntradaIndice* grupo = entrada(lugar);
    if (grupo && papel == Qt::DisplayRole)
        return grupo->titulo;
    if (grupo && papel == Qt::ToolTipRole)
        return u"%1 (página %2)"_s.arg(grupo->titulo, QString::number(grupo->pagina + 1));
    return {};
}

} // namespace kestrane::report
