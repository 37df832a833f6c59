#pragma once

#include "platform/controls/grupo_botones.h"

#include <QScrollArea>
#include <QTimer>

namespace kestrane {

/// Shows cards side by side as far as they fit, and lays them out anew whenever the window, the fonts or what is visible change.
/// What does not fit is reached by scrolling, or by the keyboard focus, which is always kept in sight.
class PanelTarjetas final : public QScrollArea
{
    Q_OBJECT

public:
    PanelTarjetas(const QString& objeto, QWidget* padre);

    /// Hands over a card, which stands behind those that are there.
    void anade(GrupoBotones* tarjeta);
    [[nodiscard]] const QList<GrupoBotones*>& tarjetas() const { return m_tarjetas; }
    /// The frame of the cards.
    [[nodiscard]] QWidget& lienzo() { return *m_lienzo; }

    /// Lays the cards out now.
    void reparte();

signals:
    /// The cards stand where they belong.
    void repartido();

protected:
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* vigilado, QEvent* evento) override;

private:
    void pideReparto();
    [[nodiscard]] int anchoDeColumna() const;

    QWidget* m_lienzo;
    QList<GrupoBotones*> m_tarjetas;
    QTimer* m_reparto;
};

} // namespace kestrane
