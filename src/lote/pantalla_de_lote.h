#pragma once

#include "pipeline/pantalla.h"
#include "platform/runtime/avisos.h"

/// What remains of the screen when there is none.
namespace kestrane::lote {

/// No menu: nothing to paint.
class MenuDeLote final : public Menu
{
public:
    [[nodiscard]] QString Leyenda(QStringView) const override { return {}; }
    void Haz(AccionMenu) override {}
    void Repinta() override {}
    void MuestraInfo() override {}
    void OcultaInfo() override {}
};

/// Message boxes are sentences on the standard error.
class MensajesDeLote final : public Mensajes
{
public:
    explicit MensajesDeLote(Avisos& avisos) : m_avisos{avisos} {}
    void Informa(const QString& texto, const QString& titulo) override;
    void Critico(const QString& texto, const QString& titulo) override;

private:
    Avisos& m_avisos;
};

/// The progress window is the line that counts steps.
class ProgresoDeLote final : public Progreso
{
public:
    explicit ProgresoDeLote(Avisos& avisos) : m_avisos{avisos} {}
    void Muestra() override;
    void IncrementaBarra() override { m_avisos.avanza(); }
    void cerrar() override { m_avisos.borra(); }

private:
    Avisos& m_avisos;
};

} // namespace kestrane::lote
