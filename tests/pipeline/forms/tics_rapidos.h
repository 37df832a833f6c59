#pragma once

#include "pipeline/forms/frm_esperar.h"

#include <memory>

namespace kestrane::prueba {

/// Ticks as fast as the event loop turns.
class TicsRapidos final : public FuenteDeTics
{
public:
    void empieza(QWidget& ventana, const std::function<void()>& tic) override
    {
        m_temporizador = std::make_unique<QTimer>();
        QObject::connect(m_temporizador.get(), &QTimer::timeout, &ventana, tic);
        m_temporizador->start(0);
    }
    void para() override { m_temporizador->stop(); }

private:
    std::unique_ptr<QTimer> m_temporizador;
};

} // namespace kestrane::prueba
