#pragma once

#include "platform/suite/windows/aspecto_ventanas.h"

#include <QStringList>

#include <functional>

namespace kestrane::prueba {

/// Writes down what is done to a window, in order.
class AspectoAnotado final : public AspectoNeutro
{
public:
    [[nodiscard]] QPoint esquinaPrincipal() const override { return esquina; }
    void TraducirForm(QWidget& ventana) override { pasos += QStringLiteral("TraducirForm ") + ventana.objectName(); }
    void PintarForm(QWidget& ventana) override { pasos += QStringLiteral("PintarForm ") + ventana.objectName(); }
    [[nodiscard]] QString DarColorFondo() override
    {
        pasos += QStringLiteral("DarColorFondo");
        return fondo;
    }
    [[nodiscard]] QString DarColorResalte() override
    {
        pasos += QStringLiteral("DarColorResalte");
        return QStringLiteral("65535"); // yellow
    }
    [[nodiscard]] QString DarColorBoton() override
    {
        pasos += QStringLiteral("DarColorBoton");
        return QStringLiteral("255"); // red
    }
    [[nodiscard]] QString DarColorPredefinido1() override { return predefinido(1); }
    [[nodiscard]] QString DarColorPredefinido2() override { return predefinido(2); }
    [[nodiscard]] QString DarColorPredefinido3() override { return predefinido(3); }
    [[nodiscard]] QString DarColorPredefinido4() override { return predefinido(4); }
    void AplicarLetra(QWidget& ventana) override { pasos += QStringLiteral("AplicarLetra ") + ventana.objectName(); }
    void AplicarPermisos(QWidget& ventana) override
    {
        pasos += QStringLiteral("AplicarPermisos ") + ventana.objectName();
        alAplicarPermisos(ventana);
    }
    void EscalarForm(QWidget& ventana, TamanoVentana destino, TamanoVentana origen) override
    {
        pasos += QStringLiteral("EscalarForm %1 de %2x%3 a %4x%5")
                     .arg(ventana.objectName())
                     .arg(origen.ancho)
                     .arg(origen.alto)
                     .arg(destino.ancho)
                     .arg(destino.alto);
    }

    /// What an employee's rights do to the window.
    std::function<void(QWidget&)> alAplicarPermisos = [](QWidget&) {};
    QPoint esquina{100, 200};
    QString fondo{QStringLiteral("16776960")}; // cyan;
    QStringList pasos;

private:
    /// Reds: 1, 2, 3, 4.
    [[nodiscard]] QString predefinido(int cual)
    {
        pasos += QStringLiteral("DarColorPredefinido%1").arg(cual);
        return QString::number(cual);
    }
};

} // namespace kestrane::prueba
