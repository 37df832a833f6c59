#pragma once

#include "platform/report/preview/paginas_vista.h"

#include <QAbstractListModel>
#include <QListView>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <QTimer>

namespace kestrane::report {

/// The numbers of the pages, as a list that grows.
class ModeloMiniaturas final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override { return padre.isValid() ? 0 : m_paginas; }
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override;
    void ponPaginas(int paginas);

private:
    int m_paginas = 0;
};

/// Paints a page small, with its number below. A picture that is not there yet is made in a turn of its own, so that the list moves
/// at once however far it jumps.
class PintorMiniaturas final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    static constexpr QSize Hueco{150, 196};                 ///< of one entry
    static constexpr int MaximoGuardado = 16 * 1024 * 1024; ///< bytes of pictures

    PintorMiniaturas(PaginasVista& paginas, QObject* padre);

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return Hueco; }
    void olvida();
    /// Bytes of the pictures that are kept.
    [[nodiscard]] int guardado() const { return int(m_dibujos.totalCost()); }

signals:
    void lista(int pagina); ///< its picture is there now

private:
    void haceSiguiente();
    [[nodiscard]] QPixmap dibuja(int pagina);

    PaginasVista& m_paginas;
    mutable QCache<int, QPixmap> m_dibujos{MaximoGuardado};
    mutable std::vector<int> m_pedidas; ///< the last asked for is made first
    mutable QTimer m_turno;
};

/// The column of small pages: a press goes to the page.
class Miniaturas final : public QListView
{
    Q_OBJECT

public:
    explicit Miniaturas(PaginasVista& paginas, QWidget* padre = nullptr);

    void ponPaginas(int paginas) { m_modelo.ponPaginas(paginas); }
    /// Pages have changed: all pictures anew.
    void olvida();
    /// Marks the page that is looked at.
    void senala(int pagina);

signals:
    void elegida(int pagina);

private:
    ModeloMiniaturas m_modelo;
    PintorMiniaturas* m_pintor;
};

} // namespace kestrane::report
