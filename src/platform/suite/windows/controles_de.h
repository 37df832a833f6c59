#pragma once

#include <QList>
#include <QWidget>

namespace kestrane {

/// The window and all controls on it, parents before their children. Windows that belong to it (dialogs, boxes, lists that drop
/// down) are left out: they are dressed as windows of their own.
[[nodiscard]] QList<QWidget*> controlesDe(QWidget& ventana);

/// Whether the control is a part that Qt itself put inside another one.
[[nodiscard]] bool esParteDeQt(const QWidget& control);

} // namespace kestrane
