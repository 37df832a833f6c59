#pragma once

#include "pipeline/pantalla.h"

#include <QIODevice>

#include <functional>

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

/// Message boxes are lines on the standard error.
class MensajesDeLote final : public Mensajes
{
public:
    explicit MensajesDeLote(QIODevice& errores) : m_errores{errores} {}
    void Informa(const QString& texto, const QString& titulo) override;
    void Critico(const QString& texto, const QString& titulo) override;

private:
    QIODevice& m_errores;
};

/// Says that a report takes long: from its second second on, the steps counted, on a line that vanishes at the end.
class ProgresoDeLote final : public Progreso
{
public:
    /// Milliseconds since any moment in the past.
    using Cronometro = std::function<qint64()>;

    /// `errores` is a terminal.
    ProgresoDeLote(QIODevice& errores, Cronometro cronometro);
    void Muestra() override;
    void IncrementaBarra() override;
    void cerrar() override;

private:
    QIODevice& m_errores;
    Cronometro m_cronometro;
    qint64 m_siguiente = 0; ///< when the line is written next
    qint64 m_pasos = 0;
    bool m_escrito = false;
};

/// Where errors do not go to a terminal there is nobody to tell.
class ProgresoCallado final : public Progreso
{
public:
    void Muestra() override {}
    void IncrementaBarra() override {}
    void cerrar() override {}
};

} // namespace kestrane::lote
