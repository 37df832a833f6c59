#pragma once

#include "platform/report/documento.h"

#include <QStandardItemModel>
#include <QTreeView>

namespace kestrane::report {

/// The groups of a report as a tree that grows: a press goes to where the group begins.
class ArbolGrupos final : public QTreeView
{
    Q_OBJECT

public:
    explicit ArbolGrupos(QWidget* padre = nullptr);

    /// Shows `indice`, of which what was shown before is the beginning.
    void crece(const std::vector<EntradaIndice>& indice);
    void vacia(); ///< for a report that is laid out anew

signals:
    void elegida(int pagina, double y);

private:
    void anade(const EntradaIndice& entrada);

    QStandardItemModel m_modelo;
    std::vector<QStandardItem*> m_rama; ///< the last item of each level, from the outside in; the model's
    std::size_t m_entradas = 0;
};

} // namespace kestrane::report
