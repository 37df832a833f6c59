#pragma once

#include <QPushButton>

namespace kestrane {

/// The least side of what a finger presses, in screen points.
inline constexpr int LadoTactil = 44;

/// A button whose caption breaks over as many lines as it needs, so that nothing of it is ever cut. The arrow keys lead from one to
/// the nearest in their direction.
class BotonMenu final : public QPushButton
{
    Q_OBJECT

public:
    BotonMenu(const QString& objeto, const QString& leyenda, QWidget* padre);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    /// The height at which the whole caption is read in `ancho` points: a finger's width at least.
    [[nodiscard]] int heightForWidth(int ancho) const override;

protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    [[nodiscard]] QRect cajaDeTexto(const QRect& marco) const;
    void salta(int tecla);
};

/// Whether something else of its window stands over the middle of the control. One that is scrolled out of sight is not covered.
[[nodiscard]] bool estaTapado(const QWidget& control);

/// The place among `candidatos` that an arrow key leads to from `desde`: the nearest whose centre lies that way, one in the same
/// row or column before others. -1 when there is none.
[[nodiscard]] int vecino(const QRect& desde, const QList<QRect>& candidatos, int tecla);

} // namespace kestrane
