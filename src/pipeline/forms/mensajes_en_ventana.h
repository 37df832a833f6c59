#pragma once

#include "pipeline/pantalla.h"

#include <QMessageBox>

namespace kestrane {

/// Messages as boxes, modal, with the one button "Aceptar"; Enter and Escape close them too. Texts and titles stand as they are
/// given.
class MensajesEnVentana final : public Mensajes
{
public:
    /// Over `principal`, which outlives the object; in the middle of the screen when there is none.
    explicit MensajesEnVentana(QWidget* principal = nullptr) : m_principal{principal} {}

    void Informa(const QString& texto, const QString& titulo) override { muestra(QMessageBox::Information, texto, titulo); }
    void Critico(const QString& texto, const QString& titulo) override { muestra(QMessageBox::Critical, texto, titulo); }

private:
    void muestra(QMessageBox::Icon icono, const QString& texto, const QString& titulo);

    QWidget* m_principal;
};

} // namespace kestrane
