#pragma once

#include "pipeline/pantalla.h"

#include <functional>
#include <map>

namespace kestrane {

/// The dialogs of the program, each of which somebody offered.
class DialogosEnVentana final : public Dialogos
{
public:
    /// Shows a modal dialog; the text is what its caller wants as its title.
    using MuestraDialogo = std::function<void(const QString& titulo)>;

    void ofrece(Dialogo dialogo, MuestraDialogo muestra) { m_ofrecidos[dialogo] = std::move(muestra); }

    [[nodiscard]] bool Existe(Dialogo dialogo) const override { return m_ofrecidos.contains(dialogo); }
    void Muestra(Dialogo dialogo, const QString& titulo) override { m_ofrecidos.at(dialogo)(titulo); }

private:
    std::map<Dialogo, MuestraDialogo> m_ofrecidos;
};

} // namespace kestrane
