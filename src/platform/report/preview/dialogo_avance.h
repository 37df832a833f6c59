#pragma once

#include "platform/report/export/exportacion.h"

#include <QDeadlineTimer>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>

namespace kestrane::report {

/// Stands in front of the preview while a long work goes on, with a bar and a way out.
class DialogoAvance final : public QDialog
{
    Q_OBJECT

public:
    using Trabajo = std::function<bool(const AvanceExportacion& avance)>;

    DialogoAvance(const QString& que, QWidget* padre);

    /// Does `trabajo` and serves the window's events whenever it tells how far it is. What it gives back; what it throws rises.
    bool haz(const Trabajo& trabajo);

    /// As the button and Escape do: the work is broken off when it next tells how far it is.
    void reject() override { m_cancelado = true; }

private:
    bool avanza(double parte);

    QProgressBar* m_barra;
    QDeadlineTimer m_entreEventos{0};
    bool m_cancelado = false;
};

} // namespace kestrane::report
