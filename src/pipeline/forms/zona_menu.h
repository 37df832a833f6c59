#pragma once

#include <QToolButton>

namespace kestrane {

/// A click area of the menu's head, with a drawing by its name: the size of the window (fr_Zoom1), of the letters (fr_Zoom2), the
/// colours (fr_Zoom3), or the help (cmd_Ayuda).
class ZonaMenu final : public QToolButton
{
    Q_OBJECT

public:
    ZonaMenu(const QString& objeto, const QString& nombre, QWidget* padre);

protected:
    void paintEvent(QPaintEvent* evento) override;
};

} // namespace kestrane
