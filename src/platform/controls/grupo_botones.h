#pragma once

#include "platform/controls/boton_menu.h"

#include <QFrame>
#include <QLabel>

namespace kestrane {

/// A card: a title, and below it the visible ones of its buttons in rows, as wide and as high as the card lets them be. A button
/// that is hidden leaves no gap. Its back colour is that of its palette.
class GrupoBotones final : public QFrame
{
    Q_OBJECT

public:
    /// Without a title the buttons alone.
    GrupoBotones(const QString& objeto, const QString& titulo, QWidget* padre);

    /// Hands over a button, which stands behind those that are there; its parent becomes `zona`.
    void anade(BotonMenu* boton);
    [[nodiscard]] const QList<BotonMenu*>& botones() const { return m_botones; }
    /// Those that nobody hid.
    [[nodiscard]] QList<BotonMenu*> visibles() const;
    /// The frame of the buttons.
    [[nodiscard]] QWidget& zona() { return *m_zona; }
    [[nodiscard]] QLabel& titulo() { return *m_titulo; }

    /// The height that the card needs when it is `ancho` wide and its buttons stand in so many columns. 0 without a visible button.
    [[nodiscard]] int altoPara(int ancho, int columnas) const;
    void ponColumnas(int columnas);
    [[nodiscard]] int columnas() const { return m_columnas; }
    /// The width below which some word of a caption would be cut, with one column.
    [[nodiscard]] int anchoMinimo() const;

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// What the card needs has changed: a button was hidden or shown, or another font came.
    void cambiado();

protected:
    bool eventFilter(QObject* vigilado, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

private:
    [[nodiscard]] QList<int> altosDeFila(int ancho, int columnas) const;
    [[nodiscard]] int altoTitulo() const;
    void coloca();

    QLabel* m_titulo;
    QWidget* m_zona;
    QList<BotonMenu*> m_botones;
    int m_columnas = 1;
};

} // namespace kestrane
