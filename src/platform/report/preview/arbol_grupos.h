#pragma once

#include "platform/report/preview/modelo_grupos.h"

#include <QTreeView>

namespace kestrane::report {

/// The groups of a report as a tree that grows: a press goes to where the group begins.
class ArbolGrupos final : public QTreeView
{
    Q_OBJECT

public:
    explicit ArbolGrupos(QWidget* padre = nullptr);

    /// Shows `indice`, of which what was shown before is the beginning; it outlives the tree or the next `vacia`. As long as more
    /// is to come (not `entero`), a long one is shown in growing portions.
    void crece(const std::vector<EntradaIndice>& indice, bool entero);
    void crece(std::vector<EntradaIndice>&&, bool) = delete;
    void vacia() { m_modelo.vacia(); } ///< before the report is laid out anew

signals:
    void elegida(int pagina, double y);

private:
    ModeloGrupos m_modelo;
};

} // namespace kestrane::report
