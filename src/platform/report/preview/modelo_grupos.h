#pragma once

#include "platform/report/documento.h"

#include <QAbstractItemModel>

namespace kestrane::report {

/// The groups of a report as a tree over the report's own index, of which it keeps nothing but who hangs from whom: a few numbers
/// for each, so that a million groups are no burden.
class ModeloGrupos final : public QAbstractItemModel
{
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    /// Shows `indice`, of which what was shown before is the beginning; it outlives the model or the next `vacia`.
    void crece(const std::vector<EntradaIndice>& indice);
    void vacia();
    /// How many entries are shown.
    [[nodiscard]] std::size_t entradas() const { return m_nudos.size(); }
    /// The entry at a place of the tree; null for the tree itself.
    [[nodiscard]] const EntradaIndice* entrada(const QModelIndex& lugar) const;

    [[nodiscard]] QModelIndex index(int fila, int columna, const QModelIndex& padre = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& lugar) const override;
    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return 1; }
    [[nodiscard]] QVariant data(const QModelIndex& lugar, int papel = Qt::DisplayRole) const override;

private:
    static constexpr int Raiz = -1;

    /// Of an entry: from which it hangs and where among its own, and which ones hang from it.
    struct Nudo
    {
        int padre = Raiz;
        int fila = 0;
        int fondo = Raiz; ///< how many it hangs below
        int primera = 0;  ///< its first one in m_porFondo[fondo + 1], where the others follow
        int hijas = 0;
    };

    [[nodiscard]] static int numero(const QModelIndex& lugar) { return lugar.isValid() ? int(lugar.internalId()) : Raiz; }
    [[nodiscard]] Nudo& nudo(int entrada) { return entrada == Raiz ? m_raiz : m_nudos[entrada]; }
    [[nodiscard]] const Nudo& nudo(int entrada) const { return entrada == Raiz ? m_raiz : m_nudos[entrada]; }
    [[nodiscard]] QModelIndex lugar(int entrada) const;
    void anadeHermanas();
    void anade(int padre);

    const std::vector<EntradaIndice>* m_indice = nullptr; ///< the report's
    Nudo m_raiz;
    std::vector<Nudo> m_nudos;                ///< one for each entry that is shown
    std::vector<std::vector<int>> m_porFondo; ///< the entries at each depth, in their order
    std::vector<int> m_rama;                  ///< the last entry and those from which it hangs, from the outside in
};

} // namespace kestrane::report
