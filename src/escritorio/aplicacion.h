#pragma once

#include "platform/runtime/error_ejecucion.h"

#include <QApplication>

#include <functional>

namespace kestrane::escritorio {

/// The one place in which the desktop program catches what nobody caught, wherever it was thrown: a slot, a timer, a nested loop of
/// events.
class Aplicacion final : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    /// What is done about an error: it tells of it and ends the program. What fails meanwhile is passed over.
    void alFallar(std::function<void(const ErrorEjecucion&)> falla) { m_falla = std::move(falla); }

    /// Does `que`; what it throws is told as an error of an event is. Whether nothing was thrown.
    bool intenta(const std::function<void()>& que);

    bool notify(QObject* quien, QEvent* evento) override;

private:
    void falla(const ErrorEjecucion& error);

    std::function<void(const ErrorEjecucion&)> m_falla;
    bool m_fallando = false;
};

} // namespace kestrane::escritorio
