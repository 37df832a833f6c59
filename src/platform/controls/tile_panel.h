#pragma once

#include "run_context/array_panel.h"

#include <QScrollArea>

#include <functional>

namespace kestrane {

class Ficha;

/// A panel of buttons fed with an array of elements: stores, employees, sections, suppliers. As many columns as fit, scrolled when
/// there are hundreds; blank elements are passed over. The pressed one stays marked.
class TilePanel final : public QScrollArea
{
    Q_OBJECT

public:
    TilePanel(const QString& objeto, QWidget* padre);

    /// The colours of its buttons and of itself. One that is not valid leaves the theme's.
    void ponColores(const QColor& boton, const QColor& fondo);
    /// Whether the elements' own colours are used (as they are unless this says otherwise); a text that is no colour never is.
    void usaColores(bool si);
    /// From here on Enter presses the button that has the keyboard; before, it is left to the window.
    void pulsaConEnter();
    /// Takes the whole array, from its lower bound to its upper one; an unallocated one shows nothing.
    void da(const ArrayPanel& elementos);

    /// The element marked last, nullptr when none was pressed since the array came.
    [[nodiscard]] const ElementoPanel* elegido() const;
    /// No element is marked any more.
    void desmarca();
    /// The keyboard goes to its first button.
    void enfoca();
    /// The buttons in the order of their elements.
    [[nodiscard]] const QList<Ficha*>& fichas() const { return m_fichas; }

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void pulsado(const kestrane::ElementoPanel& elemento);

protected:
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;

private:
    void anade(const ElementoPanel& elemento);
    void elige(Ficha* ficha);
    void pinta();
    void coloca();
    [[nodiscard]] int columnas() const;

    QWidget* m_lienzo;
    QList<Ficha*> m_fichas;
    Ficha* m_elegida = nullptr;
    QColor m_colorBoton;
    bool m_usaColores = true;
    bool m_pulsaConEnter = false;
};

} // namespace kestrane
