#pragma once

#include <QIcon>
#include <QPushButton>
#include <QWidget>

namespace kestrane {

class RotuloPulsable;

/// A button with a picture, and below it a label that acts as the button does.
class BotonDibujado final : public QWidget
{
    Q_OBJECT

public:
    BotonDibujado(const QString& objetoBoton, const QString& objetoRotulo, const QIcon& dibujo, QWidget* padre);

    void ponLeyenda(const QString& leyenda);

    /// Its label has two lines, and no more room is asked for it.
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

signals:
    void pulsado();

private:
    QPushButton* m_boton;
    RotuloPulsable* m_rotulo;
};

} // namespace kestrane
