#include "platform/suite/windows/controles_de.h"

namespace kestrane {

using namespace Qt::StringLiterals;

QList<QWidget*> controlesDe(QWidget& ventana)
{
    QList<QWidget*> controles{&ventana};
    for (qsizetype i = 0; i < controles.size(); ++i) {
        for (QObject* hijo : controles.at(i)->children()) {
            auto* control = qobject_cast<QWidget*>(hijo);
            if (control && !control->isWindow())
                controles.append(control);
        }
    }
    return controles;
}

bool esParteDeQt(const QWidget& control)
{
    return control.objectName().startsWith("qt_"_L1);
}

} // namespace kestrane
