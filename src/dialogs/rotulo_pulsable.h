#pragma once

#include <QLabel>

namespace kestrane {

/// A label that acts as the button beside it.
class RotuloPulsable final : public QLabel
{
    Q_OBJECT

public:
    explicit RotuloPulsable(QWidget* padre) : QLabel{padre} {}

signals:
    void pulsado();

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;
};

} // namespace kestrane
