#include "platform/suite/windows/permisos_en_ventana.h"

#include "platform/suite/windows/controles_de.h"

namespace kestrane {

void AplicarPermisos(QWidget& ventana, const Permisos& permisos)
{
    for (QWidget* control : controlesDe(ventana)) {
        if (control == &ventana || control->objectName().isEmpty() || permisos.permite(control->objectName()))
            continue;
        control->hide();
        control->setEnabled(false);
    }
}

} // namespace kestrane
