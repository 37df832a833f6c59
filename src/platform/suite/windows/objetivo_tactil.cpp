#include "platform/suite/windows/objetivo_tactil.h"

#include "platform/suite/windows/controles_de.h"
#include "platform/suite/windows/pinta_calendario.h"
#include "platform/suite/windows/propiedades_ventana.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QVariant>

namespace kestrane {

namespace {

constexpr char Dado[] = "kestraneTactilDado";

bool esParteDeOtro(const QWidget& control)
{
    if (esDeCalendario(control))
        return false; // a hit on its arrows is worth as much
    const QObject* padre = control.parent();
    return esParteDeQt(control) || qobject_cast<const QAbstractSpinBox*>(padre) || qobject_cast<const QComboBox*>(padre);
}

bool esParaDedos(const QWidget& control)
{
    return qobject_cast<const QAbstractButton*>(&control) || qobject_cast<const QLineEdit*>(&control) ||
           qobject_cast<const QComboBox*>(&control) || qobject_cast<const QAbstractSpinBox*>(&control);
}

bool pide(const QWidget& control)
{
    return control.property(propiedades::Tactil).toBool();
}

} // namespace

void daObjetivosTactiles(QWidget& ventana)
{
    for (QWidget* control : controlesDe(ventana)) {
        const bool pedido = pide(ventana) || pide(*control);
        if (!pedido || control->property(Dado).toBool() || !esParaDedos(*control) || esParteDeOtro(*control))
            continue;
        control->setProperty(Dado, true);
        if (control->maximumHeight() >= AltoTactil)
            control->setMinimumHeight(std::max(control->minimumHeight(), AltoTactil));
    }
}

} // namespace kestrane
